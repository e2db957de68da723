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

// Writes that must fail leave the old file as it was, and no temporary file behind.
TEST(FileRobustness, AFailedRewriteOrAppendLeavesTheOldFileByteForByte) {
    const std::string old = "Livello=500\r\nSuono=SI\r\n";
    const struct {
        const char* what;
        fs::perms filePerms;
        std::optional<std::size_t> limit;
    } cases[] = {
        {"write-protected, even for a superuser", fs::perms::owner_read, std::nullopt},
        {"disk full at once", fs::perms::owner_all, 0},
        {"disk full part-way", fs::perms::owner_all, 7},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        TempFolder folder;
        const fs::path file = folder.path() / "ZARMOLO.INI";
        folder.write("ZARMOLO.INI", old);
        fs::permissions(file, c.filePerms);
        std::optional<WriteLimit> full;
        if (c.limit) full.emplace(*c.limit);
        EXPECT_FALSE(writeFileAtomically(file, "Livello=100\r\n"));
        EXPECT_FALSE(appendToFile(file, "Tempo=60\r\n"));
        full.reset();
        fs::permissions(file, fs::perms::owner_all);
        EXPECT_EQ(folder.read("ZARMOLO.INI"), old);
        EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
    }
}

// The records table and the rebuilt dictionary go through the same writes: a disk that fills
// part-way leaves the old file whole and nothing beside it.
TEST(FileRobustness, AFailedRecordOrDictionaryRewriteLeavesTheOldFile) {
    WordLists words;
    words[0] = {"ERA", "ORA"};
    const std::string oldDictionary = buildDictionaryFile("test", words);
    for (const std::size_t limit : {std::size_t{0}, std::size_t{300}}) {
        SCOPED_TRACE(limit);
        TempFolder folder;
        folder.write("zarMolo.HIS", "ANNA, 2000 \r\n");
        folder.write("SLESSICO.1", oldDictionary);
        GameState state;
        state.inserisciRecord = true;
        state.puntiGiocatore = 1500;
        {
            WriteLimit full(limit);
            riempiTabella(state, "BRIVO", folder.path() / "zarMolo.HIS");
            words[0].push_back("UVA");
            EXPECT_FALSE(rebuildDictionary(folder.path(), 1, "test", words));
        }
        EXPECT_EQ(folder.read("zarMolo.HIS"), "ANNA, 2000 \r\n");
        EXPECT_EQ(folder.read("SLESSICO.1"), oldDictionary);
        EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);
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
