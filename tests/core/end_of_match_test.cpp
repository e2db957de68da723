// The end-of-match reckoning: result lines and sounds, the history line's fixed columns, the
// statistics, and which level names the computer.
#include "core/end_of_match.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace griglione;

namespace {

// The level items checked: Junior, Principiante, Medio, Esperto.
constexpr std::array<bool, 4> kNone{}, kMedio{false, false, true, false},
    kMedioEsperto{false, false, true, true}, kJuniorTapo{true, true, false, false},
    kEsperto{false, false, false, true};

// Every text of the window for one match, joined with '|' so that a run of matches reads as a
// table.
std::string joined(const EndOfMatchTexts& t) {
    std::string line;
    for (const std::string* s : {&t.result, &t.sound, &t.humanName, &t.cpuName, &t.humanScore,
                                 &t.cpuScore, &t.historyLine, &t.humanWins, &t.cpuWins, &t.draws})
        line += *s + "|";
    return line;
}

TEST(EndOfMatchTest, ARunOfMatchesShowsEveryTextOfTheWindow) {
    const struct {
        const char* name;
        std::array<bool, 4> levels;
        std::int32_t human, cpu;
        const char* texts;
    } run[] = {
        {"BRIVO", kNone, 0, 180,
         "Ha vinto (Computer)|explode2.wav|BRIVO|(Computer)|0|180|"
         "  1) BRIVO    0   Computer  180| 0| 1| 0|"},
        {"BRIVO", kMedio, 1240, 980,
         "Ha vinto BRIVO!|collapse.wav|BRIVO|Memo (CPU)|1240|980|"
         "  2) BRIVO 1240   Computer  980| 1| 1| 0|"},
        {"BRIVO", kNone, 0, 0, // no level checked: the computer keeps its last name
         "Partita PARI!|SND0012.WAV|BRIVO|Memo (CPU)|0|0|"
         "  3) BRIVO    0   Computer    0| 1| 1| 1|"},
        // Medio is tested after Esperto; scores past 16 bits are compared and shown whole.
        {"Anna Maria", kMedioEsperto, 180, 12400,
         "Ha vinto Memo (CPU)|explode2.wav|Anna Maria|Memo (CPU)|180|12400|"
         "  4) Anna Maria  180   Computer12400| 1| 2| 1|"},
        {"", kJuniorTapo, 2000, 2000,
         "Partita PARI!|SND0012.WAV||Tapo (CPU)|2000|2000|"
         "  5)  2000   Computer 2000| 1| 2| 2|"},
        {"BO", kEsperto, 40000, 32768,
         "Ha vinto BO!|collapse.wav|BO|Sapienzo (CPU)|40000|32768|"
         "  6) BO40000   Computer32768| 2| 2| 2|"},
    };
    MatchStatistics statistics;
    std::vector<std::string> lines;
    for (const auto& m : run) {
        const EndOfMatchTexts texts = statistics.record(m.name, m.levels, m.human, m.cpu);
        EXPECT_EQ(joined(texts), m.texts);
        lines.push_back(texts.historyLine);
    }
    EXPECT_EQ(statistics.history(), lines);
}

} // namespace
