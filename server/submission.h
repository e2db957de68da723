// Checks a submission address's query and turns it into a record, or says in Italian what is
// wrong with it.
#pragma once

#include "server/world_record.h"

#include <chrono>
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

// The text without blanks at either end: a view into the request itself, so the checks copy
// nothing until a record is kept.
std::string_view trimmedView(std::string_view text);

// What is wrong, in Italian, with a name (already trimmed) that a page would show: empty, too
// long, invisible (no-break spaces, a soft hyphen) or holding control bytes; "" when it is fine.
std::string nameProblem(std::string_view nome);

// The highest score a match of `tempo` seconds can hold: 2000 points (a ten-letter word) for
// every second. A word of ten letters takes eleven presses, so this asks for eleven presses a
// second held for the whole match, past the fastest typist. Zero for a length the game lacks.
std::int32_t maxPunti(int tempo);

// The most a record may hold: what the fastest player could enter, at ten presses a second, of
// the richest of 100,000 boards dealt in `lingua` (bench/records_bound.cpp), rounded up to a
// thousand, and never above maxPunti. Zero for a language or length the game lacks.
std::int32_t plausiblePunti(int lingua, int tempo);
// The game's records window opens only from this score.
inline constexpr std::int32_t kMinPunti = 1000;
// Records of years before the game's are not believed.
inline constexpr int kFirstYear = 2000;

bool validLength(int tempo);
bool validLanguage(int lingua);

// Today's date in UTC.
std::chrono::sys_days today();

// The query of "/records/griglione.asp": every part once, no other part, each value checked.
// A date after `now` (UTC; a day ahead allowed for the player's time zone) is refused.
Submission readSubmission(std::string_view query, std::chrono::sys_days now = today());

} // namespace griglione
