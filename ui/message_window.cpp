#include "ui/message_window.h"

#include "platform/fonts.h"
#include "ui/accessibility.h"
#include "ui/colours.h"
#include "ui/twips.h"

#include <QApplication>
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

namespace {

QMargins frameMargins(const QWidget* window) {
    const QRect frame = window->frameGeometry();
    const QRect inner = window->geometry();
    return {inner.left() - frame.left(), inner.top() - frame.top(), frame.right() - inner.right(),
            frame.bottom() - inner.bottom()};
}

// A window gets its frame from the window manager only once it is shown, so before that the
// frame is taken to be that of a window already framed (the main window): the same manager
// draws the same frame, and the window opens in its place instead of a title bar too low.
QMargins expectedFrame(const QWidget* window) {
    if (!frameMargins(window).isNull()) return frameMargins(window);
    for (const QWidget* other : QApplication::topLevelWidgets())
        if (other != window && other->isVisible() && !frameMargins(other).isNull())
            return frameMargins(other);
    return {};
}

void placeCentred(QWidget* window, const QMargins& frame) {
    const QScreen* screen = window->screen();
    if (!screen) return;
    const QRect area = screen->geometry();
    const QSize size = window->size().grownBy(frame);
    window->move((area.width() - size.width()) / 2, (area.height() - size.height()) / 2);
}

// Centres the window again when its own frame turns out other than expected, then lets go, so
// a window the player moves later stays where it is put.
class CentreWhenFramed final : public QObject {
public:
    CentreWhenFramed(QWidget* window, const QMargins& expected)
        : QObject(window), m_window(window), m_expected(expected) {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            m_window->removeEventFilter(this);
            check(40);
        }
        return false;
    }

private:
    void check(int tries) {
        const QMargins frame = frameMargins(m_window);
        if (frame.isNull() && tries > 0) {
            QTimer::singleShot(25, this, [this, tries] { check(tries - 1); });
            return;
        }
        if (frame != m_expected) placeCentred(m_window, frame);
        deleteLater();
    }

    QWidget* m_window;
    QMargins m_expected;
};

} // namespace

void centreOnScreen(QWidget* window) {
    const QMargins frame = expectedFrame(window);
    placeCentred(window, frame);
    if (!window->isVisible()) new CentreWhenFramed(window, frame);
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
    // Read whole with the window, as its text: a screen reader reads a text field a line at a
    // time from the focus. The focus goes to OK, which reads the window.
    readWhole(body, body->toPlainText());
    // The five big letters are one title.
    readWhole(frame, title);

    auto* ok = new QPushButton(tr("&OK"), this);
    ok->setObjectName("Command3d1");
    ok->setToolTip(tr("OK, fatto"));
    ok->setGeometry(twipsRect(690, 4050, 4665, 1035));
    ok->setDefault(true);
    ok->setFocus();
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
    show(messaggio, modal, !modal && m_news && m_news(messaggio));
}

void MessageHost::showToRead(const Messaggio& messaggio) {
    show(messaggio, false, false);
}

void MessageHost::show(const Messaggio& messaggio, bool modal, bool news) {
    chiudi();
    m_window = new MessageWindow(messaggio, m_parent);
    if (modal) {
        m_window->exec();
        return;
    }
    if (m_keyWatcher) m_window->installEventFilter(m_keyWatcher);
    m_window->setAttribute(Qt::WA_ShowWithoutActivating, news);
    m_window->show();
}

void MessageHost::chiudi() {
    if (m_window) m_window->close();
}

} // namespace griglione
