#include "dictionary/dictionary.h"
#include "dictionary/dictionary_format.h"
#include "dictionary/dictionary_rebuild.h"
#include "dictionary/personal_vocabulary.h"
#include "dictionary/rules_text.h"
#include "dictionary/vocabulary_editing.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace griglione {
namespace {

// The dictionary file byte for byte: the notice, the index fields, the blocks from 440.

TEST(DictionaryFormat, WritesTheNoticeTheIndexAndTheBlocksFrom440Exactly) {
    WordLists words;
    words[0] = {"ABC", "ACE"};
    words[1] = {"ABBA"};
    const std::string z(1, '\0');
    EXPECT_EQ(buildDictionaryFile("Prova", words),
              "Prova" + std::string(194, ' ') + z + "     440     446     446     450" +
                  std::string(207, '\0') + "ABCACEABBA" + std::string(6, '\0'));
    // Empty lengths keep zero entries; a word of the wrong length is skipped.
    words = {};
    words[2] = {"CASAL", "WORDS", "XY"};
    words[7] = {"ABCDEFGHIJ"};
    EXPECT_EQ(buildDictionaryFile(std::string(250, 'x'), words),
              std::string(199, 'x') + z + std::string(32, '\0') + "     440     450" +
                  std::string(64, '\0') + "     450     460" + std::string(111, '\0') +
                  "CASALWORDSABCDEFGHIJ");
    EXPECT_EQ(buildDictionaryFile("", {}), std::string(199, ' ') + std::string(256, '\0'));
    // Positions past the index limit: no file.
    words[7].assign(1'000'000, std::string(10, 'A'));
    EXPECT_TRUE(buildDictionaryFile("", words).empty());
    words[7].resize(999'000);
    EXPECT_FALSE(buildDictionaryFile("", words).empty());
}

TEST(DictionaryFormat, ReadsFieldsOfBlanksDigitsAndZeroBytesAndDamagedIndexesGiveNoWords) {
    const std::pair<std::string, std::int64_t> cases[] = {
        {"     440", 440},         {"440     ", 440}, {"  12ab34", 12},      {"xx", 0},
        {"        ", 0},           {"", 0},           {" 9999999", 9999999}, {"99999999", 99999999},
        {std::string(8, '\0'), 0},
    };
    for (const auto& [field, value] : cases)
        EXPECT_EQ(parseIndexField(field), value) << field;
    // Damaged indexes give no words.
    std::string head(440, '\0');
    head.replace(200, 16, "     500     440"); // end before start
    head.replace(216, 16, "garbage!garbage!");
    const DictionaryIndex index = parseIndex(head);
    EXPECT_EQ(index.contaGruppo(3), 0);
    EXPECT_EQ(index.contaGruppo(4), 0);
    EXPECT_EQ(parseIndex("short").contaGruppo(3), 0);
}

// The three lookups on small files: blocks of one and two words, empty lengths, the personal
// vocabulary, "NO2", "BUSY" made by a yield that closes every file, and damaged files.

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

// The rebuild of the main dictionary, byte for byte: blocks read back for the editor's lists,
// the new file laid out from position 440 whatever the old one looked like, and failures that
// leave the old file as it was.

std::string field(const std::string& digits) {
    return std::string(8 - digits.size(), ' ') + digits;
}

// Every length's words as the editor loads them into its lists.
WordLists loadLists(const TempFolder& folder) {
    const DictionaryIndex index = parseIndex(folder.read("SLESSICO.1"));
    DictionaryBlocks blocks(folder.path() / "SLESSICO.1");
    WordLists lists;
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        const std::string block = blocks.block(index, length);
        for (std::size_t at = 0; at < block.size(); at += length)
            lists[length - kMinWordLength].push_back(block.substr(at, length));
    }
    return lists;
}

TEST(DictionaryRebuild, LaysBlocksOutFrom440InLengthOrderAndDropsWhatTheListsLack) {
    // Blocks out of order, length 3 unsorted, a 6-letter block cut short by the end of the file,
    // a 5-letter block the player emptied, and a 12-letter word the editor never loads.
    std::string old = noticeText("old") + '\0';
    // Lengths 3 and 4, then 5 and 6: two 6-letter words claimed, one and a half there.
    old += field("500") + field("506") + field("440") + field("444");
    old += field("444") + field("449") + field("506") + field("518");
    old += std::string(5 * 16, '\0');      // 7 to 11
    old += field("449") + field("461");    // 12
    old += std::string(3 * 16 + 31, '\0'); // 13 to 15, then the gap
    old += "ABBACASTAINCOMPRESSO";         // 440: lengths 4, 5 and 12 (cut to fit)
    old.resize(499, '\0');
    old += "ACEABCCASTELFRA";
    TempFolder folder;
    folder.write("SLESSICO.1", old);
    WordLists lists = loadLists(folder);
    EXPECT_EQ(lists[3], (std::vector<std::string>{"CASTEL"})); // whole records only
    lists[2].clear();
    ASSERT_TRUE(rebuildDictionary(folder.path(), 1, "n", lists));

    EXPECT_EQ(folder.read("SLESSICO.1"), noticeText("n") + '\0' + field("440") + field("446") +
                                             field("446") + field("450") + std::string(16, '\0') +
                                             field("450") + field("456") +
                                             std::string(9 * 16 + 31, '\0') + "ABCACEABBACASTEL");
    EXPECT_FALSE(folder.exists("SLESSICO.new"));
}

TEST(DictionaryRebuild, AFailedWriteLeavesTheOldDictionaryUntouched) {
    const std::string old = buildDictionaryFile("old", {});
    // Something that cannot be removed in the way of the new file, then of the old one.
    for (const char* folderName : {"SLESSICO.new", "SLESSICO.1"}) {
        TempFolder folder;
        folder.write("SLESSICO.1", old);
        std::filesystem::remove(folder.path() / folderName);
        std::filesystem::create_directory(folder.path() / folderName);
        folder.write(std::string(folderName) + "/x", "x");
        const std::string kept = folderName[9] == '1' ? "SLESSICO.1/x" : "SLESSICO.1";
        EXPECT_FALSE(rebuildDictionary(folder.path(), 1, "new", {})) << folderName;
        EXPECT_EQ(folder.read(kept), folderName[9] == '1' ? "x" : old) << folderName;
        EXPECT_TRUE(!folder.exists("SLESSICO.new") ||
                    std::filesystem::is_directory(folder.path() / "SLESSICO.new"))
            << folderName;
    }
    EXPECT_FALSE(rebuildDictionary("/nonexistent-griglione-folder", 1, "new", {}));
}

// The order of the checks of a new personal word, and the main editor's key filter.

TEST(VocabularyEditing, NewWordChecksStopAtTheFirstFailureAndScanOnlyWellFormedWords) {
    constexpr std::string_view italian = "ABCDEFGHILMNOPQRSTUVZ";
    // Only a word that passed the letters and the length costs a scan of the dictionary.
    const std::tuple<const char*, std::string_view, bool, bool, NewWordCheck, int> cases[] = {
        {"JAZZ", italian, false, false, NewWordCheck::BadLetter, 0},
        {"JAZZ", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", false, false, NewWordCheck::Added, 1},
        {"A1", italian, false, false, NewWordCheck::BadLetter, 0}, // before the length
        {"CASA ", italian, false, false, NewWordCheck::BadLetter, 0},
        {"CITTÀ", italian, false, false, NewWordCheck::BadLetter, 0},
        {"", italian, true, true, NewWordCheck::Empty, 0},
        {"AB", italian, true, true, NewWordCheck::TooShort, 0},
        {"CASA", italian, true, true, NewWordCheck::InMainDictionary, 1},
        {"CASA", italian, false, true, NewWordCheck::InPersonalList, 1},
        {"ABC", italian, false, false, NewWordCheck::Added, 1},
    };
    for (const auto& [word, alfabeto, inMain, inList, expected, scans] : cases) {
        std::vector<std::string> scanned;
        const auto main = [&](const std::string& w) { return scanned.push_back(w), inMain; };
        const auto list = [&](const std::string&) { return inList; };
        EXPECT_EQ(checkNewWord(word, alfabeto, main, list), expected) << word;
        EXPECT_EQ(scanned, std::vector<std::string>(scans, word)) << word;
    }
}

TEST(VocabularyEditing, EntryKeysKeepOnlyTheItalianLettersInUpperCase) {
    // Kept keys with what is kept; 0 marks a dropped key, '\r' the key that inserts the word.
    const std::pair<char, char> cases[] = {
        {'a', 'A'}, {'Z', 'Z'}, {'v', 'V'}, {'\b', '\b'}, {'\r', '\r'}, {'j', 0},    {'K', 0},
        {'y', 0},   {'1', 0},   {' ', 0},   {'\x1b', 0},  {'\t', 0},    {'\xe0', 0}, // à
    };
    for (const auto& [key, kept] : cases) {
        const EntryKeyAction expected = kept == 0      ? EntryKeyAction::Drop
                                        : kept == '\r' ? EntryKeyAction::Insert
                                                       : EntryKeyAction::Keep;
        EXPECT_EQ(filterEntryKey(key).action, expected) << int(key);
        EXPECT_TRUE(expected != EntryKeyAction::Keep || filterEntryKey(key).key == kept)
            << int(key);
    }
}

} // namespace
} // namespace griglione
