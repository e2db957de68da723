// Escaping of player text for the service's HTML pages and its JSON.
#pragma once

#include <string>
#include <string_view>

namespace griglione {

// "&", "<", ">", '"' and "'" as entities: safe in element text and in quoted attributes.
std::string htmlEscape(std::string_view text);

// A JSON string with its quotes; control characters, "<", ">" and "&" as \u escapes, so the text
// stays inert even if a browser is made to read the JSON as HTML.
std::string jsonString(std::string_view utf8);

// 1240 as "1.240", with the Italian thousands separator.
std::string groupedNumber(long long value);

} // namespace griglione
