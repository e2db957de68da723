// The keys that trace a word without the mouse: a letter extends the word along the dice,
// Backspace takes back its last letter. They work from every control of the main window they
// watch (the dice, the buttons, the word lists), never from the player's name box, and from a
// message that does not block, which they then close: the player has gone on to the next word.
// What each key did is passed on, for the screen reader to tell.
#pragma once

#include "board/board_game.h"

#include <QObject>

#include <functional>

class QWidget;

namespace griglione {

class BoardKeys final : public QObject {
    Q_OBJECT
public:
    // `traced` hears the result of every letter and Backspace (the letter, or '\0' for
    // Backspace); `closeMessage` closes a word's message left open.
    BoardKeys(BoardGame& board, std::function<bool()> matchRunning,
              std::function<void(PressResult, char)> traced, std::function<void()> closeMessage,
              QObject* parent);

    void watch(QWidget* control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    BoardGame& m_board;
    std::function<bool()> m_matchRunning;
    std::function<void(PressResult, char)> m_traced;
    std::function<void()> m_closeMessage;
};

} // namespace griglione
