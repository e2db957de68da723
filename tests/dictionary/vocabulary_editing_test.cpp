// The editors' rules: the order of the checks of a new personal word, the selection after a
// deletion, the main editor's key filter and the reading of its count labels.
#include "dictionary/vocabulary_editing.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

constexpr std::string_view kItalian = "ABCDEFGHILMNOPQRSTUVZ";
constexpr std::string_view kEnglish = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

TEST(VocabularyEditing, NewWordChecksStopAtTheFirstFailureAndScanOnlyWellFormedWords) {
    struct Case {
        const char* word;
        std::string_view alfabeto;
        bool inMain, inList;
        NewWordCheck expected;
        bool scanned;
    };
    const Case cases[] = {
        {"JAZZ", kItalian, false, false, NewWordCheck::BadLetter, false},
        {"JAZZ", kEnglish, false, false, NewWordCheck::Added, true},
        {"A1", kItalian, false, false, NewWordCheck::BadLetter, false}, // before the length
        {"CASA ", kItalian, false, false, NewWordCheck::BadLetter, false},
        {"CITTÀ", kItalian, false, false, NewWordCheck::BadLetter, false},
        {"", kItalian, true, true, NewWordCheck::Empty, false},
        {"AB", kItalian, true, true, NewWordCheck::TooShort, false},
        {"CASA", kItalian, true, true, NewWordCheck::InMainDictionary, true},
        {"CASA", kItalian, false, true, NewWordCheck::InPersonalList, true},
        {"ABC", kItalian, false, false, NewWordCheck::Added, true},
    };
    for (const Case& c : cases) {
        int scans = 0;
        const auto main = [&](const std::string& w) {
            ++scans;
            EXPECT_EQ(w, c.word);
            return c.inMain;
        };
        const auto list = [&](const std::string&) { return c.inList; };
        EXPECT_EQ(checkNewWord(c.word, c.alfabeto, main, list), c.expected) << c.word;
        EXPECT_EQ(scans, c.scanned ? 1 : 0) << c.word;
    }
}

TEST(VocabularyEditing, DeletionNeedsASelectionAndSelectsTheWordBefore) {
    EXPECT_EQ(deleteRefusal(-1, 3), "Occorre prima selezionare la parola da cancellare!");
    EXPECT_EQ(deleteRefusal(-1, 0), "Non ci sono parole da cancellare dal vocabolario privato!");
    EXPECT_EQ(deleteRefusal(2, 3), std::nullopt);
    struct Case {
        int removed, remaining, expected;
    };
    for (const Case c : {Case{0, 2, 0}, Case{1, 2, 0}, Case{2, 2, 1}, Case{0, 0, -1}})
        EXPECT_EQ(rowAfterDelete(c.removed, c.remaining), c.expected)
            << c.removed << " of " << c.remaining + 1;
}

TEST(VocabularyEditing, EntryKeysKeepOnlyTheItalianLettersInUpperCase) {
    struct Case {
        char key;
        EntryKeyAction action;
        char kept;
    };
    const Case cases[] = {
        {'a', EntryKeyAction::Keep, 'A'},  {'Z', EntryKeyAction::Keep, 'Z'},
        {'v', EntryKeyAction::Keep, 'V'},  {'\b', EntryKeyAction::Keep, '\b'},
        {'\r', EntryKeyAction::Insert, 0}, {'j', EntryKeyAction::Drop, 0},
        {'K', EntryKeyAction::Drop, 0},    {'y', EntryKeyAction::Drop, 0},
        {'1', EntryKeyAction::Drop, 0},    {' ', EntryKeyAction::Drop, 0},
        {'\x1b', EntryKeyAction::Drop, 0}, {'\t', EntryKeyAction::Drop, 0},
        {'\xe0', EntryKeyAction::Drop, 0}, // à in the ANSI code page
    };
    for (const Case& c : cases) {
        const EntryKey got = filterEntryKey(c.key);
        EXPECT_EQ(got.action, c.action) << int(c.key);
        if (c.action == EntryKeyAction::Keep) {
            EXPECT_EQ(got.key, c.kept) << int(c.key);
        }
    }
}

TEST(VocabularyEditing, CountLabelsAreReadBackAfterTheirParenthesis) {
    struct Case {
        const char* label;
        std::int64_t number;
    };
    for (const Case c : {Case{"(12) parole", 12}, Case{"(32767) Parole", 32767},
                         Case{"(0) Parole", 0}, Case{"", 0}, Case{"( 7) Parole", 7}})
        EXPECT_EQ(countLabelNumber(c.label), c.number) << c.label;
}

} // namespace
} // namespace griglione
