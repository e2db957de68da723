// The Windows-1252 boundary: accented letters and the typographic block 0x80–0x9F both ways,
// characters outside the code page, and the case changes.
#include "core/ansi_text.h"

#include <gtest/gtest.h>

using namespace griglione;

TEST(AnsiText, ConvertsBothWaysAndChangesCase) {
    const std::pair<std::string, std::string> cases[] = {
        {"città", "citt\xE0"}, {"è", "\xE8"},      {"€", "\x80"}, {"œ", "\x9C"},
        {"“x”", "\x93x\x94"},  {"plain", "plain"}, {"ÿ", "\xFF"}, {"\r\n", "\r\n"},
    };
    for (const auto& [utf8, ansi] : cases) {
        EXPECT_EQ(toAnsi(utf8), ansi) << utf8;
        EXPECT_EQ(fromAnsi(ansi), utf8) << utf8;
    }
    // Outside the code page, bytes that are not UTF-8 at all, and a cut sequence.
    EXPECT_EQ(toAnsi("Ω∑|\xFF|b|a\xC3"), "??|?|b|a?");
    EXPECT_EQ(upperAnsi("brivo \xE0\xE8\xF2\xF7\xFF\x9C"), "BRIVO \xC0\xC8\xD2\xF7\x9F\x8C");
    EXPECT_EQ(lowerAscii("CASA1"), "casa1");
    EXPECT_EQ(upperAscii("casa\xE0"), "CASA\xE0");
}
