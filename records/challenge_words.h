// The words of a challenge as they travel in its submission address: sorted, each written as
// the number of leading letters it shares with the word before (0–9) and then the rest, so a
// long list stays short: CASA CASE CASO MARE → "0CASA3E3O0MARE".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

// The packed form of the words: upper-cased, sorted by byte, each once. Words must be A–Z
// letters only (either case).
std::string packWords(std::vector<std::string> words);

// The words of a packed text, in its order; nothing when a character is not a digit or A–Z, a
// shared count is longer than the word before, or a word does not come after the one before.
std::optional<std::vector<std::string>> unpackWords(std::string_view packed);

} // namespace griglione
