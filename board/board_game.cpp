#include "board/board_game.h"

#include "board/board_layout.h"
#include "core/match_clock.h"
#include "core/player_text.h"

namespace griglione {

BoardGame::BoardGame(GameState& state, Dealer& dealer, Sounds& sounds, Messages& messages,
                     GameView& view)
    : m_state(state), m_dealer(dealer), m_sounds(sounds), m_messages(messages), m_view(view) {}

void BoardGame::lanciaDadi(bool conLettere) {
    if (m_state.numDizionario == 0) m_state.numDizionario = 1;
    clearForDeal();
    // A board of the day's fixed length is over: the player's own length comes back.
    ripristinaTempoPartita(m_state);
    m_state.tabelloneCondiviso = false;
    m_dealer.deal(m_state, conLettere);
    showDeal();
}

void BoardGame::lanciaTabellone(const SharedBoard& board) {
    clearForDeal();
    m_state.tabelloneCondiviso = true;
    placeBoard(m_state, board);
    showDeal();
}

void BoardGame::clearForDeal() {
    azzeraParola();
    m_state.paroleGiocatore.clear();
    m_state.paroleCPU.clear();
    m_state.paroleDizionario.clear();
    m_state.puntiGiocatore = 0;
    m_state.puntiCPU = 0;
}

void BoardGame::showDeal() {
    m_state.codiceTabellone = boardCode(m_state);
    m_path.hideAll();
    m_view.changed(Aspect::PlayerWords);
    m_view.changed(Aspect::CpuWords);
    m_view.changed(Aspect::Scores);
    m_view.changed(Aspect::TimeBar);
    m_view.changed(Aspect::Board);
    m_view.changed(Aspect::Path);
}

void BoardGame::azzeraParola() {
    m_state.ultimaCella = -1;
    m_state.parolaComposta.clear();
    m_path.hideAll();
    m_state.cellaUsata.fill(false);
    m_typed.clear();
    m_traced.clear();
    m_view.changed(Aspect::Word);
    m_view.changed(Aspect::Path);
    m_view.changed(Aspect::TimeBar);
}

void BoardGame::azzera() {
    m_sounds.suona("COLLAPSE.WAV");
    azzeraParola();
}

void BoardGame::turnDie(int n) {
    const char letter = letteraCella(m_state, n);
    if (letter == '\0') return;
    const int face = facciaCella(m_state, n) % 4 + 1;
    m_state.immagineCella[n] = dieName(letter, face);
    m_view.changed(Aspect::Board);
    m_sounds.suona("SND0230.wav");
}

PressResult BoardGame::press(int n, int button, bool matchRunning) {
    if (n < 0 || n >= kCells) return PressResult::Refused;
    if (!matchRunning) return PressResult::StartMatch;
    if (m_state.cellaUsata[n] && button != kRightButton) {
        m_sounds.beep();
        return PressResult::Refused;
    }
    if (button == kRightButton) {
        turnDie(n);
        return PressResult::Turned;
    }
    m_sounds.suona("SND0002.wav");
    m_state.cellaUsata[n] = true;
    const int p = m_state.ultimaCella;
    if (p == -1) {
        m_path.start(n);
    } else if (!celleAdiacenti(p, n)) {
        m_sounds.beep();
        m_state.cellaUsata[n] = false;
        m_state.messaggio = {
            playerText("BoardGame", "OOPS!"), playerText("BoardGame", "Lettera non adiacente"),
            playerText("BoardGame", "Attenzione : La lettera deve essere adiacente a quella "
                                    "cliccata in precedenza! Per scrivere una nuova parola "
                                    "cliccare il pulsante <Azzera>")};
        m_messages.mostraMessaggio(m_state.messaggio, false);
        return PressResult::NotAdjacent;
    } else {
        m_path.connect(p, n);
    }
    m_state.parolaComposta += letteraCella(m_state, n);
    m_state.ultimaCella = static_cast<std::int16_t>(n);
    m_traced.push_back(n);
    m_typed.follow(letters(), m_traced);
    m_view.changed(Aspect::Path);
    m_view.changed(Aspect::Word);
    return PressResult::Selected;
}

CellLetters BoardGame::letters() const {
    CellLetters all{};
    for (int n = 0; n < kCells; ++n)
        all[n] = letteraCella(m_state, n);
    return all;
}

PressResult BoardGame::typeLetter(char letter, bool matchRunning) {
    if (!matchRunning) return PressResult::Refused;
    if (!m_typed.type(letters(), letter)) {
        m_sounds.beep();
        return PressResult::Refused;
    }
    m_sounds.suona("SND0002.wav");
    showTrace(m_typed.shown());
    return PressResult::Selected;
}

PressResult BoardGame::takeBack(bool matchRunning) {
    if (!matchRunning) return PressResult::Refused;
    if (!m_typed.back()) {
        m_sounds.beep();
        return PressResult::Refused;
    }
    showTrace(m_typed.shown());
    return PressResult::Selected;
}

// Draws the word along `cells` afresh; the newest die's mark shows, whatever its blink was.
void BoardGame::showTrace(const std::vector<int>& cells) {
    m_path.hideAll();
    m_state.cellaUsata.fill(false);
    m_state.parolaComposta.clear();
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i == 0)
            m_path.start(cells[0]);
        else
            m_path.connect(cells[i - 1], cells[i]);
        m_state.cellaUsata[cells[i]] = true;
        m_state.parolaComposta += letteraCella(m_state, cells[i]);
    }
    m_traced = cells;
    m_state.ultimaCella = static_cast<std::int16_t>(cells.empty() ? -1 : cells.back());
    if (!cells.empty()) m_path.showNewest(cells.back());
    m_view.changed(Aspect::Path);
    m_view.changed(Aspect::Word);
}

void BoardGame::blink() {
    if (m_state.ultimaCella < 0) return;
    m_path.toggleBlink(m_state.ultimaCella);
    m_view.changed(Aspect::Path);
}

} // namespace griglione
