// The keys that trace a word without the mouse: a letter extends the word along the dice,
// Backspace takes back its last letter. They work from every control of the main window they
// watch (the dice, the buttons, the word lists), never from the player's name box, and from a
// message that does not block, which they then close: the player has gone on to the next word.
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace griglione {

class BoardGame;

class BoardKeys final : public QObject {
    Q_OBJECT
public:
    BoardKeys(BoardGame& board, std::function<bool()> matchRunning, QObject* parent);

    void watch(QWidget* control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    BoardGame& m_board;
    std::function<bool()> m_matchRunning;
};

} // namespace griglione
