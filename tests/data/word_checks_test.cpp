// The outside checkers of the word lists: whitakers-words analyses of Latin forms (real output,
// trimmed to the lines that matter) and WordNet's view of English abbreviations.
#include "tools/dictionaries/whitaker_check.h"
#include "tools/dictionaries/wordnet_abbreviations.h"

#include <gtest/gtest.h>

#include <map>

namespace griglione {
namespace {

#define DEP "hortor, hortari, hortatus sum  V (1st) DEP   [XXXBX]\nencourage;\n"
#define SYNCOPE "\nSyncope   r => v.r\nSyncopated perfect often drops the 'v'\n"

TEST(WhitakerCheck, JudgesEachAnalysisByEntryAgeInflectionAndMeaning) {
    const WhitakerRules rules{{"pathicus"},
                              {"corvus"},
                              {"Deus"},
                              {"gnosco"},
                              {{"ADORIO", 1}, {"ADORIOR", 63}, {"MEREO", 234}, {"MEREOR", 145}}};
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
        // A deponent has passive shapes only (WORDS leaves their voice blank); a semi-deponent
        // no passive at all.
        {"\nhort.at  V  1 1 PRES  IND 3 S\n" DEP, LatinVerdict::NotClassical},
        {"\nhort.atur  V  1 1 PRES  IND 3 S\n" DEP, LatinVerdict::Classical},
        {"\nhort.ari  V  1 1 PRES  INF 0 X\n" DEP, LatinVerdict::Classical},
        {"\nsequ.endi  VPAR  3 1 GEN S N FUT  PPL  Late\nsequor, sequi  V (3rd) DEP   [XXXAO]\n"
         "follow;\n",
         LatinVerdict::Classical},
        {"\nmir.or  V  1 1 PRES PASSIVE IND 1 S\nmiror, mirari  V (1st) DEP   [XXXBO]\n"
         "be amazed;\n",
         LatinVerdict::Classical},
        {"\naud.ebatur  V  2 1 IMPF PASSIVE IND 3 S\naudeo, audere  V (2nd) SEMIDEP   [XXXAO]\n"
         "dare;\n",
         LatinVerdict::NotClassical},
        {"\naus.isset  V  2 1 PLUP ACTIVE SUB 3 S\naudeo, audere  V (2nd) SEMIDEP   [XXXAO]\n"
         "dare;\n",
         LatinVerdict::NotClassical},
        // The archaic gerundive in -undus and infinitive in -ier; an early entry; a rare one.
        {"\nabduc.unda  VPAR  3 1 NOM S F FUT  PASSIVE PPL  Early\nabduco, abducere  V (3rd) "
         "TRANS   [XXXAO]\n",
         LatinVerdict::NotClassical},
        {"\nrefug.ier  V  3 1 PRES PASSIVE INF 0 X  Early\nrefugio, refugere  V (3rd)   [XXXBX]\n",
         LatinVerdict::NotClassical},
        {"\ncar.emus  V  2 1 PRES ACTIVE IND 1 P\ncareor, careri  V (2nd) DEP   [BXXAS]  Early\n",
         LatinVerdict::NotClassical},
        {"\ncar.et  V  3 1 PRES ACTIVE IND 3 S\ncaro, carere, -, -  V (3rd) TRANS   [XAXEO]\n",
         LatinVerdict::NotClassical},
        // No object: no supine, a motion, a meaning shared with the entry above.
        {"\npat.entur  V  2 1 PRES PASSIVE IND 3 P\npateo, patere, patui, -  V (2nd)   [XXXAX]\n"
         "stand open, be open;\n",
         LatinVerdict::NotClassical},
        {"\nveni.or  V  4 1 PRES PASSIVE IND 1 S\nvenio, venire, veni, ventus  V (4th)   "
         "[XXXAX]\ncome;\n",
         LatinVerdict::NotClassical},
        {"\nven.itur  V  4 1 PRES PASSIVE IND 3 S\nvenio, venire, veni, ventus  V (4th)   "
         "[XXXAX]\ncome;\n",
         LatinVerdict::Classical},
        {"\nflu.itor  V  3 1 FUT  PASSIVE IMP 3 S\nfluo, fluere  V (3rd)   [XXXAX]\nflow;\n",
         LatinVerdict::NotClassical},
        {"\next.anda  VPAR  1 1 NOM P N FUT  PASSIVE PPL\nexto, extare, extiti, -  V (1st)   "
         "[XXXDX]\nstand out;\n",
         LatinVerdict::NotClassical},
        {"\nquam  TACKON\nPACKON w/quis => any;\nqu.as  PRON  1 0 ACC P F\nqu  PACK   [XXXAX]\n"
         "(w/-quam) any, anyone (no pl.);\n",
         LatinVerdict::NotClassical},
        {"\ncar.emur  V  2 1 PRES PASSIVE IND 1 P\ncareo, carere, carui, caritus  V (2nd)   "
         "[XXXAO]\ncareor, careri  V (2nd) DEP   [BXXAS]  Early\nbe without;\n",
         LatinVerdict::NotClassical},
        // The future imperative of a rare verb; idem's -dem; Deus, a god.
        {"\nlic.etote  V  2 1 FUT  ACTIVE  IMP 2 P\nliceo, licere  V (2nd) TRANS   [XXXDX]\n",
         LatinVerdict::NotClassical},
        {"\nam.atote  V  1 1 FUT  ACTIVE  IMP 2 P\namo, amare  V (1st)   [XXXAO]\nlove;\n",
         LatinVerdict::Classical},
        {"\ndem  TACKON\nTACKON w/i-ea-id   idem => same;\ne.ius  PRON  4 2 GEN S X\nidem, "
         "eadem, idem  PRON   [XXXAX]\n(w/-dem ONLY, idem, eadem, idem) same;\n",
         LatinVerdict::Classical},
        {"\nde.o  N  2 1 DAT S M\nDeus, Dei  N (2nd) M   [XEXAO]\nGod; god;\n",
         LatinVerdict::Classical},
        // WORDS's readings: a contracted perfect of a -vi perfect, not of a stem in v nor a
        // future perfect; no spelling trick (co for con); no archaic spelling; no early and rare
        // inflection (faxim), though an early one alone is classical (artubus).
        {SYNCOPE "amav.isti  V  1 1 PERF ACTIVE IND 2 S\namo, amare, amavi, amatus  V (1st)   "
                 "[XXXAO]\nlove;\n",
         LatinVerdict::Classical},
        {SYNCOPE "cav.erit  V  2 1 FUTP ACTIVE IND 3 S\ncaveo, cavere, cavi, cautus  V (2nd)   "
                 "[XXXAO]\nbeware;\n",
         LatinVerdict::NotClassical},
        {SYNCOPE "lev.istis  V  3 1 PERF ACTIVE IND 2 P\nlino, linere, levi, litus  V (3rd) TRANS "
                 "  [XXXCO]\nsmear;\n",
         LatinVerdict::NotClassical},
        {SYNCOPE "calav.ero  V  1 1 FUTP ACTIVE IND 1 S\ncalo, calare, calavi, calatus  V (1st) "
                 "  [XXXCO]\nannounce;\n",
         LatinVerdict::NotClassical},
        {"\nWord mod co/con\nAn initial 'co' may be rendered by 'con'\nconven.it  V  4 1 "
         "PRES ACTIVE IND 3 S\nconvenio, convenire  V (4th)   [XXXAO]\nmeet;\nconvenit, "
         "convenire  V (4th) IMPERS   [XXXCO]\nit agrees;\n",
         LatinVerdict::NotClassical}, // covenit: the note holds for both entries
        {"\ngnosc.aris  V  3 1 PRES PASSIVE SUB 2 S\ngnosco, gnoscere  V (3rd) TRANS   "
         "[XXXAO]\nget to know;\n",
         LatinVerdict::NotClassical},
        {"\nfax.itis  V  8 3 PERF ACTIVE  SUB 2 P  Early  infreq\nfacio, facere, additional, "
         "forms  V   [XXXBX]\ndo, make;\n",
         LatinVerdict::NotClassical},
        {"\nart.ubus  N  4 1 DAT P M  Early\nartus, artus  N (4th) M   [XXXBO]\njoint;\n",
         LatinVerdict::Classical},
        // An active twin far rarer than its deponent: by WORDS's code (miro C, miror B), or by
        // Collatinus (adorio 1, adorior 63); mereo (234) beside mereor (145) is a word.
        {"\nmir.em  V  1 1 PRES ACTIVE SUB 1 S\nmiro, mirare  V (1st)   [XXXCO]\nmiror, mirari "
         " V (1st) DEP   [XXXBO]\nbe amazed;\n",
         LatinVerdict::NotClassical},
        {"\nadori.unt  V  4 1 PRES ACTIVE IND 3 P\nadorio, adorire  V (4th) TRANS   [XWXBO]\n"
         "adorior, adoriri  V (4th) DEP   [XWXBO]\nassail;\n",
         LatinVerdict::NotClassical},
        {"\nmer.et  V  2 1 PRES ACTIVE IND 3 S\nmereo, merere  V (2nd)   [XXXAO]\nmereor, "
         "mereri  V (2nd) DEP   [XXXAO]\nearn;\n",
         LatinVerdict::Classical},
    };
    for (const auto& [block, verdict] : cases)
        EXPECT_EQ(judgeWhitakerBlock(block, rules), verdict) << block;
    EXPECT_EQ(judgeWhitakerBlock("\nde.o  N  2 1 DAT S M\nDeus, Dei  N (2nd) M   [XEXAO]\n", {}),
              LatinVerdict::NotClassical);
}

// The use of a Latin form: Collatinus's count of its headword, WORDS's frequency code as a
// floor and tie-break, its everyday forms before the rare ones.
TEST(WhitakerCheck, RanksAFormByItsLemmaCountFrequencyAndKindOfForm) {
    const std::map<std::string, long> counts = {{"AMO", 809}, {"PARO", 1}, {"UOLO", 50}};
    const std::pair<const char*, long> cases[] = {
        {"\nam.at  V  1 1 PRES ACTIVE IND 3 S\namo, amare  V (1st)   [XXXAO]\nlove;\n", 80'951},
        {"\nam.averit  V  1 1 FUTP ACTIVE IND 3 S\namo, amare  V (1st)   [XXXAO]\nlove;\n", 80'950},
        {"\npar.at  V  1 1 PRES ACTIVE IND 3 S\nparo, parare  V (1st)   [XXXAO]\nprepare;\n",
         80'051}, // Collatinus counts 1: the floor of frequency A
        {"\nvol.at  V  1 1 PRES ACTIVE IND 3 S\nvolo, volare  V (1st)   [XXXDX]\nfly;\n",
         5'021}, // written uolo in Collatinus
        {"\nferram   ========   UNKNOWN\n", 0}};
    for (const auto& [block, use] : cases)
        EXPECT_EQ(latinUse(block, {}, counts), use) << block;
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
