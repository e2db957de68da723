// Which words a full length keeps: the ranking by use, and the use of Italian words from lemma
// counts over a text.
#include "tools/dictionaries/use_counts.h"
#include "tools/dictionaries/word_selection.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace griglione {
namespace {

TEST(WordSelection, AFullLengthKeepsTheEarlierTiersThenTheMostUsedWords) {
    std::vector<std::string> common, rare;
    std::map<std::string, long> use;
    for (char a = 'A'; a <= 'Z'; ++a)
        for (char b = 'A'; b <= 'Z'; ++b) {
            common.push_back(std::string{'C', a, b});
            rare.push_back(std::string{'R', a, b});
            use[rare.back()] = a <= 'M' ? 5 : 1; // RA?..RM? used more than RN?..RZ?
        }
    use["RZZ"] = 9;
    WordSelection selection(1000), again(1000);
    selection.setUse(use);
    again.setUse(use);
    EXPECT_EQ(selection.addTier(common) + selection.addTier(rare), 1000u);
    EXPECT_EQ(selection.addTier({"NEW", "ABCD"}), 1u); // three letters are full, four are not
    const auto threes = selection.lists()[0];
    EXPECT_TRUE(std::includes(threes.begin(), threes.end(), common.begin(), common.end()));
    // 324 places for the rare tier: the most used word, then the 13 × 26 used 5 less 14,
    // chosen by hash; none of those used once. Every word left out says its rank and use.
    EXPECT_TRUE(selection.contains("RZZ") && !selection.contains("RNA"));
    EXPECT_EQ(std::count_if(threes.begin(), threes.end(),
                            [&](const std::string& w) { return w[0] == 'R' && use[w] == 5; }),
              323);
    const auto& cut = selection.cut();
    EXPECT_EQ(cut.size(), 676u - 324u + 1u); // and NEW, from the third tier
    for (const auto& [word, why] : cut)
        if (word[0] == 'R') EXPECT_TRUE(why.of == 676 && why.rank > 324 && why.use <= 5) << word;
    EXPECT_EQ(cut.at("RNA").use, 1);
    // The order of a source changes nothing; a later tier that brings a cut word back in takes
    // it off the list of the left out.
    again.addTier(common);
    again.addTier(std::vector<std::string>(rare.rbegin(), rare.rend()));
    EXPECT_EQ(again.lists()[0], threes);
    WordSelection roomy(2000);
    roomy.addTier({"RNA"});
    EXPECT_TRUE(roomy.cut().empty());
}

TEST(LemmaUse, SpreadsTheCountOfALemmaOverItsFormsAndKeepsTheirOwnCountsApart) {
    const auto use = lemmaUse("presi prendere\nprese prendere\nprendere prendere\n"
                              "città città\nvolo volare\nvolo volo\nBar Bar\n",
                              "  7 prese\n  3 prendere\n  2 città\n  4 volo\n 1000 volare\n"
                              "  9 l'acqua\n",
                              "città\nzucchero\n", Language::Italian);
    const std::pair<const char*, long> cases[] = {
        {"PRESE", 10'007},    // lemma prendere: 7 + 3; its own count 7
        {"PRESI", 10'000},    // the same lemma, never met itself
        {"CITTA", 3'002},     // folded; 2 in the text + 1 as a headword
        {"VOLO", 1'004'004},  // the noun and the verb: the more used lemma
        {"ZUCCHERO", 1'000}}; // a headword the text never has
    for (const auto& [word, expected] : cases)
        EXPECT_EQ(use.contains(word) ? use.at(word) : -1, expected) << word;
    EXPECT_FALSE(use.contains("BAR") || use.contains("L'ACQUA") || use.contains("LACQUA"));
}

} // namespace
} // namespace griglione
