// The order of the checks of a new personal word, and the main editor's key filter.
#include "dictionary/vocabulary_editing.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

TEST(VocabularyEditing, NewWordChecksStopAtTheFirstFailureAndScanOnlyWellFormedWords) {
    constexpr std::string_view italian = "ABCDEFGHILMNOPQRSTUVZ";
    const std::tuple<const char*, std::string_view, bool, bool, NewWordCheck> cases[] = {
        {"JAZZ", italian, false, false, NewWordCheck::BadLetter},
        {"JAZZ", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", false, false, NewWordCheck::Added},
        {"A1", italian, false, false, NewWordCheck::BadLetter}, // before the length
        {"CASA ", italian, false, false, NewWordCheck::BadLetter},
        {"CITTÀ", italian, false, false, NewWordCheck::BadLetter},
        {"", italian, true, true, NewWordCheck::Empty},
        {"AB", italian, true, true, NewWordCheck::TooShort},
        {"CASA", italian, true, true, NewWordCheck::InMainDictionary},
        {"CASA", italian, false, true, NewWordCheck::InPersonalList},
        {"ABC", italian, false, false, NewWordCheck::Added},
    };
    for (const auto& [word, alfabeto, inMain, inList, expected] : cases) {
        int scans = 0;
        const auto main = [&](const std::string& w) {
            ++scans;
            EXPECT_EQ(w, word);
            return inMain;
        };
        const auto list = [&](const std::string&) { return inList; };
        EXPECT_EQ(checkNewWord(word, alfabeto, main, list), expected) << word;
        // Only a word that passed the letters and the length costs a scan of the dictionary.
        const bool wellFormed = expected != NewWordCheck::BadLetter &&
                                expected != NewWordCheck::Empty &&
                                expected != NewWordCheck::TooShort;
        EXPECT_EQ(scans, wellFormed ? 1 : 0) << word;
    }
}

TEST(VocabularyEditing, EntryKeysKeepOnlyTheItalianLettersInUpperCase) {
    // Kept keys with what is kept; 0 marks a dropped key, '\r' the key that inserts the word.
    const std::pair<char, char> cases[] = {
        {'a', 'A'}, {'Z', 'Z'}, {'v', 'V'}, {'\b', '\b'}, {'\r', '\r'}, {'j', 0},    {'K', 0},
        {'y', 0},   {'1', 0},   {' ', 0},   {'\x1b', 0},  {'\t', 0},    {'\xe0', 0}, // à
    };
    for (const auto& [key, kept] : cases) {
        const EntryKey got = filterEntryKey(key);
        const EntryKeyAction expected = kept == 0      ? EntryKeyAction::Drop
                                        : kept == '\r' ? EntryKeyAction::Insert
                                                       : EntryKeyAction::Keep;
        EXPECT_EQ(got.action, expected) << int(key);
        if (expected == EntryKeyAction::Keep) EXPECT_EQ(got.key, kept) << int(key);
    }
}

} // namespace
} // namespace griglione
