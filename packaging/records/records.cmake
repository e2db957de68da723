# The second binary package, griglione-records: the world-records service in /usr/sbin, run by
# systemd as its own system user, with its settings in /etc and its database in /var/lib.
# Included by packaging/CMakeLists.txt just before CPack; the game is the "griglione" component.
set(records_dir ${CMAKE_CURRENT_LIST_DIR})
set(records_doc share/doc/griglione-records)
install(TARGETS griglione-records RUNTIME DESTINATION sbin COMPONENT records)
install(FILES ${records_dir}/griglione-records.service DESTINATION /lib/systemd/system
    COMPONENT records)
install(FILES ${records_dir}/griglione-records.conf DESTINATION /etc/griglione-records
    COMPONENT records)
install(FILES ${records_dir}/griglione-records.nginx DESTINATION /etc/nginx/sites-available
    RENAME griglione-records COMPONENT records)
install(FILES ${PROJECT_SOURCE_DIR}/data/GRIGLIONE.htm ${PROJECT_SOURCE_DIR}/data/aiuto.css
    ${PROJECT_SOURCE_DIR}/data/griglione.gif
    DESTINATION share/griglione-records COMPONENT records)
# The main dictionaries the challenges are checked against: carried, so that the service does not
# pull in the game and its desktop libraries.
install(FILES ${PROJECT_SOURCE_DIR}/data/SLESSICO.1 ${PROJECT_SOURCE_DIR}/data/SLESSICO.2
    ${PROJECT_SOURCE_DIR}/data/SLESSICO.3 DESTINATION share/griglione-records COMPONENT records)
file(GLOB help_pictures ${PROJECT_SOURCE_DIR}/data/aiuto-*.png)
install(FILES ${help_pictures} DESTINATION share/griglione-records COMPONENT records)
install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/copyright DESTINATION ${records_doc} COMPONENT records)

set(records_packed ${CMAKE_CURRENT_BINARY_DIR}/records)
add_custom_command(OUTPUT ${records_packed}/griglione-records.8.gz ${records_packed}/changelog.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${records_packed}
    COMMAND gzip -9nc ${records_dir}/griglione-records.8 > ${records_packed}/griglione-records.8.gz
    COMMAND gzip -9nc ${records_dir}/changelog > ${records_packed}/changelog.gz
    DEPENDS ${records_dir}/griglione-records.8 ${records_dir}/changelog VERBATIM)
add_custom_target(records_package_files ALL DEPENDS ${records_packed}/griglione-records.8.gz
    ${records_packed}/changelog.gz)
install(FILES ${records_packed}/griglione-records.8.gz DESTINATION share/man/man8
    COMPONENT records)
install(FILES ${records_packed}/changelog.gz DESTINATION ${records_doc} COMPONENT records)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL griglione records)
set(CPACK_DEBIAN_GRIGLIONE_PACKAGE_NAME griglione)
set(CPACK_DEBIAN_RECORDS_PACKAGE_NAME griglione-records)
# Each package's own first line: CPack would put the game's summary on both.
set(CPACK_DEBIAN_GRIGLIONE_DESCRIPTION
    "${CPACK_PACKAGE_DESCRIPTION_SUMMARY}\n${CPACK_PACKAGE_DESCRIPTION}")
unset(CPACK_PACKAGE_DESCRIPTION_SUMMARY)
set(CPACK_DEBIAN_RECORDS_DESCRIPTION "world records service of the word game Il Griglione
Receives the records that the game Il Griglione submits from its record
table, checks them and keeps them in an SQLite database, and serves the world
table (the best 50 of each language and match length) as Italian web pages
and as JSON, with the game's home page and help. Challenges on a shared board
or the board of the day are checked word by word against the board and the
game's dictionaries, which the package carries. Runs as a systemd service
under its own system user; an nginx site for a TLS front is included.")
set(CPACK_DEBIAN_RECORDS_PACKAGE_SECTION web)
set(CPACK_DEBIAN_RECORDS_PACKAGE_RECOMMENDS "")
set(CPACK_DEBIAN_RECORDS_PACKAGE_SUGGESTS "nginx")
set(CPACK_DEBIAN_RECORDS_PACKAGE_DEPENDS "adduser")
set(CPACK_DEBIAN_RECORDS_PACKAGE_CONTROL_EXTRA
    "${records_dir}/conffiles;${records_dir}/postinst;${records_dir}/prerm;${records_dir}/postrm")
