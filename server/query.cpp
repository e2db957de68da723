// Splitting a query at "&" and "=" and percent-decoding it to bytes.
#include "server/query.h"

namespace griglione {
namespace {

int hexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

std::optional<std::string> decoded(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '+') {
            out += ' ';
        } else if (text[i] != '%') {
            out += text[i];
        } else {
            if (i + 2 >= text.size()) return std::nullopt;
            const int high = hexValue(text[i + 1]), low = hexValue(text[i + 2]);
            if (high < 0 || low < 0) return std::nullopt;
            out += static_cast<char>(high * 16 + low);
            i += 2;
        }
    }
    return out;
}

} // namespace

std::optional<std::vector<QueryPart>> parseQuery(std::string_view query) {
    std::vector<QueryPart> parts;
    while (!query.empty()) {
        const std::size_t end = query.find('&');
        const std::string_view part = query.substr(0, end);
        query = end == std::string_view::npos ? std::string_view() : query.substr(end + 1);
        if (part.empty()) continue;
        const std::size_t equals = part.find('=');
        auto key = decoded(part.substr(0, equals));
        auto value = decoded(equals == std::string_view::npos ? std::string_view()
                                                              : part.substr(equals + 1));
        if (!key || !value) return std::nullopt;
        parts.push_back({std::move(*key), std::move(*value)});
    }
    return parts;
}

} // namespace griglione
