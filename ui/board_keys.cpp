#include "ui/board_keys.h"

#include "board/board_game.h"
#include "core/ansi_text.h"

#include <QKeyEvent>
#include <QWidget>

namespace griglione {
namespace {

// The typed character as a die's letter: upper-cased by the game's one Windows-1252 rule, so
// that an accented letter stays one that no die carries. '\0' when it is no letter at all.
char typedLetter(const QKeyEvent& key) {
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return '\0';
    const QString text = key.text();
    if (text.size() != 1 || !text[0].isLetter()) return '\0';
    const std::string upper = upperAnsiText(text.toStdString());
    return upper.size() == 1 ? upper[0] : '?';
}

} // namespace

BoardKeys::BoardKeys(BoardGame& board, std::function<bool()> matchRunning,
                     std::function<void(PressResult, char)> traced,
                     std::function<void()> closeMessage, QObject* parent)
    : QObject(parent), m_board(board), m_matchRunning(std::move(matchRunning)),
      m_traced(std::move(traced)), m_closeMessage(std::move(closeMessage)) {}

void BoardKeys::watch(QWidget* control) {
    control->installEventFilter(this);
}

bool BoardKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !m_matchRunning())
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool back = key.key() == Qt::Key_Backspace && key.modifiers() == Qt::NoModifier;
    const char letter = back ? '\0' : typedLetter(key);
    if (!back && !letter) return QObject::eventFilter(watched, event);
    m_closeMessage();
    m_traced(back ? m_board.takeBack(true) : m_board.typeLetter(letter, true), letter);
    return true;
}

} // namespace griglione
