// The after-match review of a board: every word it held split into the player's, the computer's
// and the words nobody found, each list longest first and then alphabetical, with its points.
#pragma once

#include "review/word_finder.h"

#include <cstdint>
#include <string>
#include <vector>

namespace griglione {

struct ReviewEntry {
    std::string word; // lower case, as the game's word lists show it
    std::int32_t points = 0;
    std::vector<int> path;  // empty when the board does not spell it
    std::uint32_t dice = 0; // the cells some path of the word passes through
    bool passesThrough(int cell) const { return (dice >> cell) & 1u; }
};

struct ReviewList {
    std::vector<ReviewEntry> entries;
    std::int32_t points = 0;
};

struct BoardReview {
    ReviewList player;
    ReviewList cpu;
    ReviewList missed;
    // Distinct words over the three lists and their points.
    int words = 0;
    std::int32_t points = 0;
};

// `playerWords` and `cpuWords` are the players' lists (lower case). A word both players hold is
// in both lists; a listed word the finder missed keeps whatever path the board gives it.
BoardReview reviewBoard(const std::vector<FoundWord>& found, const BoardLetters& letters,
                        const std::vector<std::string>& playerWords,
                        const std::vector<std::string>& cpuWords);

// The entries of `list` that pass through `cell`; all of them when `cell` is negative.
std::vector<const ReviewEntry*> throughCell(const ReviewList& list, int cell);

} // namespace griglione
