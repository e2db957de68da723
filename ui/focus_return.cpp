#include "ui/focus_return.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace griglione {

FocusReturn::FocusReturn(QWidget& window, std::function<bool()> matchRunning,
                         std::function<void()> focusBoard)
    : QObject(&window), m_window(window), m_matchRunning(std::move(matchRunning)),
      m_focusBoard(std::move(focusBoard)) {
    window.installEventFilter(this);
}

bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
    // After the activation has settled: the window that closed may still hand the focus back.
    if (watched == &m_window && event->type() == QEvent::WindowActivate && m_matchRunning())
        QTimer::singleShot(0, this, [this] {
            if (m_window.isActiveWindow() && m_matchRunning()) m_focusBoard();
        });
    return false;
}

} // namespace griglione
