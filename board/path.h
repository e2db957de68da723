// The traced path drawn on the dice: in every cell an incoming segment (Line1) from the centre
// towards the previous die and an outgoing one (Line2) towards the next, each ending at the
// middle of the common edge or at the common corner, so two segments make one straight line.
#pragma once

#include "core/game_state.h"

#include <array>
#include <optional>
#include <utility>

namespace griglione {

// Points of a die in its own coordinates: the centre, the middles of the edges, the corners.
// A hidden segment has both ends out of the die.
enum class Anchor {
    Hidden,
    Centre,
    Left,
    Right,
    Top,
    Bottom,
    TopLeft,
    TopRight,
    BottomLeft,
    BottomRight
};

// The point as fractions of the die's width and height.
std::pair<double, double> anchorPoint(Anchor anchor);

struct Segment {
    Anchor from = Anchor::Hidden;
    Anchor to = Anchor::Hidden;
    bool hidden() const { return from == Anchor::Hidden || to == Anchor::Hidden; }
    bool operator==(const Segment&) const = default;
};

struct CellMarks {
    Segment line1; // incoming: from the centre towards the previous die (a dot for the first)
    Segment line2; // outgoing: from the centre towards the next die
    bool line1Visible = true;
};

// The far ends for a step d = n − p between touching dice: Line1 of the new die n and Line2 of
// the previous die p. Empty for a step that is not between touching dice.
std::optional<std::pair<Anchor, Anchor>> connection(int d);

class Path {
public:
    const CellMarks& marks(int n) const { return m_marks[n]; }

    void start(int n);          // the first die: a dot in its centre
    void connect(int p, int n); // n follows p, which it touches
    void toggleBlink(int n);    // the newest die's incoming segment blinks
    void showNewest(int n);     // ends a blink: the incoming segment shows
    void hideAll();             // moves every segment out of sight; blink flags stay

private:
    std::array<CellMarks, kCells> m_marks;
};

} // namespace griglione
