// The match clock: the end on the tick after the match length, the bar and label on the way,
// and the start message's four lines.
#include "core/match_clock.h"

#include <gtest/gtest.h>

using namespace griglione;

// The bar grows in proportion and halves to even.
TEST(MatchClock, ASixtySecondMatchEndsOnItsSixtyFirstTickWithTheBarFull) {
    GameState state;
    state.tempoPartita = 60;
    for (int tick = 1; tick <= 60; ++tick) {
        ASSERT_FALSE(countSecond(state)) << tick;
        EXPECT_EQ(secondsLabel(state.secondiTrascorsi), std::to_string(tick) + "s");
    }
    EXPECT_TRUE(countSecond(state));
    const std::array<int, 4> bars[] = {{107, 60, 60, 107}, {100, 60, 3, 5},  {105, 60, 2, 4},
                                       {105, 60, 6, 10},   {100, 300, 4, 1}, {100, 0, 5, 0}};
    for (const auto& [inner, tempo, seconds, width] : bars)
        EXPECT_EQ(timeBarWidth(inner, tempo, seconds), width)
            << inner << "/" << tempo << "*" << seconds;
}

TEST(MatchClock, StartMessageNamesLengthLanguageAndTheLastCheckedLevelInItsOrder) {
    GameState state;
    state.tempoPartita = 120;
    state.nomeDizionario = "Italiano";
    const struct {
        std::array<bool, 4> checks;
        const char* level;
    } cases[] = {{{1, 0, 0, 0}, "Junior (Birillo)"},
                 {{0, 0, 0, 0}, ""},
                 {{0, 0, 1, 1}, "Medio (Memo)"},
                 {{1, 1, 0, 0}, "Principiante (Tapo)"}};
    for (const auto& c : cases)
        EXPECT_EQ(startMessage(state, c.checks),
                  (Messaggio{"START", "Inizio partita",
                             std::string("Si inizia una nuova partita di 120 secondi.\r\n"
                                         "Il dizionario usato è : Italiano\r\n"
                                         "Il livello dell'avversario è : ") +
                                 c.level + "\r\nCliccare il pulsante <OK> per giocare."}));
}
