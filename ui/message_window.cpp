#include "ui/message_window.h"

#include "platform/fonts.h"
#include "ui/colours.h"
#include "ui/twips.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>
#include <QTimer>

namespace griglione {
namespace {

QColor colourOf(int number) {
    const Rgb c = consoleColour(number);
    return {c.r, c.g, c.b};
}

void paint(QLabel* label, int foreground, int background) {
    setColours(label, colourOf(foreground), colourOf(background));
}

} // namespace

void centreOnScreen(QWidget* window) {
    const QScreen* screen = window->screen();
    if (!screen) return;
    const QRect area = screen->geometry();
    const QSize size = window->frameGeometry().size();
    window->move((area.width() - size.width()) / 2, (area.height() - size.height()) / 2);
}

MessageWindow::MessageWindow(const Messaggio& messaggio, QWidget* parent) : QDialog(parent) {
    setObjectName("Form8");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QString::fromStdString("Il Griglione - " + messaggio.intestazione));
    setFixedSize(px(6075), px(5295));

    auto* frame = new QGroupBox(this);
    frame->setObjectName("Frame1");
    frame->setGeometry(twipsRect(660, 240, 4665, 1455));
    const QString title = QString::fromStdString(messaggio.titolo);
    const std::array<int, 5> lefts = {360, 1170, 1980, 2790, 3600};
    for (int i = 0; i < 5; ++i) {
        auto* letter = new QLabel(i < title.size() ? title.mid(i, 1) : QString(), frame);
        letter->setObjectName(QStringLiteral("Label1_%1").arg(i));
        letter->setGeometry(twipsRect(lefts[i], 270, 765, 915));
        letter->setAlignment(Qt::AlignCenter);
        letter->setFont(tahoma(36, true));
        paint(letter, 15, 0);
        m_letters[i] = letter;
    }

    auto* body = new QTextEdit(this);
    body->setObjectName("Text1");
    body->setGeometry(twipsRect(660, 1770, 4695, 2205));
    body->setFont(tahoma(12, true));
    body->setReadOnly(true);
    body->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    body->setPlainText(QString::fromStdString(messaggio.testo).replace("\r\n", "\n"));

    auto* ok = new QPushButton("&OK", this);
    ok->setObjectName("Command3d1");
    ok->setToolTip("OK, fatto");
    ok->setGeometry(twipsRect(690, 4050, 4665, 1035));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::close);

    m_timer = new QTimer(this);
    m_timer->setObjectName("Timer1");
    m_timer->setInterval(80);
    connect(m_timer, &QTimer::timeout, this, &MessageWindow::flash);
    m_timer->start();
    centreOnScreen(this);
}

void MessageWindow::flash() {
    const FlashStep step = m_flash.step();
    paint(m_letters[step.letter], step.foreground, step.background);
}

void MessageHost::mostraMessaggio(const Messaggio& messaggio, bool modal) {
    chiudi();
    m_window = new MessageWindow(messaggio, m_parent);
    if (modal) {
        m_window->exec();
    } else {
        m_window->show();
    }
}

void MessageHost::chiudi() {
    if (m_window) m_window->close();
}

} // namespace griglione
