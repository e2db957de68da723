#include "core/game_state.h"

namespace griglione {

GameState::GameState()
    : alfabeto{"ABCDEFGHILMNOPQRSTUVZ", "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
               "ABCDEFGHIJKLMNOPQRSTUVWXYZ"} {
    immagineCella.fill("zarMolo.gif");
}

const std::string& alfabetoDi(const GameState& state) {
    const int index = state.numDizionario - 1;
    return (index >= 0 && index < 3) ? state.alfabeto[index] : state.alfabeto[0];
}

} // namespace griglione
