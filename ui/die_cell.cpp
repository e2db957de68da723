#include "ui/die_cell.h"

#include "platform/picture_book.h"
#include "ui/main_window_controls.h"

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

void DieCell::setPicture(const PictureBook& book, const std::string& name) {
    m_book = &book;
    m_name = name;
    update();
}

void DieCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0, 64, 0));
    if (!m_book) return;
    const qreal ratio = devicePixelRatioF();
    QPixmap picture = m_book->picture(m_name, ratio);
    if (picture.isNull()) picture = fallbackDie(m_name, ratio);
    painter.drawPixmap(0, 0, picture);
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
