// The main dictionary file SLESSICO.<n>: a 199-byte notice, a zero byte, an index of 13 entries
// (word lengths 3 to 15) from position 201, zero bytes, and from position 440 one sorted block of
// fixed-width records per word length. Positions count from 1.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

inline constexpr int kMinWordLength = 3;
inline constexpr int kMaxIndexedLength = 15;
inline constexpr int kMaxWordLength = 10; // the longest words the game and the editor handle
inline constexpr int kNoticeLength = 199;
inline constexpr std::int64_t kIndexPosition = 201;
inline constexpr std::int64_t kFirstBlockPosition = 440;
inline constexpr std::size_t kMinimumFileSize = 455;
inline constexpr std::int64_t kLargestPosition = 9'999'999;

// "SLESSICO.1" for Italian.
std::string dictionaryFileName(int numDizionario);

// Where each length's block lies: inizioGruppo(L) and contaGruppo(L) for L = 3..15.
struct DictionaryIndex {
    std::array<std::int32_t, 13> inizio{};
    std::array<std::int32_t, 13> conta{};
    std::int32_t inizioGruppo(int length) const { return inizio[length - kMinWordLength]; }
    std::int32_t contaGruppo(int length) const { return conta[length - kMinWordLength]; }
};

// Position of the index entry for words of `length` letters.
constexpr std::int64_t indexEntryPosition(int length) {
    return kIndexPosition + 16 * (length - kMinWordLength);
}

// An 8-byte index field: leading blanks, then digits up to the first non-digit; none gives 0.
std::int64_t parseIndexField(std::string_view field);

// The index from the first bytes of a file (shorter input reads as zero bytes).
DictionaryIndex parseIndex(std::string_view head);

// The blank-padded 199-character notice for `text` (cut when longer).
std::string noticeText(std::string_view text);

// Words of lengths 3 to 10, one list per length in the order they are written (the caller keeps
// each list sorted); a word whose length is not its list's is skipped.
using WordLists = std::array<std::vector<std::string>, kMaxWordLength - kMinWordLength + 1>;

// The whole file as the rebuild writes it. Empty when the words would push a position past
// 9,999,999, which the index cannot hold.
std::string buildDictionaryFile(std::string_view notice, const WordLists& words);

} // namespace griglione
