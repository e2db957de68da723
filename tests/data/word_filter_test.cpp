// Which source words become dictionary words: folding, refusals, alphabets, Latin spelling; and
// how the selection dedups, sorts, caps and samples.
#include "tools/dictionaries/word_filter.h"
#include "tools/dictionaries/word_selection.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace griglione {
namespace {

TEST(WordFilter, AdmitsFoldsAndRefusesSourceWords) {
    struct Case {
        const char* source;
        Language language;
        const char* expected; // nullptr: refused
    };
    const Case cases[] = {
        {"casa", Language::Italian, "CASA"},
        {"città", Language::Italian, "CITTA"},
        {"perché", Language::Italian, "PERCHE"},
        {"più", Language::Italian, "PIU"},
        {"ventitré", Language::Italian, "VENTITRE"},
        {"cafe\xCC\x81", Language::English, "CAFE"}, // e + combining acute
        {"mediæval", Language::English, "MEDIAEVAL"},
        {"œuvre", Language::English, "OEUVRE"},
        {"ÀNCORA", Language::Italian, nullptr}, // a capital, accented or not, marks a name
        {"Roma", Language::Italian, nullptr},
        {"McDonald", Language::English, nullptr},
        {"NASA", Language::English, nullptr},
        {"dell'acqua", Language::Italian, nullptr},
        {"aardvark's", Language::English, nullptr},
        {"porta-finestra", Language::Italian, nullptr},
        {"mp3", Language::Italian, nullptr},
        {"a.", Language::Latin, nullptr},
        {"due parole", Language::Italian, nullptr},
        {"", Language::Italian, nullptr},
        {"re", Language::Italian, nullptr}, // too short
        {"tre", Language::Italian, "TRE"},
        {"abbassavate", Language::Italian, nullptr},     // 11 letters
        {"abbassammo", Language::Italian, "ABBASSAMMO"}, // 10
        {"piùùùùùùùù", Language::Italian, "PIUUUUUUUU"}, // counted after folding
        {"jazz", Language::Italian, nullptr},
        {"jazz", Language::English, "JAZZ"},
        {"kiwi", Language::Italian, nullptr},
        {"taxi", Language::Italian, nullptr},
        {"yoga", Language::Italian, nullptr},
        {"yoga", Language::Latin, "YOGA"},
        {"\xC3", Language::Italian, nullptr},    // cut UTF-8 sequence
        {"ab\x80z", Language::English, nullptr}, // stray continuation byte
        {"слово", Language::English, nullptr},   // another script
        {"dominus", Language::Latin, "DOMINUS"},
        {"dominvs", Language::Latin, nullptr},
        {"uirum", Language::Latin, nullptr},
    };
    for (const Case& c : cases) {
        const auto word = admitWord(c.source, c.language);
        if (c.expected)
            EXPECT_EQ(word.value_or("<refused>"), c.expected) << c.source;
        else
            EXPECT_FALSE(word) << c.source << " gave " << *word;
    }
}

TEST(WordFilter, LatinKeepsTheSchoolSpellingAndBothWhereItCannotTell) {
    const std::pair<const char*, bool> cases[] = {
        {"AMAVIT", true}, {"AMAUIT", false}, // consonant between vowels
        {"VIRUM", true},  {"UIRUM", false},  // consonant at the start
        {"VIRVM", false}, {"AMATV", false},  // vowel before a consonant, at the end
        {"QUAE", true},   {"QVAE", false},   {"LINGUA", true},  {"LINGVA", false},  {"TUUS", true},
        {"SUAVIS", true}, {"SUAUIS", false}, {"IUVENIS", true}, {"IUUENIS", false}, {"UVA", true},
        {"UUA", false},   {"SILVA", true},   {"SILUA", true}, // after a consonant: either
        {"AESTUO", true}, {"AESTVO", true},  {"RUINA", true},   {"HUIUS", true},
    };
    for (const auto& [word, kept] : cases)
        EXPECT_EQ(schoolLatinSpelling(word), kept) << word;
}

TEST(WordSelection, DedupsAfterFoldingAndSortsByByteValue) {
    std::vector<std::string> words;
    for (const char* source : {"zanna", "città", "citta", "Città", "abaco", "cittá", "casa"})
        if (auto word = admitWord(source, Language::Italian)) words.push_back(*word);
    WordSelection selection;
    selection.addTier(words);
    selection.addTier({"CASA", "ZAINO"});
    const WordLists lists = selection.lists();
    EXPECT_EQ(lists[1], (std::vector<std::string>{"CASA"}));
    EXPECT_EQ(lists[2], (std::vector<std::string>{"ABACO", "CITTA", "ZAINO", "ZANNA"}));
    EXPECT_EQ(selection.size(), 5u);
}

TEST(WordSelection, AFullLengthTakesTheEarlierTiersFirstAndASteadySample) {
    std::vector<std::string> common, rare;
    for (char a = 'A'; a <= 'Z'; ++a)
        for (char b = 'A'; b <= 'Z'; ++b) {
            common.push_back(std::string{'C', a, b});
            rare.push_back(std::string{'R', a, b});
        }
    WordSelection selection(1000);
    EXPECT_EQ(selection.addTier(common), 676u);
    EXPECT_EQ(selection.addTier(rare), 324u);
    EXPECT_EQ(selection.addTier({"NEW", "ABCD"}), 1u); // three letters are full, four are not
    const auto threes = selection.lists()[0];
    ASSERT_EQ(threes.size(), 1000u);
    EXPECT_TRUE(std::is_sorted(threes.begin(), threes.end()));
    EXPECT_TRUE(std::includes(threes.begin(), threes.end(), common.begin(), common.end()));
    // The sample of the last tier is spread over the alphabet, not its first words.
    const auto sampled = [&threes](char from, char to) {
        return std::count_if(threes.begin(), threes.end(), [=](const std::string& w) {
            return w[0] == 'R' && w[1] >= from && w[1] <= to;
        });
    };
    EXPECT_GT(sampled('A', 'M'), 100);
    EXPECT_GT(sampled('N', 'Z'), 100);
    EXPECT_FALSE(std::binary_search(threes.begin(), threes.end(), "NEW"));

    WordSelection again(1000);
    again.addTier(common);
    std::vector<std::string> shuffled(rare.rbegin(), rare.rend());
    again.addTier(shuffled);
    EXPECT_EQ(again.lists()[0], threes); // the order of a source does not change the sample
}

TEST(WordSelection, HashIsFnv1a) {
    EXPECT_EQ(wordHash(""), 2166136261u);
    EXPECT_EQ(wordHash("a"), 0xE40C292Cu);
    EXPECT_EQ(wordHash("foobar"), 0xBF9CF968u);
}

} // namespace
} // namespace griglione
