// Files that are not what they should be: a folder, a huge file, a write-protected file or folder,
// a disk that fills up part-way. Nothing throws and nothing half-written is left.
#include "dictionary/dictionary_format.h"
#include "dictionary/dictionary_rebuild.h"
#include "dictionary/open_file_table.h"
#include "dictionary/personal_vocabulary.h"
#include "dictionary/rules_text.h"
#include "records/record_opening.h"
#include "tests/support/board_parts.h"

#include <gtest/gtest.h>

#include <map>

using namespace griglione;

using namespace griglione::testing;
namespace fs = std::filesystem;

TEST(FileRobustness, EveryReaderTakesAFolderOrAHugeFileForAMissingOne) {
    for (const bool huge : {false, true}) {
        SCOPED_TRACE(huge ? "huge" : "folder");
        TempFolder folder;
        const fs::path f = folder.path();
        for (const char* name : {"ZARMOLO.INI", "ZarmPriv.1", "REGPAROL.TXT", "SLESSICO.1"}) {
            if (huge) folder.write(name, ""), fs::resize_file(f / name, kLargestReadableFile + 1);
            if (!huge) fs::create_directory(f / name);
        }
        EXPECT_FALSE(readWholeFile(f / "ZARMOLO.INI"));
        EXPECT_FALSE(readRulesText(f, "\r\n"));
        EXPECT_FALSE(personalVocabularyHas(f / "ZarmPriv.1", "CANE"));
        EXPECT_EQ(OpenFileTable().open(FileSlot::Opponent, f / "SLESSICO.1"), huge);
        EXPECT_TRUE(huge || !appendToPersonalVocabulary(f / "ZarmPriv.1", "CANE"));
    }
}

// Writes that must fail leave the old file as it was and no temporary file behind: the settings
// rewrite and append, the records table and the rebuilt dictionary.
TEST(FileRobustness, AFailedWriteLeavesTheOldFilesByteForByte) {
    WordLists words;
    words[0] = {"ERA", "ORA"};
    const std::map<std::string, std::string> old = {
        {"ZARMOLO.INI", "Livello=500\r\nSuono=SI\r\n"},
        {"zarMolo.HIS", "ANNA, 2000 \r\n"},
        {"SLESSICO.1", buildDictionaryFile("test", words)}};
    words[0].push_back("UVA");
    const struct {
        const char* what;
        fs::perms filePerms;
        std::optional<std::size_t> limit;
        std::errc reason;
    } cases[] = {
        {"read-only, even to root", fs::perms::owner_read, {}, std::errc::permission_denied},
        {"disk full at once", fs::perms::owner_all, 0, std::errc::no_space_on_device},
        {"disk full part-way", fs::perms::owner_all, 7, std::errc::no_space_on_device},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        TempFolder folder;
        const fs::path f = folder.path();
        for (const auto& [name, bytes] : old)
            folder.write(name, bytes), fs::permissions(f / name, c.filePerms);
        GameState state;
        state.inserisciRecord = true;
        state.puntiGiocatore = 1500;
        std::optional<WriteLimit> full;
        if (c.limit) full.emplace(*c.limit);
        EXPECT_FALSE(writeFileAtomically(f / "ZARMOLO.INI", "Livello=100\r\n"));
        EXPECT_FALSE(appendToFile(f / "ZARMOLO.INI", "Tempo=60\r\n"));
        riempiTabella(state, "BRIVO", f / "zarMolo.HIS");
        std::error_code why;
        EXPECT_FALSE(rebuildDictionary(f, 1, "test", words, &why));
        EXPECT_EQ(why, std::make_error_code(c.reason));
        full.reset();
        for (const auto& [name, bytes] : old) {
            fs::permissions(f / name, fs::perms::owner_all);
            EXPECT_EQ(folder.read(name), bytes) << name;
        }
        EXPECT_EQ(std::distance(fs::directory_iterator(f), {}), 3);
    }
}

TEST(FileRobustness, AFolderThatRefusesNewFilesStillLetsAWritableFileBeRewrittenInPlace) {
    for (const bool tempIsFolder : {false, true}) {
        TempFolder folder;
        folder.write("ZARMOLO.INI", "old");
        if (tempIsFolder)
            fs::create_directory(folder.path() / "ZARMOLO.INI.tmp");
        else
            fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
        EXPECT_TRUE(writeFileAtomically(folder.path() / "ZARMOLO.INI", "new"));
        // A new file cannot be written in place: the folder's refusal stands.
        EXPECT_EQ(writeFileAtomically(folder.path() / "OTHER.INI", "new"), tempIsFolder);
        fs::permissions(folder.path(), fs::perms::owner_all);
        EXPECT_EQ(folder.read("ZARMOLO.INI"), "new");
    }
}
