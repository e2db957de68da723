// The three lookups on small files: blocks of one and two words, empty lengths, the personal
// vocabulary, "NO2", "BUSY" made by a yield that closes every file, and damaged files.
#include "dictionary/dictionary.h"
#include "dictionary/personal_vocabulary.h"
#include "dictionary/rules_text.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <functional>

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
        WordLists words;
        words[0] = {"ABC"};          // a block of one word
        words[1] = {"CASA", "MARE"}; // two words
        words[2] = {"AAAAA", "BBBBB", "CCCCC", "DDDDD", "EEEEE", "FFFFF", "GGGGG"};
        folder.write("SLESSICO.1", buildDictionaryFile("test", words));
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

TEST_F(LookupTest, BothSearchesFindEveryWordOfSmallBlocks) {
    for (const char* word : {"ABC", "CASA", "MARE", "AAAAA", "DDDDD", "GGGGG"}) {
        EXPECT_TRUE(dictionary.trovaInDizionario(word)) << word;
        EXPECT_EQ(dictionary.verificaParola(word), "SI") << word;
        EXPECT_EQ(dictionary.cercaParola(word), "SI") << word;
    }
    for (const char* word : {"ABD", "AAA", "CAS", "CASB", "MAREA", "HHHHH", "ZZZZZZZZZZZ"}) {
        EXPECT_FALSE(dictionary.trovaInDizionario(word)) << word;
        EXPECT_EQ(dictionary.verificaParola(word), "NO") << word;
        EXPECT_EQ(dictionary.cercaParola(word), "NO") << word;
    }
    EXPECT_FALSE(files.isOpen(FileSlot::Scan));
    EXPECT_FALSE(files.isOpen(FileSlot::Opponent));
}

TEST_F(LookupTest, EveryRecordReadIsPrecededByAYield) {
    yields = 0;
    dictionary.trovaInDizionario("HHHHH"); // the full scan of seven records
    EXPECT_EQ(yields, 7);
    yields = 0;
    dictionary.cercaParola("HHHHH"); // at most floor(log2 7) + 1 probes
    EXPECT_EQ(yields, 3);
    yields = 0;
    dictionary.cercaParola("ABCDEFGHIJKL"); // an empty block: no probe
    EXPECT_EQ(yields, 0);
}

TEST_F(LookupTest, ShortWordsAndMissingFiles) {
    EXPECT_EQ(dictionary.cercaParola("AB"), "NO2");
    EXPECT_EQ(dictionary.cercaParola(""), "NO2");
    state.numDizionario = 2;
    EXPECT_EQ(dictionary.cercaParola("CASA"), "");
    EXPECT_EQ(alerts.shown.back(), "Errore 0002: Non trovato file di vocabolario SLESSICO.2");
    EXPECT_THROW(dictionary.verificaParola("CASA"), ProgramEnded);
    EXPECT_EQ(alerts.shown.back(), "Errore 0002: Non trovato file di vocabolario SLESSICO.2");
    EXPECT_THROW(dictionary.prendidiz(), ProgramEnded);
    EXPECT_EQ(alerts.shown.back(), "Errore fatale! non trovato file di vocabolario: SLESSICO.2");
}

TEST_F(LookupTest, PersonalVocabularyAnswersBothChecksWhateverTheCase) {
    folder.write("ZarmPriv.1", "zebra\r\nGATTO\r\n\r\nbue");
    for (const char* word : {"ZEBRA", "GATTO", "BUE"}) {
        EXPECT_EQ(dictionary.verificaParola(word), "SI") << word;
        EXPECT_EQ(dictionary.cercaParola(word), "SI") << word;
    }
    EXPECT_EQ(dictionary.verificaParola("zebra"), "NO"); // the word itself is not folded
    EXPECT_EQ(dictionary.cercaParola("CANE"), "NO");
}

TEST_F(LookupTest, AnOpponentLookupWhoseFileIsClosedUnderItAnswersBusy) {
    yieldAction = [this] { files.closeAll(); };
    EXPECT_EQ(dictionary.cercaParola("MARE"), "BUSY");
    folder.write("ZarmPriv.1", "MARE\r\n");
    EXPECT_EQ(dictionary.cercaParola("MARE"), "BUSY"); // given up before the vocabulary
    // The submission's scan in the same situation just does not find the word.
    EXPECT_FALSE(dictionary.trovaInDizionario("MARE"));
}

TEST_F(LookupTest, AnOpponentLookupInsideAScanYieldUsesItsOwnSlot) {
    std::string inner;
    yieldAction = [&] {
        yieldAction = nullptr;
        inner = dictionary.cercaParola("CASA");
    };
    EXPECT_TRUE(dictionary.trovaInDizionario("GGGGG"));
    EXPECT_EQ(inner, "SI");
}

TEST_F(LookupTest, ADamagedDictionaryAnswersNotFoundWithoutCrashingOrHanging) {
    WordLists words;
    words[1] = {"CASA", "MARE"};
    std::string file = buildDictionaryFile("", words);
    const std::pair<const char*, std::string> damages[] = {
        {"index past the end", std::string(file).replace(216, 16, "     446 9999999")},
        {"truncated record", file.substr(0, 445)},
        {"empty file", ""},
    };
    for (const auto& [what, bytes] : damages) {
        SCOPED_TRACE(what);
        folder.write("SLESSICO.1", bytes);
        dictionary.prendidiz();
        EXPECT_EQ(dictionary.verificaParola("ZZZZ"), "NO");
        EXPECT_EQ(dictionary.cercaParola("AAAA"), "NO");
    }
}

TEST_F(LookupTest, AWordIsAppendedOnItsOwnLineAfterALastLineWithoutItsEnd) {
    folder.write("ZarmPriv.1", "ZEBRA");
    ASSERT_TRUE(appendToPersonalVocabulary(folder.path() / personalVocabularyFileName(1), "GATTO"));
    EXPECT_EQ(folder.read("ZarmPriv.1"), "ZEBRA\r\nGATTO\r\n");
    EXPECT_EQ(readPersonalVocabulary(folder.path() / "missing"), std::vector<std::string>{});
}

TEST_F(LookupTest, TheRulesAreReadOnceWithCrLfAndAMissingFileIsReported) {
    RulesText rules(folder.path());
    EXPECT_EQ(rules.text(alerts), "");
    ASSERT_EQ(alerts.shown.size(), 1u);
    EXPECT_EQ(alerts.shown[0],
              "ERRORE 0001: File contenente le regole sulle parole non trovato: REGPAROL.TXT");
    EXPECT_EQ(rulesForConfirmation(folder.path()), "File REGPAROL.txt non trovato");

    folder.write("regparol.txt", "Regole\r\nperch\xE9 s\xEC");
    EXPECT_EQ(rules.text(alerts), "Regole\r\nperché sì\r\n");
    folder.write("regparol.txt", "Nuove regole\r\n");
    EXPECT_EQ(rules.text(alerts), "Regole\r\nperché sì\r\n"); // kept after the first read
    EXPECT_EQ(rulesForConfirmation(folder.path()), "Nuove regole\r\n");
    EXPECT_EQ(alerts.shown.size(), 1u);
}

} // namespace
} // namespace griglione
