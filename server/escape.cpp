// HTML entities, JSON strings and Italian digit grouping for what the service writes.
#include "server/escape.h"

namespace griglione {

std::string htmlEscape(std::string_view text) {
    std::string out;
    out.reserve(text.size() + 16);
    for (const char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        case '\'':
            out += "&#39;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

std::string jsonString(std::string_view utf8) {
    static constexpr char kHex[] = "0123456789abcdef";
    std::string out = "\"";
    for (const char c : utf8) {
        const auto b = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (b < 0x20 || c == '<' || c == '>' || c == '&' || b == 0x7F) {
            out += "\\u00";
            out += kHex[b >> 4];
            out += kHex[b & 15];
        } else {
            out += c;
        }
    }
    return out + "\"";
}

std::string groupedNumber(long long value) {
    const std::string digits = std::to_string(value < 0 ? -value : value);
    std::string out = value < 0 ? "-" : "";
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) out += '.';
        out += digits[i];
    }
    return out;
}

} // namespace griglione
