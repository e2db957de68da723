// The end-of-match reckoning: result lines and sounds, the history line's fixed columns, the
// statistics, and which level names the computer.
#include "core/end_of_match.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace griglione {

void PrintTo(const EndOfMatchTexts& t, std::ostream* os) {
    *os << '{';
    for (const std::string* s : {&t.result, &t.sound, &t.humanName, &t.cpuName, &t.humanScore,
                                 &t.cpuScore, &t.historyLine, &t.humanWins, &t.cpuWins, &t.draws})
        *os << '"' << *s << "\" ";
    *os << '}';
}

namespace {

constexpr std::array<bool, 4> kNone{false, false, false, false};
constexpr std::array<bool, 4> kMedio{false, false, true, false};

TEST(EndOfMatchTest, ARunOfMatchesShowsEveryTextOfTheWindow) {
    struct Match {
        const char* name;
        std::array<bool, 4> levels;
        std::int32_t human;
        std::int32_t cpu;
        EndOfMatchTexts expected;
    };
    const std::vector<Match> run = {
        {"BRIVO",
         kMedio,
         1240,
         980,
         {"Ha vinto BRIVO!", "collapse.wav", "BRIVO", "Memo (CPU)", "1240", "980",
          "  1) BRIVO 1240   Computer  980", " 1", " 0", " 0"}},
        {"BRIVO",
         kMedio,
         0,
         0,
         {"Partita PARI!", "SND0012.WAV", "BRIVO", "Memo (CPU)", "0", "0",
          "  2) BRIVO    0   Computer    0", " 1", " 0", " 1"}},
        {"Anna Maria",
         {false, false, false, true},
         180,
         12400,
         {"Ha vinto Sapienzo (CPU)", "explode2.wav", "Anna Maria", "Sapienzo (CPU)", "180", "12400",
          "  3) Anna Maria  180   Computer12400", " 1", " 1", " 1"}},
        {"",
         {true, false, false, false},
         2000,
         2000,
         {"Partita PARI!", "SND0012.WAV", "", "Birillo (CPU)", "2000", "2000",
          "  4)  2000   Computer 2000", " 1", " 1", " 2"}},
    };
    MatchStatistics statistics;
    std::vector<std::string> lines;
    for (const Match& m : run) {
        SCOPED_TRACE(m.expected.historyLine);
        EXPECT_EQ(statistics.record(m.name, m.levels, m.human, m.cpu), m.expected);
        lines.push_back(m.expected.historyLine);
    }
    EXPECT_EQ(statistics.history(), lines);
    EXPECT_EQ(statistics.matches(), 4);
}

TEST(EndOfMatchTest, MatchNumbersKeepThreeColumns) {
    MatchStatistics statistics;
    std::vector<std::string> prefixes;
    for (int match = 1; match <= 100; ++match)
        prefixes.push_back(statistics.record("X", kMedio, 0, 180).historyLine.substr(0, 5));
    EXPECT_EQ(prefixes[0], "  1) ");
    EXPECT_EQ(prefixes[8], "  9) ");
    EXPECT_EQ(prefixes[9], " 10) ");
    EXPECT_EQ(prefixes[99], "100) ");
    EXPECT_EQ(statistics.history().size(), 100u);
    EXPECT_EQ(statistics.history().back(), "100) X    0   Computer  180");
}

TEST(EndOfMatchTest, StatisticsCountWinsLossesAndDraws) {
    MatchStatistics statistics;
    EndOfMatchTexts texts;
    for (auto [human, cpu] : std::vector<std::pair<int, int>>{{500, 180}, {0, 320}, {1, 0}, {9, 8}})
        texts = statistics.record("BRIVO", kMedio, human, cpu);
    EXPECT_EQ(texts.humanWins, " 3");
    EXPECT_EQ(texts.cpuWins, " 1");
    EXPECT_EQ(texts.draws, " 0");
    for (int i = 0; i < 9; ++i)
        texts = statistics.record("BRIVO", kMedio, 0, 0);
    EXPECT_EQ(texts.draws, " 9");
    texts = statistics.record("BRIVO", kMedio, 0, 0);
    EXPECT_EQ(texts.draws, " 10");
    EXPECT_EQ(statistics.humanWins(), 3);
    EXPECT_EQ(statistics.cpuWins(), 1);
    EXPECT_EQ(statistics.draws(), 10);
}

TEST(EndOfMatchTest, TheLastCheckedLevelInTheWindowsOrderNamesTheComputer) {
    struct Case {
        std::array<bool, 4> levels; // Junior, Principiante, Medio, Esperto
        const char* expected;
    };
    const std::vector<Case> cases = {
        {kNone, "(Computer)"},
        {{true, false, false, false}, "Birillo (CPU)"},
        {{false, true, false, false}, "Tapo (CPU)"},
        {kMedio, "Memo (CPU)"},
        {{false, false, false, true}, "Sapienzo (CPU)"},
        {{false, false, true, true}, "Memo (CPU)"}, // Medio is tested after Esperto
        {{true, false, false, true}, "Sapienzo (CPU)"},
        {{true, true, false, false}, "Tapo (CPU)"},
        {{true, true, true, true}, "Memo (CPU)"},
    };
    for (const Case& c : cases) {
        MatchStatistics statistics;
        const EndOfMatchTexts texts = statistics.record("BRIVO", c.levels, 0, 500);
        EXPECT_EQ(texts.cpuName, c.expected);
        EXPECT_EQ(texts.result, std::string("Ha vinto ") + c.expected);
    }
}

TEST(EndOfMatchTest, WithNoLevelCheckedTheComputerKeepsItsLastName) {
    MatchStatistics statistics;
    EXPECT_EQ(statistics.record("BRIVO", kNone, 0, 180).cpuName, "(Computer)");
    EXPECT_EQ(statistics.record("BRIVO", {false, true, false, false}, 0, 180).cpuName,
              "Tapo (CPU)");
    const EndOfMatchTexts texts = statistics.record("BRIVO", kNone, 0, 180);
    EXPECT_EQ(texts.cpuName, "Tapo (CPU)");
    EXPECT_EQ(texts.result, "Ha vinto Tapo (CPU)");
}

TEST(EndOfMatchTest, ScoresPastSixteenBitsAreComparedAndShownWhole) {
    struct Case {
        std::int32_t human;
        std::int32_t cpu;
        const char* result;
        const char* line;
    };
    const std::vector<Case> cases = {
        {32767, 32767, "Partita PARI!", "  1) BO32767   Computer32767"},
        {40000, 32767, "Ha vinto BO!", "  2) BO40000   Computer32767"},
        {32768, 40000, "Ha vinto Memo (CPU)", "  3) BO32768   Computer40000"},
        {123456, 99999, "Ha vinto BO!", "  4) BO123456   Computer99999"},
    };
    MatchStatistics statistics;
    for (const Case& c : cases) {
        const EndOfMatchTexts texts = statistics.record("BO", kMedio, c.human, c.cpu);
        EXPECT_EQ(texts.result, c.result);
        EXPECT_EQ(texts.historyLine, c.line);
        EXPECT_EQ(texts.humanScore, std::to_string(c.human));
    }
}

} // namespace
} // namespace griglione
