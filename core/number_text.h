// Numbers as the program prints and reads them: a place for the sign in front, halves rounded to
// even, and the forgiving reading of a number at the start of a text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace griglione {

// " 7" for 7, "-7" for -7: the sign place is a blank for numbers not below zero.
std::string numberText(std::int64_t n);

// The form numbers take in text files: the sign place, the digits and a trailing blank (" 7 ").
std::string numberField(std::int64_t n);

// The number at the start of a text: leading blanks skipped, then the longest part that forms a
// decimal number (sign, digits, point, digits); 0 when there is none.
double leadingNumber(std::string_view text);

// Nearest integer, halves to even (2.5 → 2, 3.5 → 4); empty when the value does not fit 32 bits.
std::optional<std::int32_t> roundHalfEven(double value);

// The last `width` characters of `text` after padding it on the left with blanks.
std::string rightAligned(std::string_view text, std::size_t width);

// Digits grouped by threes with the point, as an Italian system shows them (a comma in English):
// at least `minDigits` digits, zeros in front ("01.240" for 1240 and 5); no digit for 0 and 0.
std::string groupedNumber(std::int64_t n, int minDigits);

} // namespace griglione
