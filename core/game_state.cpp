#include "core/game_state.h"

namespace griglione {

GameState::GameState()
    : alfabeto{"ABCDEFGHILMNOPQRSTUVZ", "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
               "ABCDEFGHIJKLMNOPQRSTUVWXYZ"} {
    immagineCella.fill("zarMolo.gif");
}

} // namespace griglione
