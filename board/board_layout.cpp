#include "board/board_layout.h"

#include <algorithm>

namespace griglione {

std::string dieName(char letter, int face) {
    return "zarMmg" + std::string(1, letter) + std::to_string(face) + ".gif";
}

char letteraCella(const GameState& state, int n) {
    const std::string& name = state.immagineCella[n];
    return name.size() > 6 ? name[6] : '\0';
}

int facciaCella(const GameState& state, int n) {
    const std::string& name = state.immagineCella[n];
    return (name.size() > 7 && name[7] >= '1' && name[7] <= '4') ? name[7] - '0' : 0;
}

bool tavolaVuota(const GameState& state) {
    return std::all_of(state.immagineCella.begin(), state.immagineCella.end(),
                       [](const std::string& name) { return name == kBlankDie; });
}

std::array<Rect, 2> boardFrames(const Rect& c) {
    const Rect frame{c.left - 4, c.top - 4, 5 * c.width + 8, 5 * c.height + 8};
    const Rect shadow{c.left + 18, c.top + 18, frame.width, frame.height};
    return {frame, shadow};
}

} // namespace griglione
