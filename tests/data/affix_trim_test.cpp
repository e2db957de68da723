// Trimming Hunspell affix files before expansion: which entries go, which stay, and the file
// that is left (class counts, empty classes, untouched lines).
#include "tools/dictionaries/affix_trim.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace griglione {
namespace {

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> out;
    std::stringstream in(text);
    for (std::string line; std::getline(in, line);)
        out.push_back(line);
    return out;
}

bool has(const std::vector<std::string>& all, const std::string& line) {
    return std::find(all.begin(), all.end(), line) != all.end();
}

const char* const italian = "SET UTF-8\n"
                            "# mangiare e amici\n"
                            "PFX T Y 2\n"
                            "PFX T 0 l' [aeiou]\n"
                            "PFX T 0 ri .\n"
                            "SFX A Y 8\n"
                            "SFX A are o are\n"
                            "SFX A re 0 are\n"
                            "SFX A re vo are\n"
                            "SFX A re va are\n"
                            "SFX A re vi are\n"
                            "SFX A re te are\n"
                            "SFX A are iamo are\n"
                            "SFX A are iamoci are\n"
                            "SFX G Y   2\n"
                            "SFX G are ando are\n"
                            "SFX G re mi are\n"
                            "SFX t Y 4\n"
                            "SFX t re to ire\n"
                            "SFX t re ta ire\n"
                            "SFX t re ti ire\n"
                            "SFX t re tolo ire\n"
                            "SFX V Y 3\n"
                            "SFX V rre co urre\n"
                            "SFX V rre ci urre\n"
                            "SFX V rre ne orre\n"
                            "SFX D Y 2\n"
                            "SFX D 0 mi ndo\n"
                            "SFX D 0 melo ndo\n"
                            "SFX £ Y 1\n"
                            "SFX £ 0 i [ivx]\n";

TEST(AffixTrim, ItalianDropsEncliticPronounsAndKeepsTheTensesThatLookLikeThem) {
    const AffixTrim trim = trimAffixes(italian, italianAffixRules());
    const auto out = lines(trim.text);
    const std::pair<const char*, bool> cases[] = {
        {"PFX T 0 l' [aeiou]", false}, // elided article
        {"PFX T 0 ri .", true},
        {"SFX A re 0 are", true},
        {"SFX A re vi are", true}, // mangiavi: imperfect beside mangiavo, mangiava
        {"SFX A re te are", true}, // mangiate: "te" alone is no pronoun
        {"SFX A are iamo are", true},
        {"SFX A are iamoci are", false}, // mangiamo + ci
        {"SFX G are ando are", true},
        {"SFX G re mi are", false}, // mangia + mi, "mangia" coming from class A
        {"SFX t re ti ire", true},  // finiti: participle beside finito, finita
        {"SFX t re tolo ire", false},
        {"SFX V rre ci urre", true}, // traduci: "ci" after a strip is an ending
        {"SFX V rre ne orre", true}, // pone
        {"SFX D 0 mi ndo", false},   // gerund + mi: a class of nothing else goes whole
        {"SFX £ 0 i [ivx]", false},  // Roman numerals
    };
    for (const auto& [line, kept] : cases)
        EXPECT_EQ(has(out, line), kept) << line;

    EXPECT_TRUE(has(out, "PFX T Y 1"));
    EXPECT_TRUE(has(out, "SFX A Y 7"));
    EXPECT_TRUE(has(out, "SFX G Y 1"));
    EXPECT_TRUE(has(out, "SFX t Y 3"));
    EXPECT_FALSE(has(out, "SFX D Y 0")); // an emptied class loses its header
    EXPECT_FALSE(has(out, "SFX D Y 2"));
    EXPECT_EQ(out[0], "SET UTF-8");
    EXPECT_EQ(out[1], "# mangiare e amici");
    EXPECT_EQ(trim.kept, 15u);
    EXPECT_EQ(trim.dropped, 7u);
    EXPECT_EQ(trim.text.back(), '\n');
    EXPECT_EQ(out.size(), 2u + 5 + trim.kept); // SET, comment, five headers, the entries
}

TEST(AffixTrim, LatinDropsQueNeVeAndContractedPerfects) {
    const char* const latin = "SFX a Y 6\n"
                              "SFX a a a a\n"
                              "SFX a a ae a\n"
                              "SFX a a aque a\n"
                              "SFX a a ane a\n"
                              "SFX a a aue a\n"
                              "SFX a us que us [^i]us\n"
                              "SFX d Y 5\n"
                              "SFX d o o o\n"
                              "SFX d o one o\n"
                              "SFX d o oneque o\n"
                              "SFX d o oque o\n"
                              "SFX d o ove o\n"
                              "SFX P Y 6\n"
                              "SFX P i isti i\n"
                              "SFX P i sti i\n"
                              "SFX P i erunt i\n"
                              "SFX P i runt i\n"
                              "SFX P i runt [^v]i\n"
                              "SFX P vi sti vi\n"
                              "SFX q Y 1\n"
                              "SFX q 0 que .\n";
    const auto out = lines(trimAffixes(latin, latinAffixRules()).text);
    const std::pair<const char*, bool> cases[] =
        {
            {"SFX a a ae a", true},
            {"SFX a a aque a", false},
            {"SFX a a ane a", false},
            {"SFX a a aue a", false},
            {"SFX a us que us [^i]us", false}, // nothing but -que, whatever it strips
            {"SFX d o one o", true},           // legione, ablative: it takes -que itself
            {"SFX d o oneque o", false},
            {"SFX d o oque o", false},
            {"SFX d o ove o", false},
            {"SFX P i isti i", true},
            {"SFX P i sti i", false}, // consilui would give consilusti
            {"SFX P i runt i", false},
            {"SFX P i runt [^v]i", true}, // a twin only under the same condition
            {"SFX P vi sti vi", true},    // amavi → amasti is right
            {"SFX q 0 que .", false},
        };
    for (const auto& [line, kept] : cases)
        EXPECT_EQ(has(out, line), kept) << line;
    EXPECT_TRUE(has(out, "SFX a Y 2"));
    EXPECT_TRUE(has(out, "SFX d Y 2"));
    EXPECT_TRUE(has(out, "SFX P Y 4"));
    EXPECT_FALSE(has(out, "SFX q Y 0"));
}

TEST(AffixTrim, LeavesOtherLinesAndWindowsLineEndsAlone) {
    const std::string text = "TRY abc\r\nSFX x Y 2\r\nSFX x 0 s .\r\nSFX x 0 sque .\r\nREP 0";
    EXPECT_EQ(trimAffixes(text, latinAffixRules()).text,
              "TRY abc\r\nSFX x Y 1\r\nSFX x 0 s .\r\nREP 0");
    EXPECT_EQ(trimAffixes("", latinAffixRules()).text, "");
}

} // namespace
} // namespace griglione
