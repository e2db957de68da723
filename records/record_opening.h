// When a score goes into the record table, and the table steps of the records window's opening:
// reading "zarMolo.HIS", entering the player's score and writing the file back.
#pragma once

#include "core/game_state.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

// At the end of a match: more than 1000 points enter the table. Sets `inserisciRecord`.
bool recordDopoPartita(GameState& state);

// On leaving with "&Fine": 1000 points are already enough. Sets both record flags.
bool recordAllUscita(GameState& state);

// What the records window shows.
struct TabellaRecord {
    std::vector<std::string> righe; // the header and fifty places, in Windows-1252
    std::string primo;              // the name in first place
    int selezione = 1;              // the list line to select, the header being line 0
    bool invioPossibile = false;    // the player holds place 1 or 2 with this score
    bool nonSalvato = false;        // the score entered is in the table but not in the file
};

// Fills the table from `file`. When `inserisciRecord` asks for it, enters (`nomeGiocatore`,
// `puntiGiocatore`), clears the flag and rewrites the file; viewing alone never writes. A file
// that exists but cannot be read is never overwritten, so its records are not lost; the score
// then stays out of the file, as it does when the file cannot be written.
TabellaRecord riempiTabella(GameState& state, std::string_view nomeGiocatore,
                            const std::filesystem::path& file);

} // namespace griglione
