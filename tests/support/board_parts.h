// A board in play with recording fakes around it, for tests of dealing, tracing and submitting.
#pragma once

#include "board/board_game.h"
#include "tests/support/fakes.h"

namespace griglione::testing {

template <typename RandomSource = ScriptedRandom> struct BoardParts {
    GameState state;
    RandomSource random;
    FixedClock clock; // every cell re-seeds with the same reading
    Dealer dealer{random, clock};
    FakeSounds sounds;
    FakeMessages messages;
    FakeView view;
    BoardGame board{state, dealer, sounds, messages, view};
};

} // namespace griglione::testing
