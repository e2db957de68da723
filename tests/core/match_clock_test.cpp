// The match clock: the end on the tick after the match length, the bar and label on the way,
// and the start message's four lines.
#include "core/match_clock.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

TEST(MatchClock, ASixtySecondMatchEndsOnItsSixtyFirstTick) {
    GameState state;
    state.tempoPartita = 60;
    for (int tick = 1; tick <= 60; ++tick) {
        ASSERT_FALSE(countSecond(state)) << tick;
        EXPECT_EQ(secondsLabel(state.secondiTrascorsi), std::to_string(tick) + "s");
    }
    EXPECT_EQ(timeBarWidth(107, 60, 60), 107);
    EXPECT_TRUE(countSecond(state));
}

TEST(MatchClock, BarGrowsInProportionHalvesToEven) {
    const struct {
        int inner, tempo, seconds, width;
    } cases[] = {
        {120, 120, 0, 0},     {120, 120, 1, 1}, {120, 120, 60, 60}, {100, 60, 3, 5},
        {100, 60, 9, 15},     {105, 60, 2, 4},  {105, 60, 6, 10},   {100, 300, 3, 1},
        {100, 300, 300, 100}, {100, 0, 5, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(timeBarWidth(c.inner, c.tempo, c.seconds), c.width)
            << c.inner << "/" << c.tempo << "*" << c.seconds;
}

TEST(MatchClock, StartMessageNamesLengthLanguageAndLevel) {
    GameState state;
    state.tempoPartita = 120;
    state.nomeDizionario = "Italiano";
    const Messaggio m = startMessage(state, {true, false, false, false});
    EXPECT_EQ(m.titolo, "START");
    EXPECT_EQ(m.intestazione, "Inizio partita");
    EXPECT_EQ(m.testo, "Si inizia una nuova partita di 120 secondi.\r\n"
                       "Il dizionario usato è : Italiano\r\n"
                       "Il livello dell'avversario è : Junior (Birillo)\r\n"
                       "Cliccare il pulsante <OK> per giocare.");
}

TEST(MatchClock, StartMessageLevelIsTheLastCheckedInItsOrder) {
    GameState state;
    const struct {
        std::array<bool, 4> checks;
        const char* level;
    } cases[] = {
        {{false, false, false, false}, "Il livello dell'avversario è : \r\n"},
        {{false, false, true, true}, "Il livello dell'avversario è : Medio (Memo)\r\n"},
        {{true, true, false, false}, "Il livello dell'avversario è : Principiante (Tapo)\r\n"},
        {{false, false, false, true}, "Il livello dell'avversario è : Esperto (Sapienzo)\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_NE(startMessage(state, c.checks).testo.find(c.level), std::string::npos) << c.level;
}

} // namespace
} // namespace griglione
