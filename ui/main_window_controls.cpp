#include "ui/main_window_controls.h"

#include "board/board_layout.h"
#include "platform/fonts.h"
#include "ui/colours.h"
#include "ui/quiet_list.h"

#include "ui/accessibility.h"

#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QToolButton>

namespace griglione {

QLabel* label(QWidget* parent, const char* name, const QString& text, const QRect& geometry,
              const QColor& foreground, const QColor& background) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    l->setGeometry(geometry);
    l->setAlignment(Qt::AlignCenter);
    setColours(l, foreground, background);
    return l;
}

std::array<QFrame*, 2> boardShapes(QWidget* parent, const QRect& frame, const QRect& shadowCorner) {
    std::array<QFrame*, 2> shapes{};
    for (int i = 1; i >= 0; --i) {
        auto* shape = new QFrame(parent);
        shape->setObjectName(QStringLiteral("Shape1_%1").arg(i));
        shape->setGeometry(i == 0 ? frame : QRect(shadowCorner.topLeft(), frame.size()));
        shape->setFrameStyle(i == 0 ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
        shape->setAutoFillBackground(i == 1);
        QPalette palette = shape->palette();
        palette.setColor(QPalette::WindowText, Qt::black);
        palette.setColor(QPalette::Window, Qt::black);
        shape->setPalette(palette);
        markDecoration(shape);
        shapes[i] = shape;
    }
    return shapes;
}

QListWidget* wordList(QWidget* parent, const char* name, const QRect& geometry,
                      const QColor& background) {
    auto* list = new QuietList(parent);
    list->setObjectName(name);
    // Read by a screen reader's review, never a Tab stop: there is nothing to do in them.
    list->setFocusPolicy(Qt::NoFocus);
    list->setGeometry(geometry);
    QPalette palette = list->palette();
    palette.setColor(QPalette::Base, background);
    // The words stay dark on the list's fixed light ground under a dark theme too.
    palette.setColor(QPalette::Text, Qt::black);
    list->setPalette(palette);
    return list;
}

void showWords(QListWidget* list, const std::vector<std::string>& words) {
    if (static_cast<std::size_t>(list->count()) > words.size()) list->clear();
    for (std::size_t i = static_cast<std::size_t>(list->count()); i < words.size(); ++i)
        list->addItem(QString::fromStdString(words[i]));
    if (list->count() > 0) list->setCurrentRow(list->count() - 1);
}

QToolButton* pictureButton(QWidget* parent, const char* name, const QString& text,
                           const QRect& geometry, const QIcon& picture) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(text);
    button->setGeometry(geometry);
    button->setIcon(picture);
    button->setIconSize(QSize(32, 32));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QPixmap fallbackDie(const std::string& name, qreal ratio) {
    QPixmap die(QSize(64, 64) * ratio);
    die.setDevicePixelRatio(ratio);
    die.fill(kDarkGreen);
    QPainter painter(&die);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(250, 245, 225));
    painter.setPen(QPen(QColor(90, 80, 60), 2));
    painter.drawRoundedRect(QRectF(3, 3, 58, 58), 8, 8);
    if (name.size() > 7 && name != kBlankDie) {
        painter.setFont(tahoma(26, true));
        painter.setPen(Qt::black);
        painter.drawText(QRect(0, 0, 64, 64), Qt::AlignCenter, QString(QChar(name[6])));
    }
    return die;
}

} // namespace griglione
