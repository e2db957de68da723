// Trimming Hunspell affix files before expansion: which entries go, which stay, and the file
// that is left (class counts, empty classes, untouched lines).
#include "tools/dictionaries/affix_trim.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace griglione {
namespace {

// Trims the file made of the lines and checks each entry marked + (kept) or - (dropped); the
// other lines, headers among them, are checked apart. Returns the lines of the result.
std::vector<std::string> trimmedLines(const std::vector<std::string>& file,
                                      const AffixRules& rules) {
    std::string text;
    for (const std::string& line : file)
        text += (line[0] == '+' || line[0] == '-' ? line.substr(1) : line) + '\n';
    std::vector<std::string> out;
    std::stringstream in(trimAffixes(text, rules).text);
    for (std::string line; std::getline(in, line);)
        out.push_back(line);
    for (const std::string& line : file) {
        if (line[0] != '+' && line[0] != '-') continue;
        EXPECT_EQ(std::find(out.begin(), out.end(), line.substr(1)) != out.end(), line[0] == '+')
            << line;
    }
    return out;
}

bool has(const std::vector<std::string>& all, const std::string& line) {
    return std::find(all.begin(), all.end(), line) != all.end();
}

TEST(AffixTrim, ItalianDropsEncliticPronounsAndKeepsTheTensesThatLookLikeThem) {
    const auto out = trimmedLines(
        {"SET UTF-8", "PFX T Y 2", "-PFX T 0 l' [aeiou]", "+PFX T 0 ri .", // elided article
         "SFX A Y 8", "+SFX A are o are", "+SFX A re 0 are", "+SFX A re vo are", "+SFX A re va are",
         // mangiavi: imperfect beside mangiavo, mangiava; mangiate: "te" alone is no pronoun;
         // mangiamo + ci goes.
         "+SFX A re vi are", "+SFX A re te are", "+SFX A are iamo are", "-SFX A are iamoci are",
         // mangia + mi goes, "mangia" coming from class A.
         "SFX G Y   2", "+SFX G are ando are", "-SFX G re mi are",
         // finiti: participle beside finito, finita.
         "SFX t Y 4", "+SFX t re to ire", "+SFX t re ta ire", "+SFX t re ti ire",
         "-SFX t re tolo ire",
         // traduci: "ci" after a strip is an ending; pone.
         "SFX V Y 3", "+SFX V rre co urre", "+SFX V rre ci urre", "+SFX V rre ne orre",
         // Gerund + mi: a class of nothing else goes whole; Roman numerals.
         "SFX D Y 2", "-SFX D 0 mi ndo", "-SFX D 0 melo ndo", "SFX £ Y 1", "-SFX £ 0 i [ivx]"},
        italianAffixRules());
    EXPECT_TRUE(has(out, "SET UTF-8") && has(out, "PFX T Y 1") && has(out, "SFX A Y 7"));
    EXPECT_FALSE(has(out, "SFX D Y 0") || has(out, "SFX D Y 2")); // an emptied class goes whole
}

TEST(AffixTrim, LatinDropsQueNeVeAndContractedPerfectsAndLeavesOtherLinesAlone) {
    const auto out = trimmedLines(
        // Nothing but -que, whatever it strips.
        {"SFX a Y 6", "+SFX a a a a", "+SFX a a ae a", "-SFX a a aque a", "-SFX a a ane a",
         "-SFX a a aue a", "-SFX a us que us [^i]us",
         // The ligature is the ending ae; legione, ablative, takes -que itself.
         "SFX d Y 6", "+SFX d o o o", "+SFX d o ae o", "-SFX d o æque o", "+SFX d o one o",
         "-SFX d o oneque o", "-SFX d o ove o",
         // consilui would give consilusti; a twin only under the same condition; amavi → amasti
         // is right.
         "SFX P Y 10", "+SFX P i isti i", "-SFX P i sti i", "+SFX P i erunt i", "-SFX P i runt i",
         "+SFX P i runt [^v]i", "+SFX P vi sti vi",
         // amavit, not amait; audiit beside audivit is right.
         "+SFX P o avit o", "-SFX P o ait o", "+SFX P o ivit o", "+SFX P o iit o"},
        latinAffixRules());
    EXPECT_TRUE(has(out, "SFX a Y 2") && has(out, "SFX d Y 3") && has(out, "SFX P Y 7"));
    // Other lines and Windows line ends are left alone.
    const std::string text = "TRY abc\r\nSFX x Y 2\r\nSFX x 0 s .\r\nSFX x 0 sque .\r\nREP 0";
    EXPECT_EQ(trimAffixes(text, latinAffixRules()).text,
              "TRY abc\r\nSFX x Y 1\r\nSFX x 0 s .\r\nREP 0");
    EXPECT_EQ(trimAffixes("", latinAffixRules()).text, "");
}

} // namespace
} // namespace griglione
