// Windows-1252 is Latin-1 except for 0x80–0x9F, which hold typographic signs and a few letters.
#include "core/ansi_text.h"

#include <array>
#include <cstdint>

namespace griglione {
namespace {

constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t codePointOf(unsigned char byte) {
    if (byte >= 0x80 && byte <= 0x9F) return kHighControls[byte - 0x80];
    return byte;
}

int byteOf(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<int>(cp);
    for (int i = 0; i < 32; ++i)
        if (kHighControls[i] == cp) return 0x80 + i;
    return -1;
}

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

unsigned char upperByte(unsigned char b) {
    if (b >= 'a' && b <= 'z') return static_cast<unsigned char>(b - 32);
    if (b == 0x9A || b == 0x9C || b == 0x9E) return static_cast<unsigned char>(b - 0x10);
    if (b == 0xFF) return 0x9F;
    if (b >= 0xE0 && b <= 0xFE && b != 0xF7) return static_cast<unsigned char>(b - 32);
    return b;
}

} // namespace

std::string fromAnsi(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (char c : bytes)
        appendUtf8(out, codePointOf(static_cast<unsigned char>(c)));
    return out;
}

std::string toAnsi(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        char32_t cp = 0;
        int extra = 0;
        if (lead < 0x80) {
            cp = lead;
        } else if ((lead & 0xE0) == 0xC0) {
            cp = lead & 0x1F;
            extra = 1;
        } else if ((lead & 0xF0) == 0xE0) {
            cp = lead & 0x0F;
            extra = 2;
        } else if ((lead & 0xF8) == 0xF0) {
            cp = lead & 0x07;
            extra = 3;
        } else {
            out += '?';
            ++i;
            continue;
        }
        bool valid = true;
        for (int k = 1; valid && k <= extra; ++k) {
            if (i + k >= utf8.size()) {
                valid = false;
                break;
            }
            const auto next = static_cast<unsigned char>(utf8[i + k]);
            if ((next & 0xC0) != 0x80) valid = false;
            cp = (cp << 6) | (next & 0x3F);
        }
        if (!valid) {
            out += '?';
            ++i;
            continue;
        }
        i += extra + 1;
        const int b = byteOf(cp);
        out += b < 0 ? '?' : static_cast<char>(b);
    }
    return out;
}

std::string upperAnsi(std::string_view bytes) {
    std::string out(bytes);
    for (char& c : out)
        c = static_cast<char>(upperByte(static_cast<unsigned char>(c)));
    return out;
}

bool fitsAnsi(std::string_view utf8) {
    return fromAnsi(toAnsi(utf8)) == utf8;
}

std::string upperAnsiText(std::string_view utf8) {
    return fromAnsi(upperAnsi(toAnsi(utf8)));
}

std::string lowerAscii(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return out;
}

std::string upperAscii(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    return out;
}

std::string trimmed(std::string_view text, std::string_view blanks) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

} // namespace griglione
