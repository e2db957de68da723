#include "ui/die_cell.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace griglione {

DieCell::DieCell(int index, QWidget* parent) : QWidget(parent), m_index(index) {
    setObjectName(QStringLiteral("Picture1_%1").arg(index));
    // A press gives the die the focus, as it takes it from the name box, and Enter and Escape
    // then reach the die.
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void DieCell::setPicture(const QPixmap& picture) {
    m_picture = picture;
    update();
}

void DieCell::setMarks(const CellMarks& marks, int lineWidth) {
    m_marks = marks;
    m_lineWidth = lineWidth;
    update();
}

void DieCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0, 64, 0));
    painter.drawPixmap(0, 0, m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 0, 128), m_lineWidth, Qt::SolidLine, Qt::RoundCap));
    const auto draw = [&](const Segment& segment) {
        if (segment.hidden()) return;
        const auto [x1, y1] = anchorPoint(segment.from);
        const auto [x2, y2] = anchorPoint(segment.to);
        if (segment.from == segment.to) { // the first die of a word: a dot
            painter.drawPoint(QPointF(x1 * width(), y1 * height()));
            return;
        }
        painter.drawLine(QPointF(x1 * width(), y1 * height()),
                         QPointF(x2 * width(), y2 * height()));
    };
    if (m_marks.line1Visible) draw(m_marks.line1);
    draw(m_marks.line2);
}

void DieCell::mousePressEvent(QMouseEvent* event) {
    int button = 0;
    switch (event->button()) {
    case Qt::LeftButton:
        button = 1;
        break;
    case Qt::RightButton:
        button = 2;
        break;
    case Qt::MiddleButton:
        button = 4;
        break;
    default:
        return;
    }
    emit pressed(m_index, button);
}

void DieCell::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit enterPressed();
        break;
    case Qt::Key_Escape:
        emit escapePressed();
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
}

} // namespace griglione
