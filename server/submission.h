// Checks a submission address's query and turns it into a record, or says in Italian what is
// wrong with it.
#pragma once

#include "server/world_record.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace griglione {

inline constexpr std::size_t kMaxNameBytes = 30;
inline constexpr std::size_t kMaxNoteBytes = 200;
inline constexpr std::size_t kMaxEmailBytes = 100;

struct Submission {
    std::optional<WorldRecord> record;
    std::string errore; // when there is no record
};

// The highest score a match of `tempo` seconds can hold: 2000 points (a ten-letter word) for
// every second. A word of ten letters takes eleven presses, so this asks for eleven presses a
// second held for the whole match, past the fastest typist. Zero for a length the game lacks.
std::int32_t maxPunti(int tempo);

bool validLength(int tempo);
bool validLanguage(int lingua);

// The query of "/records/griglione.asp": every part once, no other part, each value checked.
Submission readSubmission(std::string_view query);

} // namespace griglione
