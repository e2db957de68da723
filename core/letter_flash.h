// The flashing headline of the message window: every step gives the next of its five letters a
// new pair of the 16 console colours, the colour number cycling through 1 to 15.
#pragma once

#include <array>
#include <cstdint>

namespace griglione {

struct Rgb {
    int r, g, b;
    bool operator==(const Rgb&) const = default;
};

// 0 black, 1 blue, 2 green, 3 cyan, 4 red, 5 magenta, 6 brown, 7 light grey, 8 dark grey,
// 9 light blue, 10 light green, 11 light cyan, 12 light red, 13 light magenta, 14 yellow, 15 white.
Rgb consoleColour(int number);

struct FlashStep {
    int letter;     // 0..4
    int foreground; // console colour number
    int background;
};

class LetterFlash {
public:
    FlashStep step();

private:
    std::int16_t m_letter = 0;
    std::int16_t m_colour = 0;
};

} // namespace griglione
