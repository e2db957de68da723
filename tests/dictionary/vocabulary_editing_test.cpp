// The order of the checks of a new personal word, and the main editor's key filter.
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

} // namespace
} // namespace griglione
