// Which source words become dictionary words: folding, refusals, alphabets, Latin spelling, the
// excluded words and their forms; and how the selection dedups, sorts, caps and samples.
#include "tools/dictionaries/word_exclusion.h"
#include "tools/dictionaries/word_filter.h"
#include "tools/dictionaries/word_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace griglione {
namespace {

TEST(WordFilter, AdmitsFoldsAndRefusesSourceWords) {
    const Language it = Language::Italian, la = Language::Latin;
    // Folded: combining accents dropped, the length counted after folding.
    for (const auto& [source, expected] :
         {std::pair{"perché", "PERCHE"}, {"cafe\xCC\x81", "CAFE"}, {"piùùùùùùùù", "PIUUUUUUUU"}})
        EXPECT_EQ(admitWord(source, it).value_or(""), expected) << source;
    // Refused: a capital, accented or not, marks a name; too short, 11 letters; a cut UTF-8
    // sequence, a stray continuation byte, another script.
    for (const char* word :
         {"ÀNCORA", "dell'acqua", "mp3", "re", "abbassavate", "yoga", "\xC3", "ab\x80z", "слово"})
        EXPECT_FALSE(admitWord(word, it)) << word;
    // Latin in all 26 letters and in the school spelling, V for the consonant and U for the vowel;
    // both where a letter after a consonant and before a vowel can be either.
    for (const char* word : {"yoga", "amavit", "suavis", "silva", "silua"})
        EXPECT_TRUE(admitWord(word, la)) << word;
    for (const char* word : {"amauit", "uirum", "virvm", "amatv", "qvae", "iuuenis"})
        EXPECT_FALSE(admitWord(word, la)) << word;
}

TEST(WordExclusion, RefusesListWordsWithTheirFormsWholeWordsOnlyUnlessAllowed) {
    WordExclusion english(Language::English), italian(Language::Italian);
    for (const char* word : {"slut", "bitch", "hussy", "dago", "spic"})
        english.block(word);
    for (const char* word : {"NEGRO", "mona lisa", "fottere", "cagare", "pisciare", "chiavare"})
        italian.block(word); // a list in capitals; a phrase is no word
    // Lines 5 and 6 are not understood.
    EXPECT_EQ(italian.readList("# comment\nblock it,la  crucco terrone # the rest is a comment\n"
                               "block en frocio\nallow * chiavare\r\nallow it\nkeep it casa\n"
                               "allow la,it brr vii\n"),
              (std::vector<int>{5, 6}));
    const std::tuple<const WordExclusion&, const char*, Refusal> cases[] = {
        {english, "SLUT SLUTS BITCHES HUSSIES DAGOS DAGOES SPICS", Refusal::Listed},
        {english, "SLUTES SPICES SWOP DAYS", Refusal::None},
        {italian, "NEGRI CRUCCHI CRUCCA CRUCCHE TERRONI TERRONA", Refusal::Listed},
        {italian, "FOTTEI FOTTUTO CAGHERO CAGHI PISCIAMO PISCI", Refusal::Listed},
        {italian, "CRUCCI CAGERO PISCIIAMO FOTTERELLO MONA FROCIO", Refusal::None},
        {italian, "CHIAVARE CHIAVI BRR VII", Refusal::None}, // allowed, with their forms
        {italian, "TBC HTTP", Refusal::NoVowel},
        {english, "III XIV XXXVIII DIV MMMCMXCIX MIX CIV", Refusal::RomanNumeral},
        {english, "IIII IC VIIII CIVIL LIVID MILD DIM", Refusal::None},
    };
    for (const auto& [exclusion, list, refusal] : cases) {
        std::istringstream words(list);
        for (std::string word; words >> word;)
            EXPECT_EQ(exclusion.refusal(word), refusal) << word;
    }
}

TEST(WordSelection, AFullLengthTakesTheEarlierTiersFirstAndASteadySample) {
    std::vector<std::string> common, rare;
    for (char a = 'A'; a <= 'Z'; ++a)
        for (char b = 'A'; b <= 'Z'; ++b) {
            common.push_back(std::string{'C', a, b});
            rare.push_back(std::string{'R', a, b});
        }
    WordSelection selection(1000), again(1000);
    EXPECT_EQ(selection.addTier(common) + selection.addTier(rare), 1000u);
    EXPECT_EQ(selection.addTier({"NEW", "ABCD"}), 1u); // three letters are full, four are not
    const auto threes = selection.lists()[0];
    EXPECT_TRUE(std::includes(threes.begin(), threes.end(), common.begin(), common.end()));
    // The sample of the last tier is spread over the alphabet, not its first words.
    for (const char half : {'A', 'N'})
        EXPECT_GT(std::count_if(threes.begin(), threes.end(),
                                [=](const std::string& w) {
                                    return w[0] == 'R' && w[1] >= half && w[1] < half + 13;
                                }),
                  100);
    again.addTier(common);
    again.addTier(std::vector<std::string>(rare.rbegin(), rare.rend()));
    EXPECT_EQ(again.lists()[0], threes); // the order of a source does not change the sample
}

} // namespace
} // namespace griglione
