// Files that are not what they should be: a folder, a huge file, a write-protected file or folder,
// a disk that fills up part-way. Nothing throws, nothing half-written is left, and a failed
// write of the personal vocabulary is reported.
#include "board/word_submission.h"
#include "dictionary/dictionary_format.h"
#include "dictionary/dictionary_rebuild.h"
#include "dictionary/personal_vocabulary.h"
#include "dictionary/rules_text.h"
#include "records/record_opening.h"
#include "tests/support/board_parts.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

using namespace testing;
namespace fs = std::filesystem;

TEST(FileRobustness, EveryReaderTakesAFolderOrAHugeFileForAMissingOne) {
    for (const bool huge : {false, true}) {
        SCOPED_TRACE(huge ? "huge" : "folder");
        TempFolder folder;
        for (const char* name : {"ZARMOLO.INI", "ZarmPriv.1", "REGPAROL.TXT", "SLESSICO.1"}) {
            if (huge) {
                folder.write(name, "");
                fs::resize_file(folder.path() / name, kLargestReadableFile + 1);
            } else {
                fs::create_directory(folder.path() / name);
            }
        }
        EXPECT_FALSE(readWholeFile(folder.path() / "ZARMOLO.INI"));
        EXPECT_FALSE(readRulesText(folder.path(), "\r\n"));
        EXPECT_FALSE(personalVocabularyHas(folder.path() / "ZarmPriv.1", "CANE"));
        OpenFileTable files;
        EXPECT_EQ(files.open(FileSlot::Opponent, folder.path() / "SLESSICO.1"), huge);
        if (!huge) {
            EXPECT_FALSE(appendToPersonalVocabulary(folder.path() / "ZarmPriv.1", "CANE"));
        }
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

struct AcceptEveryWord : UnknownWordPrompt {
    int confermaParola(const std::string&) override { return 1; }
};

TEST(FileRobustness, AWordThatCannotBeStoredIsReportedAndTheVocabularyKept) {
    BoardParts<> parts;
    TempFolder folder;
    folder.write("SLESSICO.1", std::string(kMinimumFileSize, '\0'));
    folder.write("ZarmPriv.1", "ZEBRA");
    OpenFileTable files;
    FakeAlerts alerts;
    Dictionary dictionary(
        parts.state, files, alerts, [] {}, folder.path());
    dictionary.prendidiz();
    AcceptEveryWord prompt;
    WordSubmission submission(parts.state, parts.board, dictionary, files, parts.sounds,
                              parts.messages, parts.view, prompt);
    parts.state.parolaComposta = "ZOCCA";
    {
        WriteLimit full(4); // the line end for the unfinished last line, and half the word
        submission.inviaParola();
    }
    EXPECT_EQ(folder.read("ZarmPriv.1"), "ZEBRA");
    EXPECT_EQ(alerts.shown, std::vector<std::string>{"Errore 0003: impossibile scrivere il file "
                                                     "del vocabolario personale ZarmPriv.1, la "
                                                     "parola non è stata salvata"});
}

} // namespace
} // namespace griglione
