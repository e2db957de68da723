#include "core/match_clock.h"

#include "core/levels.h"
#include "core/number_text.h"
#include "core/player_text.h"

namespace griglione {

bool countSecond(GameState& state) {
    ++state.secondiTrascorsi;
    return state.secondiTrascorsi > state.tempoPartita;
}

void fissaTempoPartita(GameState& state, int seconds) {
    if (state.tempoSalvato == 0) state.tempoSalvato = state.tempoPartita;
    state.tempoPartita = static_cast<std::int16_t>(seconds);
}

void ripristinaTempoPartita(GameState& state) {
    if (state.tempoSalvato == 0) return;
    state.tempoPartita = state.tempoSalvato;
    state.tempoSalvato = 0;
}

int tempoDelGiocatore(const GameState& state) {
    return state.tempoSalvato != 0 ? state.tempoSalvato : state.tempoPartita;
}

int timeBarWidth(int innerWidth, int tempoPartita, int seconds) {
    if (tempoPartita <= 0) return 0;
    const double x = static_cast<double>(innerWidth) / tempoPartita * seconds;
    return roundHalfEven(x).value_or(innerWidth);
}

std::string secondsLabel(int seconds) {
    return std::to_string(seconds) + "s";
}

Messaggio startMessage(const GameState& state, const std::array<bool, 4>& levelChecked) {
    // Several level items can be checked after reading an odd settings file; the last of this
    // order wins.
    std::string level;
    for (int i : {Junior, Principiante, Esperto, Medio})
        if (levelChecked[i]) level = kLevels[i].name;
    //: The message window's headline: five letters, each shown in a box of its own.
    return {playerText("MatchClock", "START"), playerText("MatchClock", "Inizio partita"),
            withArgs(playerText("MatchClock", "Si inizia una nuova partita di %1 secondi.\r\nIl "
                                              "dizionario usato è : %2\r\nIl livello "
                                              "dell'avversario è : %3\r\nCliccare il pulsante "
                                              "<OK> per giocare."),
                     {std::to_string(state.tempoPartita),
                      playerText("Options", state.nomeDizionario), playerText("Options", level)})};
}

} // namespace griglione
