// The match clock: seconds counted up to the match length, the time bar and the start message.
#pragma once

#include "core/game_state.h"

#include <array>
#include <string>

namespace griglione {

// Counts one second. True when the match is over: on the first tick past the match length, so a
// 60-second match ends on its 61st tick.
bool countSecond(GameState& state);

// A match of `seconds` that leaves the player's own length to be saved and to come back at the
// next deal: the board of the day is played for a fixed time.
void fissaTempoPartita(GameState& state, int seconds);
// Gives the player's own length back after a fixed-length match; nothing otherwise.
void ripristinaTempoPartita(GameState& state);
// The length the settings file keeps: the player's own, also during a fixed-length match.
int tempoDelGiocatore(const GameState& state);

// Width of the dark-blue time bar after `seconds` of a `tempoPartita`-second match.
int timeBarWidth(int innerWidth, int tempoPartita, int seconds);

// "37s".
std::string secondsLabel(int seconds);

// The "START" message announcing a match; `levelChecked` in the order of kLevels.
Messaggio startMessage(const GameState& state, const std::array<bool, 4>& levelChecked);

} // namespace griglione
