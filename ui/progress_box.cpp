#include "ui/progress_box.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace griglione {

ProgressBox::ProgressBox(QWidget* parent) : QWidget(parent), m_background(Qt::white) {
    setObjectName("Picture1");
    setAccessibleName(tr("Avanzamento"));
}

void ProgressBox::fillYellow() {
    m_background = QColor(255, 255, 0);
    m_filled = 0;
    update();
}

void ProgressBox::fillTo(double fraction, int extra) {
    const int x = static_cast<int>(std::lround(fraction * width())) + extra;
    m_filled = std::clamp(x, 0, width());
    // Only the bar is repainted, so drawing it often costs little.
    update();
}

void ProgressBox::clear() {
    m_background = Qt::white;
    m_filled = 0;
    update();
}

void ProgressBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), m_background);
    painter.fillRect(0, 0, m_filled, height(), QColor(0, 0, 128));
}

} // namespace griglione
