// A day of the proleptic Gregorian calendar, as "AAAA-MM-GG": the board of the day is drawn
// from it, and the records service checks challenges against it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace griglione {

struct CivilDate {
    int year = 2000;
    int month = 1;
    int day = 1;
    auto operator<=>(const CivilDate&) const = default;
};

// True for a real day of the years 1 to 9999 (29 February only in leap years).
bool isValidDate(const CivilDate& date);

// "2026-11-24" for a valid date; the year always has four digits.
std::string dateText(const CivilDate& date);

// The date of exactly "AAAA-MM-GG" (ten characters, digits and hyphens); nothing otherwise.
std::optional<CivilDate> parseDate(std::string_view text);

// Days since 1970-01-01 (negative before it), and back.
long daysSinceEpoch(const CivilDate& date);
CivilDate dateFromDays(long days);

} // namespace griglione
