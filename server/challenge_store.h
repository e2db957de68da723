// Where the challenge tables live: one row per player and board code, the player's best.
#pragma once

#include "server/challenge.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace griglione {

enum class ChallengeOutcome {
    Nuovo,      // the player's first result on this board
    Uguale,     // the same words again: nothing changed
    Migliorato, // a better result replaced the player's earlier one
    Conservato, // the earlier result is as good or better and stays
};

struct ChallengeStored {
    ChallengeOutcome esito = ChallengeOutcome::Nuovo;
    std::int32_t puntiPrima = 0; // the player's earlier points, when there were any
};

struct ChallengeRow {
    int posto = 0;
    std::string nome;
    std::int32_t punti = 0;
    int tempo = 0;
    std::string parole;        // packed
    std::int64_t ricevuto = 0; // seconds since 1970-01-01 UTC
};

class ChallengeStore {
public:
    virtual ~ChallengeStore() = default;
    // Returns once the result is durably stored (or found not to change anything); nothing when
    // the storage failed. `ricevuto` in seconds since 1970-01-01 UTC.
    virtual std::optional<ChallengeStored> add(const ChallengeEntry& entry,
                                               std::int64_t ricevuto) = 0;
    // Best first; equal points in the order they were reached.
    virtual std::optional<std::vector<ChallengeRow>> players(const std::string& codice,
                                                             int count) = 0;
};

} // namespace griglione
