// Hands the game's news to the screen reader as polite notifications of the main window: the
// rules of what to say and when are Announcements'; this only knows the window and the time.
#pragma once

#include "board/board_game.h"
#include "core/announcements.h"
#include "core/game_state.h"

#include <QElapsedTimer>
#include <QObject>

class QWidget;

namespace griglione {

class Announcer final : public QObject {
    Q_OBJECT
public:
    Announcer(QWidget& window, const GameState& state);

    // After a typed letter (`letter`), Backspace or a press on a die ('\0').
    void traced(PressResult result, char letter);
    // A word's message, shown while the match runs.
    void outcome(const Messaggio& messaggio);
    // The opponent's list changed.
    void opponentFound();
    // Once a second while the match runs.
    void tick();

private:
    void say(const std::string& text);

    QWidget& m_window;
    const GameState& m_state;
    Announcements m_news;
    QElapsedTimer m_clock;
};

} // namespace griglione
