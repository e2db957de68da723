// The order of the checks of a new personal word, and the main editor's key filter.
#include "dictionary/vocabulary_editing.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

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
