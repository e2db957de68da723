// Gathers the admitted words of one language from its sources, in order of trust, into the
// per-length lists the dictionary writer takes: unique, sorted by byte value, and at most
// 32,767 words per length, the most the game's dictionary editor can hold in one list.
#pragma once

#include "dictionary/dictionary_format.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace griglione {

inline constexpr std::size_t kEditorWordsPerLength = 32'767;

// A stable 32-bit hash of the word's bytes (FNV-1a), the same on every machine.
std::uint32_t wordHash(const std::string& word);

class WordSelection {
public:
    explicit WordSelection(std::size_t wordsPerLength = kEditorWordsPerLength);

    // Adds the next source, whose words rank below those of every earlier one. When a length
    // cannot take all its new words, it takes those of smallest wordHash: a spread over the whole
    // alphabet that stays the same from run to run. Words must already be admitted (A–Z, 3–10).
    // Returns how many words went in.
    std::size_t addTier(const std::vector<std::string>& words);

    WordLists lists() const;
    std::size_t size() const;
    bool contains(const std::string& word) const;

private:
    std::size_t m_wordsPerLength;
    std::array<std::set<std::string>, kMaxWordLength - kMinWordLength + 1> m_words;
};

} // namespace griglione
