// A label's picture that follows the pixel ratio of the screen it is shown on.
#include "ui/sharp_picture.h"

#include "platform/picture_book.h"

#include <QEvent>
#include <QLabel>

namespace griglione {

void SharpPicture::show(QLabel* label, const PictureBook& book, std::string name, QSize fit) {
    for (auto* old : label->findChildren<SharpPicture*>(Qt::FindDirectChildrenOnly))
        delete old;
    new SharpPicture(label, book, std::move(name), fit);
}

SharpPicture::SharpPicture(QLabel* label, const PictureBook& book, std::string name, QSize fit)
    : QObject(label), m_label(label), m_book(book), m_name(std::move(name)), m_fit(fit) {
    draw();
    label->installEventFilter(this);
}

void SharpPicture::draw() {
    m_ratio = m_label->devicePixelRatioF();
    const QPixmap picture = m_book.picture(m_name, m_ratio, m_fit);
    // A missing picture leaves the place empty, as the game goes on without it.
    if (!picture.isNull()) m_label->setPixmap(picture);
}

bool SharpPicture::eventFilter(QObject*, QEvent* event) {
    // Checked before each paint: a comparison, and a redraw only when the ratio has changed.
    if (event->type() == QEvent::Paint && m_label->devicePixelRatioF() != m_ratio) draw();
    return false;
}

} // namespace griglione
