#include "core/letter_flash.h"

namespace griglione {

Rgb consoleColour(int number) {
    static constexpr std::array<Rgb, 16> kPalette = {{
        {0, 0, 0},
        {0, 0, 128},
        {0, 128, 0},
        {0, 128, 128},
        {128, 0, 0},
        {128, 0, 128},
        {128, 128, 0},
        {192, 192, 192},
        {128, 128, 128},
        {0, 0, 255},
        {0, 255, 0},
        {0, 255, 255},
        {255, 0, 0},
        {255, 0, 255},
        {255, 255, 0},
        {255, 255, 255},
    }};
    return kPalette[static_cast<std::size_t>(number & 15)];
}

FlashStep LetterFlash::step() {
    if (++m_letter > 5) m_letter = 1;
    if (++m_colour > 15) m_colour = 1;
    return {m_letter - 1, m_colour, 15 - m_colour};
}

} // namespace griglione
