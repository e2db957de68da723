// Hands the game's news to the screen reader as polite notifications of the main window: the
// rules of what to say and when are Announcements'; this only knows the window and the time.
#pragma once

#include "board/board_game.h"
#include "core/announcements.h"
#include "core/game_state.h"

#include <QElapsedTimer>
#include <QObject>

#include <functional>

class QWidget;

namespace griglione {

class MessageHost;

class Announcer final : public QObject {
    Q_OBJECT
public:
    // Tells the messages of the match running, through `messages`, instead of showing them in
    // the player's way.
    Announcer(QWidget& window, const GameState& state, MessageHost& messages,
              std::function<bool()> matchRunning);

    // After a typed letter (`letter`), Backspace or a press on a die ('\0').
    void traced(PressResult result, char letter);
    // Escape: the word is empty.
    void cleared() { traced(PressResult::Selected, '\0'); }
    // The opponent's list changed.
    void opponentFound();
    // Every second of the match clock.
    void tick();

private:
    void outcome(const Messaggio& messaggio);
    void say(const std::string& text);

    QWidget& m_window;
    const GameState& m_state;
    std::function<bool()> m_matchRunning;
    Announcements m_news;
    QElapsedTimer m_clock;
};

} // namespace griglione
