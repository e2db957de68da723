// The end-of-match reckoning: result lines and sounds, the history line's fixed columns, the
// statistics, and which level names the computer.
#include "core/end_of_match.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace griglione {

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
        {"BO", // scores past 16 bits are compared and shown whole
         kMedio,
         40000,
         32768,
         {"Ha vinto BO!", "collapse.wav", "BO", "Memo (CPU)", "40000", "32768",
          "  5) BO40000   Computer32768", " 2", " 1", " 2"}},
    };
    MatchStatistics statistics;
    std::vector<std::string> lines;
    for (const Match& m : run) {
        SCOPED_TRACE(m.expected.historyLine);
        EXPECT_EQ(statistics.record(m.name, m.levels, m.human, m.cpu), m.expected);
        lines.push_back(m.expected.historyLine);
    }
    EXPECT_EQ(statistics.history(), lines);
    EXPECT_EQ(statistics.matches(), 5);
}

TEST(EndOfMatchTest, TheLastCheckedLevelInTheWindowsOrderNamesTheComputerOrItKeepsItsName) {
    const struct {
        std::array<bool, 4> levels; // Junior, Principiante, Medio, Esperto
        const char* expected;
    } run[] = {
        {kNone, "(Computer)"},
        {{false, true, false, false}, "Tapo (CPU)"},
        {kNone, "Tapo (CPU)"},
        {{false, false, true, true}, "Memo (CPU)"}, // Medio is tested after Esperto
        {{true, true, false, false}, "Tapo (CPU)"},
    };
    MatchStatistics statistics;
    for (const auto& m : run) {
        const EndOfMatchTexts texts = statistics.record("BRIVO", m.levels, 0, 500);
        EXPECT_EQ(texts.cpuName, m.expected);
        EXPECT_EQ(texts.result, std::string("Ha vinto ") + m.expected);
    }
}

} // namespace
} // namespace griglione
