// Shared boards: "Gioca un tabellone…" and the command line start a match on the board of a
// code, "Tabellone del giorno" on the day's board; after such a match the review offers the
// code, the challenge's link and the sending of the match to the challenge's table.
#pragma once

#include "board/board_code.h"
#include "core/civil_date.h"
#include "core/game_state.h"
#include "core/ports.h"
#include "ui/menu_bar.h"

#include <QObject>
#include <QString>

#include <functional>

class QTimer;
class QWidget;

namespace griglione {

class ChallengePanel;
class ReviewWindow;

// The board of the day is always played for this long, whatever the player's match length.
inline constexpr int kTempoGiorno = 120;

class ChallengeFlow final : public QObject {
    Q_OBJECT
public:
    // What the flow asks of the main window.
    struct Hooks {
        std::function<void()> aggMenudiz;
        std::function<void()> salvaImpostazioni;
        std::function<void(const SharedBoard&)> startOnBoard; // announcement, then the match
        std::function<QString()> playerName;
    };

    ChallengeFlow(QWidget& main, GameState& state, QTimer& timer1, QTimer& timer2, Outside& outside,
                  Alerts& alerts, Hooks hooks);

    void wire(const MenuActions& menu);
    // Asks for a code or link and plays its board; the match in play waits meanwhile.
    void playBoard();
    // A code or link from the command line; a message when it names no board.
    bool playText(const QString& text);
    void boardOfDay();
    // The date the board of the day is drawn for: the computer's local date unless set.
    void setToday(std::function<CivilDate()> today) { m_today = std::move(today); }
    // Shows the code and its buttons under the review of a shared board, nothing otherwise.
    void addToReview(ReviewWindow& review);

private:
    void play(const SharedBoard& board, bool daily);
    void send();

    QWidget& m_main;
    GameState& m_state;
    QTimer& m_timer1;
    QTimer& m_timer2;
    Outside& m_outside;
    Alerts& m_alerts;
    Hooks m_hooks;
    std::function<CivilDate()> m_today;
    ChallengePanel* m_panel = nullptr;
};

} // namespace griglione
