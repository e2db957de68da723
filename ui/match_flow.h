// The match flow: announcing a match, starting it on a new board, the one-second clock with its
// bar and seconds, and the end of a match with its result, review and records.
#pragma once

#include "board/board_game.h"
#include "core/game_state.h"
#include "core/ports.h"
#include "platform/picture_book.h"
#include "ui/match_log_writer.h"

#include <QString>

#include <functional>
#include <utility>

class QLabel;
class QTimer;
class QWidget;

namespace griglione {

class EndOfMatchWindow;
class MessageHost;
class OptionsFlow;
class RecordsFlow;
class ReviewWindow;
class TimeBar;
struct Services;

class MatchFlow {
public:
    // What the flow reads and shows on the main window.
    struct Screen {
        TimeBar& timeBar;
        QLabel& seconds;
        std::function<QString()> playerName;
        std::function<std::pair<int, int>()> scores; // as the two score labels show them
        const PictureBook& pictures;                 // the logo of the end-of-match window
        std::function<void()> focusBoard;
    };

    MatchFlow(QWidget& mainWindow, GameState& state, BoardGame& board, QTimer& timer1,
              QTimer& timer2, Sounds& sounds, MessageHost& messages, OptionsFlow& options,
              RecordsFlow& records, const Services& services, Screen screen);

    // Stops the match and announces a new one (modal "START" message); deals nothing.
    void startPartita();
    // Restarts the clock on a new board, without an announcement.
    void nuovaPartita();
    // A new match length or language: the announcement, then a new board.
    void restartAfterSettingChange();
    void clockTick();
    PressResult diePressed(int n, int button);
    // The announcement, then a match on exactly `board`.
    void startOnBoard(const SharedBoard& board);
    // Runs on the review window before every opening: what it adds to it.
    void setReviewExtra(std::function<void(ReviewWindow&)> extra) {
        m_reviewExtra = std::move(extra);
    }
    // Before a vocabulary editor opens: the match is dropped for the blank board, clock stopped.
    void abandon();

private:
    void endOfMatch();

    QWidget& m_main;
    GameState& m_state;
    BoardGame& m_board;
    QTimer& m_timer1;
    QTimer& m_timer2;
    Sounds& m_sounds;
    MessageHost& m_messages;
    OptionsFlow& m_options;
    RecordsFlow& m_records;
    const Services& m_services;
    Screen m_screen;
    MatchLogWriter m_matchLog;
    std::function<void(ReviewWindow&)> m_reviewExtra;
    EndOfMatchWindow* m_endOfMatch = nullptr;
    bool m_inClockTick = false;
};

} // namespace griglione
