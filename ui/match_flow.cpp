#include "ui/match_flow.h"

#include "core/match_clock.h"
#include "ui/control_names.h"
#include "ui/end_of_match_window.h"
#include "ui/main_window.h"
#include "ui/options_flow.h"
#include "ui/records_flow.h"
#include "ui/review_window.h"
#include "ui/time_bar.h"

#include <QLabel>
#include <QTimer>

namespace griglione {

MatchFlow::MatchFlow(QWidget& mainWindow, GameState& state, BoardGame& board, QTimer& timer1,
                     QTimer& timer2, Sounds& sounds, MessageHost& messages, OptionsFlow& options,
                     RecordsFlow& records, const Services& services, Screen screen)
    : m_main(mainWindow), m_state(state), m_board(board), m_timer1(timer1), m_timer2(timer2),
      m_sounds(sounds), m_messages(messages), m_options(options), m_records(records),
      m_services(services), m_screen(std::move(screen)),
      m_matchLog(services.alerts, services.folder) {}

void MatchFlow::startPartita() {
    m_timer1.stop();
    m_timer2.stop();
    m_state.messaggio = startMessage(m_state, m_options.levelChecks());
    m_messages.mostraMessaggio(m_state.messaggio, true);
}

void MatchFlow::nuovaPartita() {
    m_timer1.start();
    m_timer2.start();
    m_state.secondiTrascorsi = 0;
    m_screen.timeBar.clear();
    m_board.lanciaDadi(true);
    m_board.azzeraParola();
    m_screen.focusBoard();
}

void MatchFlow::restartAfterSettingChange() {
    startPartita();
    m_board.lanciaDadi(true);
    m_board.azzeraParola();
    m_state.secondiTrascorsi = 0;
    m_timer1.start();
    m_timer2.start();
    m_screen.focusBoard();
}

void MatchFlow::startOnBoard(const SharedBoard& board) {
    startPartita();
    m_board.lanciaTabellone(board);
    m_board.azzeraParola();
    m_state.secondiTrascorsi = 0;
    m_timer1.start();
    m_timer2.start();
    m_screen.focusBoard();
}

void MatchFlow::clockTick() {
    // A tick that falls due while an earlier one waits for a modal window is dropped.
    if (m_inClockTick) return;
    m_inClockTick = true;
    if (countSecond(m_state)) endOfMatch();
    if (m_state.ultimaCella >= 0) m_board.blink();
    TimeBar& bar = m_screen.timeBar;
    bar.fillTo(timeBarWidth(bar.innerWidth(), m_state.tempoPartita, m_state.secondiTrascorsi));
    setValueText(&m_screen.seconds, QString::fromStdString(secondsLabel(m_state.secondiTrascorsi)));
    m_screen.seconds.adjustSize();
    m_inClockTick = false;
}

void MatchFlow::endOfMatch() {
    m_timer2.stop();
    m_timer1.stop();
    if (!m_endOfMatch) {
        m_endOfMatch = new EndOfMatchWindow(m_timer1, m_timer2, m_sounds, m_messages,
                                            m_services.terminate, &m_main);
        // The review is made at its first opening and then kept, like the window it opens over.
        ReviewWindow* review = nullptr;
        m_endOfMatch->setReviewOpener([this, review]() mutable {
            if (!review) review = new ReviewWindow(m_endOfMatch);
            if (m_reviewExtra) m_reviewExtra(*review);
            review->showBoard(m_state, m_services.folder);
        });
        m_endOfMatch->setPicture(m_screen.pictures, "griglione.gif");
    }
    m_endOfMatch->hide();
    // On the disk before the result says the match is over. The last argument is the board's code.
    m_matchLog.matchEnded(m_state, m_options.levelChecks(), m_state.codiceTabellone);
    const auto [player, cpu] = m_screen.scores();
    m_endOfMatch->showResult(m_screen.playerName(), player, cpu, m_options.levelChecks());
    m_records.afterMatch();
    m_board.lanciaDadi(true);
    m_board.azzeraParola();
    m_state.secondiTrascorsi = 0;
}

void MatchFlow::abandon() {
    m_board.azzeraParola();
    m_board.lanciaDadi(false);
    m_state.secondiTrascorsi = 0;
    m_timer1.stop();
    m_timer2.stop();
}

PressResult MatchFlow::diePressed(int n, int button) {
    const PressResult result = m_board.press(n, button, m_timer1.isActive());
    if (result == PressResult::StartMatch) {
        startPartita();
        nuovaPartita();
    }
    return result;
}

} // namespace griglione
