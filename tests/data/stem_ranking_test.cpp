// Reading Collatinus's lemma counts and splitting Hunspell stems into groups by them.
#include "tools/dictionaries/stem_ranking.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

// Lines as lemmes.la writes them: quantity marks, combining breves, homograph numbers,
// radical lists, proper names, comments.
const char* const lemmes =
    "! lemmes.la\n!Version 1\nămo|amo|||as, are|809\n"
    "lĕgo|lego|lēg|lēct|is, ere, legi, lectum|619\nlēgo2|amo|||as, are|12\n"
    "lĕgĭo=lĕgĭō̆|miles|lĕgĭōn||onis, f.|1283\r\nĕo|eo|ĭ,īv|ĭt|is, ire, iui, itum|1447\n"
    "ā=ā,ăb,ābs|inv|||prép. + abl.|5874\nĂbās|ciuis|Ăbānt||antis, m.|5\n"
    "broken line\nvĭr|puer|||uiri, m.|2702\n";

TEST(StemRanking, CountsEveryFormAStemOfTheLemmaMayTakeAndSplitsTheStemsByCount) {
    const auto counts = latinLemmaCounts(lemmes);
    const std::pair<const char*, long> cases[] = {
        {"AMO", 809},    {"LEGO", 619},      // the larger count of two homographs
        {"LEGI", 619},   {"LECTUM", 619},    // perfect and supine from the radicals
        {"LEGIO", 1283}, {"LEGIONIS", 1283}, // genitive from the radical
        {"II", 1447},    {"IVI", 1447},      {"ITUM", 1447}, {"ABS", 5874}, {"VIR", 2702}};
    for (const auto& [form, count] : cases)
        EXPECT_EQ(counts.contains(form) ? counts.at(form) : -1, count) << form;
    for (const char* form : {"ABAS", "LEGO2", "BROKEN LINE"}) // a proper name, a homograph number
        EXPECT_FALSE(counts.contains(form)) << form;
    // Capitalised names, abbreviations and comments give no admissible word: left out.
    const std::string dic =
        "9\namo/APS\nlegionis/d\nlegi/P\nlego/APS\nrarissimus/abc\nRoma/a\nA.\n# comment\nvir\r\n";
    EXPECT_EQ(splitStemsByCount(dic, counts, {1000, 700}),
              (std::vector<std::string>{"2\nlegionis/d\nvir\n", "1\namo/APS\n",
                                        "3\nlegi/P\nlego/APS\nrarissimus/abc\n"}));
}

TEST(StemRanking, KeepsTheFirstSpellingOfTheLatinStemsAndCountsAListedWordOnce) {
    const std::string dic = "7\n# header\namo/APS\nZeus/q\n\nabacvs/b\nzythvm/c\nabauia/a\nuir/q\n";
    EXPECT_EQ(schoolSpellingStems(dic), "3\n# header\namo/APS\nZeus/q\n");
    EXPECT_EQ(schoolSpellingStems("2\nab\nzona\r\nAbas\n"), "2\nab\nzona\r\n");
    EXPECT_EQ(schoolSpellingStems(""), "0\n");
    // A listed word counts once.
    const auto counts = listedWordCounts("casa\nCittà\nperché\r\n\n");
    EXPECT_EQ(counts, (std::map<std::string, long>{{"CASA", 1}, {"PERCHE", 1}}));
    EXPECT_EQ(splitStemsByCount("3\ncasa/o\nlottizzare/A\nperché\n", counts, {1}),
              (std::vector<std::string>{"2\ncasa/o\nperché\n", "1\nlottizzare/A\n"}));
}

} // namespace
} // namespace griglione
