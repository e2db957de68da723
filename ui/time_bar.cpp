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
    valueChanged();
}

void TimeBar::clear() {
    m_filled = 0;
    update();
    valueChanged();
}

// Screen readers hear the bar as a value in hundredths of the match.
void TimeBar::valueChanged() {
    QAccessibleValueChangeEvent event(this, innerWidth() > 0 ? m_filled * 100 / innerWidth() : 0);
    QAccessible::updateAccessibility(&event);
}

void TimeBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(QColor(64, 64, 64));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.fillRect(1, 1, m_filled, height() - 2, QColor(0, 0, 128));
}

} // namespace griglione
