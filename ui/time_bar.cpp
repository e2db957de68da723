#include "ui/time_bar.h"

#include "ui/accessibility.h"

#include <QAccessible>
#include <QPainter>

#include <algorithm>

namespace griglione {

TimeBar::TimeBar(QWidget* parent) : QWidget(parent) {
    installAccessibility();
    setObjectName("Picture2");
}

void TimeBar::fillTo(int x) {
    m_filled = std::clamp(std::max(m_filled, x), 0, innerWidth());
    update();
}

// A screen reader reads the bar's value when asked, but hears of no change: Orca would speak
// the percentage every few seconds over the player's word. The seconds left are told instead.
void TimeBar::clear() {
    m_filled = 0;
    update();
}

void TimeBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(QColor(64, 64, 64));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.fillRect(1, 1, m_filled, height() - 2, QColor(0, 0, 128));
}

} // namespace griglione
