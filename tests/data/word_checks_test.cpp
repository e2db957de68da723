// The outside checkers of the word lists: whitakers-words analyses of Latin forms (real output,
// trimmed to the lines that matter) and WordNet's view of English abbreviations.
#include "tools/dictionaries/whitaker_check.h"
#include "tools/dictionaries/wordnet_abbreviations.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

TEST(WhitakerCheck, JudgesEachAnalysisByEntryAgeInflectionAndMeaning) {
    const WhitakerRules rules{{"pathicus"}, {"corvus"}};
    const std::pair<const char*, LatinVerdict> cases[] = {
        {"\nten.ete   V  2 1 PRES ACTIVE  IMP 2 P\nteneo, tenere, tenui, tentus  V (2nd)   "
         "[XXXAX]\n"
         "hold, keep;\n",
         LatinVerdict::Classical},
        {"ferram                         ========   UNKNOWN    \n", LatinVerdict::Unknown},
        // Later Latin; a proper name; an inscription-only word.
        {"\nbenedic.at  V  3 1 PRES ACTIVE  SUB 3 S\nbenedico, benedicere  V (3rd)   [EEXAX]  "
         "Later\n",
         LatinVerdict::NotClassical},
        {"\ncaesar  N  3 1 NOM S M\nCaesar, Caesaris  N (3rd) M   [XLXBO]\n",
         LatinVerdict::NotClassical},
        {"\nfoo.s  N  3 1 NOM S M\nfoos, foi  N (3rd) M   [XXXIO]\n", LatinVerdict::NotClassical},
        {"\nkar.us  ADJ  1 1 NOM S M POS\nkarus, kara -um  ADJ   [XXXAO]\n",
         LatinVerdict::NotClassical},
        // A verb with the dative takes no personal passive; the impersonal one is Latin.
        {"\nnoc.eantur  V  2 1 PRES PASSIVE SUB 3 P\nnoceo, nocere  V (2nd)   [XXXAX]\n"
         "harm, hurt; injure (with DAT);\n",
         LatinVerdict::NotClassical},
        {"\nnoc.eatur  V  2 1 PRES PASSIVE SUB 3 S\nnoceo, nocere  V (2nd)   [XXXAX]\n"
         "harm, hurt; injure (with DAT);\n",
         LatinVerdict::Classical},
        {"\nlic.etote  V  2 1 FUT  ACTIVE  IMP 2 P\nlicet, licere  V (2nd) IMPERS   [XXXAX]\n",
         LatinVerdict::NotClassical},
        {"\nval.ebimur  V  2 1 FUT  PASSIVE IND 1 P\nvaleo, valere  V (2nd)   [XXXAX]\n"
         "be strong, be well;\n",
         LatinVerdict::NotClassical},
        {"\nsaevi.endus  VPAR  3 4 NOM S M FUT  PASSIVE PPL\nsaevio  V (4th) INTRANS   [XXXBO]\n",
         LatinVerdict::NotClassical},
        // The -endus gerundive is classical whatever the inflection line says.
        {"\nleg.endo  VPAR  3 1 DAT S M FUT  PASSIVE PPL  Late\nlego, legere  V (3rd)   [XXXAX]\n",
         LatinVerdict::Classical},
        {"\nfut.uro  V  3 1 FUT ACTIVE IND 1 S  Medieval\nfuturo, futurare  V (3rd)  [XXXAX]\n",
         LatinVerdict::NotClassical},
        // Rude by its meaning, by our list, unless our list says the word is decent.
        {"\nmerd.a  N  1 1 NOM S F\nmerda, merdae  N (1st) F   [XXXDX]\ndung, excrement; (rude);\n",
         LatinVerdict::Rude},
        {"\npathic.us  ADJ  1 1 NOM S M POS\npathicus, pathica -um  ADJ   [XXXCO]\n",
         LatinVerdict::Rude},
        {"\ncorv.us  N  2 1 NOM S M\ncorvus, corvi  N (2nd) M   [XAXBO]\nraven;\n"
         "military engine; fellator (rude) (L+S);\n",
         LatinVerdict::Classical},
        // An enclitic glued to a form; -que completing a pronoun, or a word that takes it.
        {"\nque  TACKON\n-que = and (enclitic);\nros.a  N  1 1 NOM S F\nrosa, rosae  N (1st) F "
         "  [XXXBO]\nrose;\n",
         LatinVerdict::NotClassical},
        {"\nque  TACKON\nPACKON w/qui => whoever;\nqu.is  PRON  1 0 NOM S C\nqu  PACK   [XXXAX]\n"
         "(w/-que) each;\n",
         LatinVerdict::Classical},
        {"\nque  TACKON\n-que = and;\nuter  ADJ  1 4 NOM S M POS\nuter, utra, utrum  ADJ  "
         "[XXXAO]\nwhich (of two); (w/que) each/either (of two);\n",
         LatinVerdict::Classical},
    };
    for (const auto& [block, verdict] : cases)
        EXPECT_EQ(judgeWhitakerBlock(block, rules), verdict) << block;
}

TEST(WhitakerCheck, SplitsTheOutputIntoOneBlockPerWordOrNone) {
    const std::string output =
        "Copyright\n=>To set/change parameters\nTRIM_OUTPUT ?  (Currently Y =>\n"
        "=>To set developer modes\nPAUSE =>Blank Input\n=>\nam.o  V\n\n"
        "=>ferram   ========   UNKNOWN\n\n=>Raised END_ERROR\nGiving up!\n";
    const auto blocks = whitakerBlocks(output, 2);
    ASSERT_EQ(blocks.size(), 2u);
    EXPECT_EQ(blocks[0], "\nam.o  V\n");
    EXPECT_TRUE(blocks[1].starts_with("ferram"));
    EXPECT_TRUE(whitakerBlocks(output, 3).empty()); // a word without its analysis
}

TEST(WordNetAbbreviations, FindsAcronymsAndCutOffWordsButNoWordOrForm) {
    WordNetLexicon lexicon;
    lexicon.addDataFile("  1 This software and database is being provided\n"
                        "00034137 02 r 01 ASAP 0 000 | as soon as possible\n"
                        "00001 05 n 02 crystal 0 system 0 000 | a solid\n"
                        "00002 05 n 01 goose 0 000 | a bird\n"
                        "00003 05 v 02 shag 0 crystallize(a) 0 000 | to chase\n"
                        "00004 05 n 01 AIDS 0 000 | a disease\n00005 05 n 01 aid 0 000 | help\n");
    lexicon.addExceptions("geese goose\n");
    const std::vector<std::string> words = {"asap",     "cryst", "syst", "geese",  "shagged",
                                            "crystals", "aids",  "crys", "systic", "cat"};
    EXPECT_EQ(lexicon.abbreviations(words, {"cat"}),
              (std::vector<std::string>{"asap", "cryst", "syst"}));
}

} // namespace
} // namespace griglione
