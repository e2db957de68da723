// Trimming Hunspell affix files before expansion: which entries go, which stay, and the file
// that is left (class counts, empty classes, untouched lines).
#include "tools/dictionaries/affix_trim.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace griglione {
namespace {

struct Line {
    const char* text;
    int kept; // 1 kept, 0 dropped, -1 a header or another line, checked apart
};

// Trims the file made of the lines and checks each entry; returns the lines of the result.
std::vector<std::string> trimmedLines(const std::vector<Line>& file, const AffixRules& rules) {
    std::string text;
    for (const Line& line : file)
        text += std::string(line.text) + '\n';
    std::vector<std::string> out;
    std::stringstream in(trimAffixes(text, rules).text);
    for (std::string line; std::getline(in, line);)
        out.push_back(line);
    for (const Line& line : file) {
        if (line.kept < 0) continue;
        EXPECT_EQ(std::find(out.begin(), out.end(), line.text) != out.end(), line.kept == 1)
            << line.text;
    }
    return out;
}

bool has(const std::vector<std::string>& all, const std::string& line) {
    return std::find(all.begin(), all.end(), line) != all.end();
}

TEST(AffixTrim, ItalianDropsEncliticPronounsAndKeepsTheTensesThatLookLikeThem) {
    const auto out = trimmedLines(
        {
            {"SET UTF-8", -1},
            {"PFX T Y 2", -1},
            {"PFX T 0 l' [aeiou]", 0}, // elided article
            {"PFX T 0 ri .", 1},
            {"SFX A Y 8", -1},
            {"SFX A are o are", 1},
            {"SFX A re 0 are", 1},
            {"SFX A re vo are", 1},
            {"SFX A re va are", 1},
            {"SFX A re vi are", 1}, // mangiavi: imperfect beside mangiavo, mangiava
            {"SFX A re te are", 1}, // mangiate: "te" alone is no pronoun
            {"SFX A are iamo are", 1},
            {"SFX A are iamoci are", 0}, // mangiamo + ci
            {"SFX G Y   2", -1},
            {"SFX G are ando are", 1},
            {"SFX G re mi are", 0}, // mangia + mi, "mangia" coming from class A
            {"SFX t Y 4", -1},
            {"SFX t re to ire", 1},
            {"SFX t re ta ire", 1},
            {"SFX t re ti ire", 1}, // finiti: participle beside finito, finita
            {"SFX t re tolo ire", 0},
            {"SFX V Y 3", -1},
            {"SFX V rre co urre", 1},
            {"SFX V rre ci urre", 1}, // traduci: "ci" after a strip is an ending
            {"SFX V rre ne orre", 1}, // pone
            {"SFX D Y 2", -1},
            {"SFX D 0 mi ndo", 0}, // gerund + mi: a class of nothing else goes whole
            {"SFX D 0 melo ndo", 0},
            {"SFX £ Y 1", -1},
            {"SFX £ 0 i [ivx]", 0}, // Roman numerals
        },
        italianAffixRules());
    EXPECT_TRUE(has(out, "SET UTF-8") && has(out, "PFX T Y 1") && has(out, "SFX A Y 7"));
    EXPECT_FALSE(has(out, "SFX D Y 0") || has(out, "SFX D Y 2")); // an emptied class goes whole
}

TEST(AffixTrim, LatinDropsQueNeVeAndContractedPerfects) {
    const auto out = trimmedLines(
        {
            {"SFX a Y 6", -1},
            {"SFX a a a a", 1},
            {"SFX a a ae a", 1},
            {"SFX a a aque a", 0},
            {"SFX a a ane a", 0},
            {"SFX a a aue a", 0},
            {"SFX a us que us [^i]us", 0}, // nothing but -que, whatever it strips
            {"SFX d Y 6", -1},
            {"SFX d o o o", 1},
            {"SFX d o ae o", 1},
            {"SFX d o æque o", 0}, // the ligature is the ending ae
            {"SFX d o one o", 1},  // legione, ablative: it takes -que itself
            {"SFX d o oneque o", 0},
            {"SFX d o ove o", 0},
            {"SFX P Y 10", -1},
            {"SFX P i isti i", 1},
            {"SFX P i sti i", 0}, // consilui would give consilusti
            {"SFX P i erunt i", 1},
            {"SFX P i runt i", 0},
            {"SFX P i runt [^v]i", 1}, // a twin only under the same condition
            {"SFX P vi sti vi", 1},    // amavi → amasti is right
            {"SFX P o avit o", 1},
            {"SFX P o ait o", 0}, // amavit, not amait
            {"SFX P o ivit o", 1},
            {"SFX P o iit o", 1}, // audiit beside audivit is right
        },
        latinAffixRules());
    EXPECT_TRUE(has(out, "SFX a Y 2") && has(out, "SFX d Y 3") && has(out, "SFX P Y 7"));
}

TEST(AffixTrim, LeavesOtherLinesAndWindowsLineEndsAlone) {
    const std::string text = "TRY abc\r\nSFX x Y 2\r\nSFX x 0 s .\r\nSFX x 0 sque .\r\nREP 0";
    EXPECT_EQ(trimAffixes(text, latinAffixRules()).text,
              "TRY abc\r\nSFX x Y 1\r\nSFX x 0 s .\r\nREP 0");
    EXPECT_EQ(trimAffixes("", latinAffixRules()).text, "");
}

} // namespace
} // namespace griglione
