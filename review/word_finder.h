// Every word a board holds: the paths of 3 to 10 touching dice, no die twice, whose letters are
// a word of the list. A depth-first walk over the board narrows, letter by letter, the range of
// records of each sorted block that share the letters walked so far, and turns back as soon as
// no block has any.
#pragma once

#include "core/game_state.h"
#include "review/word_list.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

// The letter of every cell, A to Z; any other byte is a die that spells nothing.
using BoardLetters = std::array<char, kCells>;

struct FoundWord {
    std::string word;       // upper case
    std::vector<int> path;  // the first path found, cell by cell
    std::uint32_t dice = 0; // bit n set when some path of the word passes through cell n
};

// The letters of the board in play; blank dice spell nothing.
BoardLetters boardLetters(const GameState& state);

// Each word once, in no particular order.
std::vector<FoundWord> findWords(const WordList& words, const BoardLetters& letters);

// A path that spells `word` (upper case) and passes through cell `through`, or any path when
// `through` is negative; empty when there is none.
std::vector<int> tracePath(const BoardLetters& letters, std::string_view word, int through = -1);

} // namespace griglione
