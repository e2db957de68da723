#include "core/number_text.h"

#include "core/player_text.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace griglione {

std::string numberText(std::int64_t n) {
    return (n < 0 ? "" : " ") + std::to_string(n);
}

std::string numberField(std::int64_t n) {
    return numberText(n) + " ";
}

double leadingNumber(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && text[i] == ' ')
        ++i;
    std::string number;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) number += text[i++];
    bool digits = false;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
        number += text[i++];
        digits = true;
    }
    if (i < text.size() && text[i] == '.') {
        number += text[i++];
        while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
            number += text[i++];
            digits = true;
        }
    }
    return digits ? std::strtod(number.c_str(), nullptr) : 0.0;
}

std::optional<std::int32_t> roundHalfEven(double value) {
    if (!std::isfinite(value)) return std::nullopt;
    const double rounded = std::nearbyint(value); // the default rounding mode is to even
    if (rounded < std::numeric_limits<std::int32_t>::min() ||
        rounded > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(rounded);
}

std::string rightAligned(std::string_view text, std::size_t width) {
    std::string padded = std::string(width, ' ') + std::string(text);
    return padded.substr(padded.size() - width);
}

std::string groupedNumber(std::int64_t n, int minDigits) {
    const bool negative = n < 0;
    std::string digits = n == 0 ? "" : std::to_string(n);
    if (negative) digits.erase(0, 1);
    if (static_cast<int>(digits.size()) < minDigits)
        digits.insert(0, static_cast<std::size_t>(minDigits) - digits.size(), '0');
    //: The thousands separator of scores and word counts.
    const std::string separator = playerText("NumberText", ".");
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) grouped += separator;
        grouped += digits[i];
    }
    return negative ? "-" + grouped : grouped;
}

} // namespace griglione
