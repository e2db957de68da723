// Gathers the admitted words of one language from its sources, in order of trust, into the
// per-length lists the dictionary writer takes: unique, sorted by byte value, and at most
// 32,767 words per length, the most the game's dictionary editor can hold in one list.
#pragma once

#include "dictionary/dictionary_format.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace griglione {

inline constexpr std::size_t kEditorWordsPerLength = 32'767;

// A word a full length left out: its place among the tier's new words of that length, most used
// first (1 is the most used), how many there were, and its use.
struct CutWord {
    std::size_t rank = 0;
    std::size_t of = 0;
    long use = 0;
};

// A stable 32-bit hash of the word's bytes (FNV-1a), the same on every machine.
std::uint32_t wordHash(const std::string& word);

class WordSelection {
public:
    explicit WordSelection(std::size_t wordsPerLength = kEditorWordsPerLength);

    // How much each word is used (a larger number is more used); a word it lacks counts 0.
    void setUse(std::map<std::string, long> use);

    // Adds the next source, whose words rank below those of every earlier one. When a length
    // cannot take all its new words, it takes the most used and leaves out the others: no word
    // left out is used more than a word taken. Among words used as much, those of smallest
    // wordHash go first, a spread over the alphabet that is the same on every run. Words must
    // already be admitted (A–Z, 3–10). Returns how many words went in.
    std::size_t addTier(const std::vector<std::string>& words);

    WordLists lists() const;
    std::size_t size() const;
    bool contains(const std::string& word) const;
    long use(const std::string& word) const;
    // The words the cap left out, each with its rank; a word a later tier took is not there.
    const std::map<std::string, CutWord>& cut() const { return m_cut; }

private:
    std::size_t m_wordsPerLength;
    std::map<std::string, long> m_use;
    std::map<std::string, CutWord> m_cut;
    std::array<std::set<std::string>, kMaxWordLength - kMinWordLength + 1> m_words;
};

} // namespace griglione
