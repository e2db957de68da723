// The program's own message window (Form8): a five-letter headline in big flashing letters, a
// heading in the caption, a scrolling body and an OK button.
#pragma once

#include "core/game_state.h"
#include "core/letter_flash.h"
#include "core/ports.h"

#include <QDialog>
#include <QPointer>

#include <array>
#include <functional>

class QLabel;
class QTimer;

namespace griglione {

class MessageWindow final : public QDialog {
    Q_OBJECT
public:
    MessageWindow(const Messaggio& messaggio, QWidget* parent);

    // One step of the headline's colour animation (the 80 ms timer calls it).
    void flash();

private:
    std::array<QLabel*, 5> m_letters{};
    LetterFlash m_flash;
    QTimer* m_timer = nullptr;
};

// Keeps the one message window of the program: every message closes the previous window and
// opens a new one, modal or not as the caller asks.
class MessageHost final : public Messages {
public:
    explicit MessageHost(QWidget* parent) : m_parent(parent) {}

    void mostraMessaggio(const Messaggio& messaggio, bool modal) override;
    // A message the player asked for: it takes the focus, whatever the news handler says.
    void showToRead(const Messaggio& messaggio);
    // Decides whether a message that does not block is news of the match running: news is
    // told to the screen reader by the handler and shown without taking the focus, so that the
    // player types on.
    void setNewsHandler(std::function<bool(const Messaggio&)> handler) {
        m_news = std::move(handler);
    }
    void chiudi();
    // Watches the keys of every message that does not block, so typing goes on behind it.
    void setKeyWatcher(QObject* watcher) { m_keyWatcher = watcher; }
    MessageWindow* window() const { return m_window; }

private:
    void show(const Messaggio& messaggio, bool modal, bool news);

    QWidget* m_parent;
    std::function<bool(const Messaggio&)> m_news;
    QPointer<MessageWindow> m_window;
    QObject* m_keyWatcher = nullptr;
};

// Places a window in the middle of the screen.
void centreOnScreen(QWidget* window);

} // namespace griglione
