#include "ui/information_window.h"

#include "core/addresses.h"
#include "platform/fonts.h"
#include "records/record_address.h"
#include "ui/accessibility.h"
#include "ui/colours.h"
#include "ui/link_cursor.h"
#include "ui/message_window.h"
#include "ui/twips.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace griglione {
namespace {

QLabel* text(QWidget* parent, const char* name, const QString& content, const QRect& geometry,
             const QFont& font) {
    auto* label = new QLabel(content, parent);
    label->setObjectName(name);
    label->setGeometry(geometry);
    label->setFont(font);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setColours(label, Qt::white, kDarkGreen);
    return label;
}

QPixmap italianFlag(const QSize& size, qreal ratio) {
    QPixmap flag(size * ratio);
    flag.setDevicePixelRatio(ratio);
    QPainter painter(&flag);
    const int third = size.width() / 3;
    painter.fillRect(0, 0, third, size.height(), QColor(0, 146, 70));
    painter.fillRect(third, 0, size.width() - 2 * third, size.height(), QColor(244, 245, 240));
    painter.fillRect(size.width() - third, 0, third, size.height(), QColor(206, 43, 55));
    painter.setPen(QColor(0, 30, 0));
    painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    return flag;
}

// A left click released over the control, or Enter or Space while it has the focus.
bool isActivation(const QWidget* control, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        return mouse->button() == Qt::LeftButton &&
               control->rect().contains(mouse->position().toPoint());
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    }
    return false;
}

} // namespace

InformationWindow::InformationWindow(const QPixmap& picture, MessageHost& messages,
                                     std::function<void()> openMail, std::function<void()> openSite,
                                     QWidget* parent)
    : QDialog(parent), m_messages(messages), m_openMail(std::move(openMail)),
      m_openSite(std::move(openSite)) {
    setObjectName("Form3");
    setAttribute(Qt::WA_DeleteOnClose);
    // A blank, not an empty title: window managers show the program's name for an empty one.
    setWindowTitle(" ");
    setAccessibleName(tr("Informazioni su 'Il Griglione'"));
    setFixedSize(px(9000), px(5850));
    setAutoFillBackground(true);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, kDarkGreen);
    setPalette(palette);
    setCursor(Qt::ArrowCursor);

    m_picture = new QLabel(this);
    m_picture->setObjectName("Picture2");
    m_picture->setAccessibleName(tr("Il Griglione"));
    m_picture->setAccessibleDescription(tr("Manda una mail all'autore"));
    m_picture->setGeometry(24, 24, 160, 84);
    m_picture->setPixmap(picture);
    m_picture->setCursor(iconCursor());
    m_picture->installEventFilter(this);

    text(this, "Label1", "Il Griglione", {208, 20, 368, 40}, tahoma(20, true));
    text(this, "Label2", tr("Versione 3.1.0"), {210, 62, 366, 22}, tahoma(10, true));
    text(this, "Label4",
         tr("Gioco di parole su una griglia di 5 × 5 dadi con lettere, "
            "contro il computer."),
         {210, 88, 366, 36}, tahoma(9));
    text(this, "Label5",
         tr("Ideazione e programmazione: Brivo.\n\n"
            "Trova più parole del computer prima che scada il tempo: le parole lunghe valgono "
            "molto di più. Quattro avversari ti aspettano, da Birillo, che gioca con calma, a "
            "Sapienzo, che non perdona.\n\n"
            "Dizionari italiano, inglese e latino ricavati da elenchi di parole liberi "
            "(witalian, hunspell-it, SCOWL e il dizionario latino di Karl Zeiler), con le loro "
            "licenze. "
            "Dadi, logo e suoni disegnati e composti apposta per Il Griglione.\n\n"
            "Grazie a chi gioca e segnala le parole che mancano."),
         {24, 132, 552, 150}, tahoma(9));

    m_site = link("Label6", QString::fromStdString(testoServizio(indirizzoServizio())),
                  tr("Clicca per visitare la \"Brivo home page\""), 290);
    m_site->setCursor(linkCursor());
    m_mail = link("Label3", QString::fromUtf8(kEmailAutore),
                  tr("Clicca per mandare una mail all'autore"), 316);
    m_mail->setCursor(iconCursor());

    auto* flag = new QLabel(this);
    flag->setObjectName("Picture1");
    flag->setGeometry(24, 348, 36, 24);
    flag->setPixmap(italianFlag(flag->size(), devicePixelRatioF()));
    flag->setToolTip(tr("Software Italiano"));
    flag->setAccessibleName(tr("Software Italiano"));

    auto* ok = new QPushButton(tr("&OK"), this);
    ok->setObjectName("Command3d1");
    ok->setToolTip(tr("Fatto"));
    ok->setGeometry(twipsRect(6420, 4800, 2400, 825));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] {
        unsetCursor();
        close();
    });
    ok->setFocus();
    centreOnScreen(this);
}

QLabel* InformationWindow::link(const char* name, const QString& content, const QString& toolTip,
                                int top) {
    QFont font = tahoma(10, true);
    font.setUnderline(true);
    QLabel* label = text(this, name, content, {24, top, 360, 22}, font);
    // As wide as its text, so that the focus box below hugs the link.
    label->resize(label->sizeHint().width() + 6, label->height());
    setTextColour(label, kLinkYellow);
    label->setToolTip(toolTip);
    // Reached with Tab as well, so the links work from the keyboard; the box shows the focus.
    label->setFocusPolicy(Qt::TabFocus);
    label->installEventFilter(this);
    presentAsLink(label);
    return label;
}

bool InformationWindow::event(QEvent* event) {
    // The information window and a game message are not shown together.
    if (event->type() == QEvent::WindowActivate) m_messages.chiudi();
    return QDialog::event(event);
}

bool InformationWindow::eventFilter(QObject* watched, QEvent* event) {
    auto* label = qobject_cast<QLabel*>(watched);
    if (label && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        label->setFrameStyle(event->type() == QEvent::FocusIn ? QFrame::Box : QFrame::NoFrame);
    if (label && isActivation(label, event)) {
        if (watched == m_site)
            m_openSite();
        else
            m_openMail();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace griglione
