// Gives the keys back to the board when the main window becomes active again during a match,
// wherever the focus was left before another window opened (the rules put it in the name box).
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace griglione {

class FocusReturn final : public QObject {
public:
    FocusReturn(QWidget& window, std::function<bool()> matchRunning,
                std::function<void()> focusBoard);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
    std::function<bool()> m_matchRunning;
    std::function<void()> m_focusBoard;
};

} // namespace griglione
