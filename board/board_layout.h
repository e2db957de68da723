// Where the cells are and how they touch: numbering, rows and columns, and the board's frame.
#pragma once

#include "core/game_state.h"

#include <array>
#include <string>

namespace griglione {

inline constexpr std::string_view kBlankDie = "zarMolo.gif";

// "zarMmgA3.gif" for letter A, face 3.
std::string dieName(char letter, int face);

// The letter of a dealt cell (7th character of its picture name); '\0' when there is none.
char letteraCella(const GameState& state, int n);

// The face digit 1–4 of a dealt cell; 0 when there is none.
int facciaCella(const GameState& state, int n);

// True when every cell shows the blank die.
bool tavolaVuota(const GameState& state);

struct Rect {
    int left, top, width, height;
    bool operator==(const Rect&) const = default;
};

// The frame around the 5 × 5 block and its shadow, in twips, from the first cell's rectangle.
std::array<Rect, 2> boardFrames(const Rect& firstCell);

} // namespace griglione
