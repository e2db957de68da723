// The query part of an address, split into its parts and percent-decoded to raw bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

struct QueryPart {
    std::string key;
    std::string value; // decoded bytes: the game sends Windows-1252
    bool operator==(const QueryPart&) const = default;
};

// Splits at "&" and at the first "=" of each part; "+" is a blank, "%XY" the byte XY. Empty
// parts (as in "a=1&&b=2") are skipped. Nothing when a "%" is not followed by two hex digits.
std::optional<std::vector<QueryPart>> parseQuery(std::string_view query);

} // namespace griglione
