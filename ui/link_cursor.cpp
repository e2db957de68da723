// The pointers shown over the program's links.
#include "ui/link_cursor.h"

#include "platform/picture_book.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

namespace griglione {

QCursor linkCursor() {
    // Drawn afresh on each call, for the screen's ratio: a static pixmap would outlive the
    // application object.
    const QPixmap hand = PictureBook(".").picture(kHandPicture, qApp->devicePixelRatio());
    if (hand.isNull()) return QCursor(Qt::PointingHandCursor);
    // The tip of the index finger is the hot spot, in logical pixels.
    return QCursor(hand, qRound(hand.deviceIndependentSize().width() * 9 / 32), 0);
}

QCursor iconCursor() {
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap icon(QSize(16, 16) * ratio);
    icon.setDevicePixelRatio(ratio);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    painter.drawRect(1, 1, 13, 13);
    painter.fillRect(5, 5, 6, 6, Qt::black);
    painter.end();
    return QCursor(icon, 8, 8);
}

} // namespace griglione
