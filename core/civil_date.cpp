#include "core/civil_date.h"

namespace griglione {

namespace {

bool isLeap(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysInMonth(int year, int month) {
    static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeap(year) ? 29 : kDays[month - 1];
}

} // namespace

bool isValidDate(const CivilDate& d) {
    return d.year >= 1 && d.year <= 9999 && d.month >= 1 && d.month <= 12 && d.day >= 1 &&
           d.day <= daysInMonth(d.year, d.month);
}

std::string dateText(const CivilDate& d) {
    std::string text = std::to_string(d.year);
    text.insert(0, text.size() < 4 ? 4 - text.size() : 0, '0');
    text += d.month < 10 ? "-0" : "-";
    text += std::to_string(d.month);
    text += d.day < 10 ? "-0" : "-";
    text += std::to_string(d.day);
    return text;
}

std::optional<CivilDate> parseDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    auto number = [&](std::size_t from, std::size_t count) {
        int value = 0;
        for (std::size_t i = from; i < from + count; ++i) {
            if (text[i] < '0' || text[i] > '9') return -1;
            value = value * 10 + (text[i] - '0');
        }
        return value;
    };
    const CivilDate date{number(0, 4), number(5, 2), number(8, 2)};
    if (!isValidDate(date)) return std::nullopt;
    return date;
}

// Howard Hinnant's days-from-civil: eras of 400 years, months counted from March so that the
// leap day falls at the end of the year.
long daysSinceEpoch(const CivilDate& d) {
    const long y = d.year - (d.month <= 2 ? 1 : 0);
    const long era = (y >= 0 ? y : y - 399) / 400;
    const long yearOfEra = y - era * 400;
    const long dayOfYear = (153 * (d.month + (d.month > 2 ? -3 : 9)) + 2) / 5 + d.day - 1;
    const long dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

CivilDate dateFromDays(long days) {
    days += 719468;
    const long era = (days >= 0 ? days : days - 146096) / 146097;
    const long dayOfEra = days - era * 146097;
    const long yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long mp = (5 * dayOfYear + 2) / 153;
    const int day = static_cast<int>(dayOfYear - (153 * mp + 2) / 5 + 1);
    const int month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    const long year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return {static_cast<int>(year), month, day};
}

} // namespace griglione
