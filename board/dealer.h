// The letters of a deal: two pools per language, vowels and consonants taken in turn from cell
// to cell, the generator re-seeded from the clock before every cell.
#pragma once

#include "core/game_state.h"
#include "core/random.h"

#include <string_view>

namespace griglione {

struct LetterPools {
    std::string_view vocali;
    std::string_view consonanti;
};

// The pools of language 1 (Italian), 2 (English) or 3 (Latin, the same as English).
LetterPools letterPools(int numDizionario);

class Dealer {
public:
    Dealer(Random& random, const Clock& clock) : m_random(random), m_clock(clock) {}

    // Fills `immagineCella`: three passes of random dice, or one pass of blank dice. The number
    // of passes is odd and so is a pass's 25 cells, so the last pass puts vowels on even cells.
    void deal(GameState& state, bool conLettere);

private:
    Random& m_random;
    const Clock& m_clock;
};

} // namespace griglione
