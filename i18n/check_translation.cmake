# Fails unless the committed .ts matches the code's texts and translates every one of them: the
# texts are gathered afresh into a copy, and lupdate's and lrelease's own counts must show no new,
# no obsolete and no unfinished entry.
string(REPLACE "|" ";" folders "${FOLDERS}")
string(REPLACE "|" ";" options "${OPTIONS}")
set(sources)
foreach(folder ${folders})
    file(GLOB found ${SOURCE_DIR}/${folder}/*.cpp ${SOURCE_DIR}/${folder}/*.h)
    list(APPEND sources ${found})
endforeach()
file(MAKE_DIRECTORY ${WORK})
set(copy ${WORK}/check.ts)
file(COPY_FILE ${TS_FILE} ${copy})

execute_process(COMMAND ${LUPDATE} -I ${SOURCE_DIR} ${options} ${sources} -ts ${copy}
    OUTPUT_VARIABLE gathered ERROR_VARIABLE gathered RESULT_VARIABLE failed)
message("${gathered}")
if(failed)
    message(FATAL_ERROR "lupdate failed")
endif()
if(NOT gathered MATCHES "Found [0-9]+ source text\\(s\\) \\(0 new and [0-9]+ already existing\\)")
    message(FATAL_ERROR "Texts of the code missing from ${TS_FILE}: run the update_translations "
        "target and translate them")
endif()
if(gathered MATCHES "obsolete")
    message(FATAL_ERROR "${TS_FILE} holds texts the code no longer has: run update_translations")
endif()

execute_process(COMMAND ${LRELEASE} ${copy} -qm ${WORK}/check.qm
    OUTPUT_VARIABLE released ERROR_VARIABLE released RESULT_VARIABLE failed)
message("${released}")
if(failed OR NOT released MATCHES "\\(([0-9]+) finished and 0 unfinished\\)")
    message(FATAL_ERROR "Unfinished translations in ${TS_FILE}")
endif()
if(released MATCHES "[Ii]gnored|untranslated")
    message(FATAL_ERROR "Untranslated texts in ${TS_FILE}")
endif()
