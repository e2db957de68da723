// The three lookups on small files: blocks of one and two words, empty lengths, the personal
// vocabulary, "NO2", "BUSY" made by a yield that closes every file, and damaged files.
#include "dictionary/dictionary.h"
#include "dictionary/personal_vocabulary.h"
#include "dictionary/rules_text.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace griglione {
namespace {

using testing::FakeAlerts;
using testing::ProgramEnded;
using testing::TempFolder;

class LookupTest : public ::testing::Test {
protected:
    LookupTest()
        : dictionary(
              state, files, alerts, [this] { onYield(); }, folder.path()) {
        // Blocks of one, two and seven words.
        WordLists lists{{{"ABC"},
                         {"CASA", "MARE"},
                         {"AAAAA", "BBBBB", "CCCCC", "DDDDD", "EEEEE", "FFFFF", "GGGGG"}}};
        folder.write("SLESSICO.1", buildDictionaryFile("test", lists));
        dictionary.prendidiz();
    }
    void onYield() {
        ++yields;
        if (yieldAction) yieldAction();
    }

    TempFolder folder;
    GameState state;
    OpenFileTable files;
    FakeAlerts alerts;
    int yields = 0;
    std::function<void()> yieldAction;
    Dictionary dictionary;
};

TEST_F(LookupTest, BothSearchesFindEveryWordOfSmallBlocksWithAYieldBeforeEachRecordRead) {
    // Six words of the file, then seven that are not.
    const char* const words[] = {"ABC", "CASA", "MARE", "AAAAA", "DDDDD", "GGGGG",      "ABD",
                                 "AAA", "CAS",  "CASB", "MAREA", "HHHHH", "ZZZZZZZZZZZ"};
    for (int i = 0; i < 13; ++i) {
        EXPECT_EQ(dictionary.trovaInDizionario(words[i]), i < 6) << words[i];
        EXPECT_EQ(dictionary.verificaParola(words[i]), i < 6 ? "SI" : "NO") << words[i];
        EXPECT_EQ(dictionary.cercaParola(words[i]), i < 6 ? "SI" : "NO") << words[i];
    }
    EXPECT_FALSE(files.isOpen(FileSlot::Scan) || files.isOpen(FileSlot::Opponent));
    // Every record read is preceded by a yield.
    yields = 0;
    dictionary.trovaInDizionario("HHHHH"); // the full scan of seven records
    const int scan = std::exchange(yields, 0);
    dictionary.cercaParola("HHHHH"); // at most floor(log2 7) + 1 probes
    const int search = std::exchange(yields, 0);
    dictionary.cercaParola("ABCDEFGHIJKL"); // an empty block: no probe
    EXPECT_EQ(std::tuple(scan, search, yields), std::tuple(7, 3, 0));
    EXPECT_EQ(dictionary.cercaParola("AB") + dictionary.cercaParola(""), "NO2NO2");
}

TEST_F(LookupTest, ADamagedDictionaryAnswersNotFoundAndAMissingOneIsReported) {
    const std::string file = buildDictionaryFile("", WordLists{{{}, {"CASA", "MARE"}}});
    // An index past the end, a truncated record, an empty file.
    for (const std::string& bytes : {std::string(file).replace(216, 16, "     446 9999999"),
                                     file.substr(0, 445), std::string()}) {
        folder.write("SLESSICO.1", bytes);
        dictionary.prendidiz();
        EXPECT_EQ(dictionary.verificaParola("ZZZZ") + dictionary.cercaParola("AAAA"), "NONO")
            << bytes.size();
    }
    state.numDizionario = 2;
    EXPECT_EQ(dictionary.cercaParola("CASA"), "");
    EXPECT_THROW(dictionary.verificaParola("CASA"), ProgramEnded);
    EXPECT_THROW(dictionary.prendidiz(), ProgramEnded);
    const std::string missing = "Errore 0002: Non trovato file di vocabolario SLESSICO.2";
    EXPECT_EQ(alerts.shown,
              (std::vector<std::string>{
                  missing, missing, "Errore fatale! non trovato file di vocabolario: SLESSICO.2"}));
}

TEST_F(LookupTest, PersonalVocabularyAnswersBothChecksWhateverTheCase) {
    folder.write("ZarmPriv.1", "zebra\r\nGATTO\r\n\r\nbue");
    for (const char* word : {"ZEBRA", "GATTO", "BUE"})
        EXPECT_EQ(dictionary.verificaParola(word) + dictionary.cercaParola(word), "SISI") << word;
    // The word itself is not folded.
    EXPECT_EQ(dictionary.verificaParola("zebra") + dictionary.cercaParola("CANE"), "NONO");
    // A word is appended on its own line after a last line without its end.
    folder.write("ZarmPriv.1", "ZEBRA");
    ASSERT_TRUE(appendToPersonalVocabulary(folder.path() / personalVocabularyFileName(1), "GATTO"));
    EXPECT_EQ(folder.read("ZarmPriv.1"), "ZEBRA\r\nGATTO\r\n");
    EXPECT_EQ(readPersonalVocabulary(folder.path() / "missing"), std::vector<std::string>{});
}

TEST_F(LookupTest, AnOpponentLookupWhoseFileIsClosedUnderItAnswersBusyAndOneInAScanYieldIsNot) {
    yieldAction = [this] { files.closeAll(); };
    EXPECT_EQ(dictionary.cercaParola("MARE"), "BUSY");
    folder.write("ZarmPriv.1", "MARE\r\n");
    EXPECT_EQ(dictionary.cercaParola("MARE"), "BUSY"); // given up before the vocabulary
    // The submission's scan in the same situation just does not find the word.
    EXPECT_FALSE(dictionary.trovaInDizionario("MARE"));
    // An opponent lookup inside a scan's yield uses its own slot.
    std::string inner;
    yieldAction = [&] {
        yieldAction = nullptr;
        inner = dictionary.cercaParola("CASA");
    };
    EXPECT_TRUE(dictionary.trovaInDizionario("GGGGG"));
    EXPECT_EQ(inner, "SI");
}

TEST_F(LookupTest, TheRulesAreReadOnceWithCrLfAndAMissingFileIsReported) {
    RulesText rules(folder.path());
    EXPECT_EQ(rules.text(alerts), "");
    EXPECT_EQ(rulesForConfirmation(folder.path()), "File REGPAROL.txt non trovato");

    folder.write("regparol.txt", "Regole\r\nperch\xE9 s\xEC");
    EXPECT_EQ(rules.text(alerts), "Regole\r\nperché sì\r\n");
    folder.write("regparol.txt", "Nuove regole\r\n");
    EXPECT_EQ(rules.text(alerts), "Regole\r\nperché sì\r\n"); // kept after the first read
    EXPECT_EQ(rulesForConfirmation(folder.path()), "Nuove regole\r\n");
    EXPECT_EQ(alerts.shown, std::vector<std::string>{"ERRORE 0001: File contenente le regole sulle "
                                                     "parole non trovato: REGPAROL.TXT"});
}

} // namespace
} // namespace griglione
