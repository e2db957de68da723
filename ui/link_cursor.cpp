// The pointers shown over the program's links.
#include "ui/link_cursor.h"

#include "core/file_names.h"

#include <QPainter>
#include <QPixmap>

namespace griglione {

QCursor linkCursor() {
    // Loaded afresh on each call: a static pixmap would outlive the application object.
    const QPixmap hand(QString::fromStdString(resolveFileName(kHandPicture).string()));
    if (hand.isNull()) return QCursor(Qt::PointingHandCursor);
    // The tip of the index finger is the hot spot.
    return QCursor(hand, hand.width() * 9 / 32, 0);
}

QCursor iconCursor() {
    QPixmap icon(16, 16);
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
