#include "ui/die_cell.h"

#include "core/game_state.h"
#include "platform/picture_book.h"
#include "ui/accessibility.h"
#include "ui/main_window_controls.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace griglione {
namespace {

// The keyboard focus: a bright frame along the die's rim, clear of the letter in its middle.
void drawFocusMark(QPainter& painter, const QRect& die) {
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(die.adjusted(0, 0, -1, -1));
    painter.setPen(QPen(QColor(255, 140, 0), 4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(die).adjusted(3, 3, -3, -3));
}

} // namespace

DieCell::DieCell(int index, QWidget* parent) : QWidget(parent), m_index(index) {
    installAccessibility();
    setObjectName(QStringLiteral("Picture1_%1").arg(index));
    // A press gives the die the focus, as it takes it from the name box, and Enter and Escape
    // then reach the die. Of the dice only the last one focused is a Tab stop.
    setFocusPolicy(index == 0 ? Qt::StrongFocus : Qt::ClickFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleDescription(QCoreApplication::translate("DieCell", "riga %1, colonna %2")
                                 .arg(rigaCella(index))
                                 .arg(colonnaCella(index)));
    setLetter('\0');
}

void DieCell::setPicture(const PictureBook& book, const std::string& name) {
    m_book = &book;
    m_name = name;
    update();
}

void DieCell::setLetter(char letter) {
    setAccessibleName(letter >= 'A' && letter <= 'Z'
                          ? QString(QChar::fromLatin1(letter))
                          : QCoreApplication::translate("DieCell", "vuoto"));
}

void DieCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0, 64, 0));
    if (!m_book) return;
    const qreal ratio = devicePixelRatioF();
    QPixmap picture = m_book->picture(m_name, ratio);
    if (picture.isNull()) picture = fallbackDie(m_name, ratio);
    painter.drawPixmap(0, 0, picture);
    if (hasFocus()) drawFocusMark(painter, rect());
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
    const bool shiftF10 = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit enterPressed();
        break;
    case Qt::Key_Escape:
        emit escapePressed();
        break;
    case Qt::Key_Space: // the left button
        emit pressed(m_index, 1);
        break;
    case Qt::Key_Menu: // the right button, as the key of context menus
        emit pressed(m_index, 2);
        break;
    case Qt::Key_Left:
        moveFocus(0, -1);
        break;
    case Qt::Key_Right:
        moveFocus(0, 1);
        break;
    case Qt::Key_Up:
        moveFocus(-1, 0);
        break;
    case Qt::Key_Down:
        moveFocus(1, 0);
        break;
    default:
        if (shiftF10) {
            emit pressed(m_index, 2);
            break;
        }
        QWidget::keyPressEvent(event);
        return;
    }
}

// The next die in that direction; at the board's edge the focus stays.
void DieCell::moveFocus(int rows, int columns) {
    const int row = m_index / kBoardSide + rows;
    const int column = m_index % kBoardSide + columns;
    if (row < 0 || row >= kBoardSide || column < 0 || column >= kBoardSide) return;
    const QString name = QStringLiteral("Picture1_%1").arg(row * kBoardSide + column);
    if (auto* next = parentWidget()->findChild<DieCell*>(name, Qt::FindDirectChildrenOnly))
        next->setFocus(Qt::OtherFocusReason);
}

void DieCell::focusInEvent(QFocusEvent* event) {
    // Tab comes back to the die left last.
    for (auto* die : parentWidget()->findChildren<DieCell*>(Qt::FindDirectChildrenOnly))
        die->setFocusPolicy(die == this ? Qt::StrongFocus : Qt::ClickFocus);
    update();
    QWidget::focusInEvent(event);
}

void DieCell::focusOutEvent(QFocusEvent* event) {
    update();
    QWidget::focusOutEvent(event);
}

} // namespace griglione
