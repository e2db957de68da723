// The setup the window tests share: a main window over a temporary folder with recording fakes,
// or one of the vocabulary editors over a small dictionary with scripted answers, and a way to
// act on a modal window from inside its own event loop.
#pragma once

#include "board/board_layout.h"
#include "core/mixing_random.h"
#include "dictionary/dictionary_format.h"
#include "tests/support/fakes.h"
#include "ui/editor_context.h"
#include "ui/main_window.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QtTest>

#include <deque>
#include <functional>
#include <memory>

namespace griglione::testing {

// The visible top-level window of that objectName, or nullptr.
inline QWidget* shownWindow(const QString& name) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == name && w->isVisible()) return w;
    return nullptr;
}

// Runs `action` on the window named `name` once it shows; polling from the event loop lets it
// run inside a modal window's own loop, which the test's code cannot reach otherwise.
inline void whenShown(const QString& name, std::function<void(QWidget*)> action, int tries = 2000) {
    QTimer::singleShot(5, [=] {
        if (QWidget* w = shownWindow(name)) return action(w);
        if (tries > 0) whenShown(name, action, tries - 1);
    });
}

inline QStringList texts(const std::vector<std::string>& lines) {
    QStringList all;
    for (const std::string& line : lines)
        all << QString::fromStdString(line);
    return all;
}
inline QStringList texts(const QListWidget* list) {
    QStringList all;
    for (int i = 0; i < list->count(); ++i)
        all << list->item(i)->text();
    return all;
}

template <typename T = QWidget> T* child(const QObject* parent, const char* name) {
    T* found = parent->findChild<T*>(name);
    if (!found) qFatal("no child %s", name);
    return found;
}

// A started and shown main window; its folder holds a dictionary of "ERA" unless the test
// writes another one before start().
struct GameHarness {
    TempFolder folder;
    FakeSounds sounds;
    FakeAlerts alerts;
    FakeOutside outside;
    FixedClock clock;
    MixingRandom random{7};
    int terminated = 0;
    std::unique_ptr<MainWindow> window;

    void start(
        std::function<void()> yield = [] {},
        const std::filesystem::path& where = std::filesystem::path()) {
        if (where.empty() && !folder.exists("SLESSICO.1"))
            folder.write("SLESSICO.1", buildDictionaryFile("test", WordLists{{{"ERA"}}}));
        window = std::make_unique<MainWindow>(
            Services{sounds, alerts, outside, clock, random, std::move(yield),
                     where.empty() ? folder.path() : where, [this] { ++terminated; }});
        window->startUp();
        window->show();
    }
    template <typename T = QWidget> T* get(const char* name) {
        return child<T>(window.get(), name);
    }
    void trigger(const char* action) { get<QAction>(action)->trigger(); }
    QTimer* timer(const char* name) { return get<QTimer>(name); }
    // Puts `letters` on the first dice, face 1 up, and redraws the board.
    void setBoard(const std::string& letters) {
        for (std::size_t n = 0; n < letters.size(); ++n)
            window->state().immagineCella[n] = dieName(letters[n], 1);
        window->changed(Aspect::Board);
    }
    void press(int die, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(get(qPrintable(QString("Picture1_%1").arg(die))), button);
    }
    // The objectNames of the checked menu items, sorted.
    QStringList checkedItems() {
        QStringList names;
        for (QAction* item : window->findChildren<QAction*>())
            if (item->isChecked()) names << item->objectName();
        names.sort();
        return names;
    }
};

// What an editor window needs, with the answers of its OK / Cancel boxes scripted and recorded.
struct EditorHarness {
    TempFolder folder;
    GameState state;
    OpenFileTable files;
    FakeAlerts alerts;
    std::deque<bool> answers;
    std::vector<std::string> asked;
    std::function<void()> onYield;
    int terminated = 0;
    std::unique_ptr<Dictionary> dictionary;

    EditorContext context(const WordLists& words) {
        folder.write("SLESSICO.1", buildDictionaryFile("test", words));
        dictionary = std::make_unique<Dictionary>(
            state, files, alerts, [] {}, folder.path());
        dictionary->prendidiz();
        const auto ask = [this](const std::string& text) {
            asked.push_back(text);
            const bool answer = answers.at(0);
            answers.pop_front();
            return answer;
        };
        const auto yield = [this] {
            QCoreApplication::processEvents();
            if (onYield) onYield();
        };
        return EditorContext{state,        *dictionary, files, alerts,
                             ask,          yield,       [] {}, [this] { ++terminated; },
                             folder.path()};
    }
    QString lastAlert() const {
        return QString::fromStdString(alerts.shown.empty() ? "" : alerts.shown.back());
    }
};

// Finds keys that two controls of one window share: an access key ('&' letter) or shortcut that
// belongs to two of them only moves the focus back and forth at each press, so neither acts.
using KeyOwners = QMap<QString, QStringList>;

inline QStringList clashes(const KeyOwners& owners) {
    QStringList found;
    for (auto it = owners.begin(); it != owners.end(); ++it)
        if (it->size() > 1) found << it.key() + ": " + it->join(", ");
    return found;
}

// The keys of a window: its buttons' live shortcuts (the access key unless taken away), labels
// that lead to a buddy, group boxes, the menu bar's titles and every action's shortcut.
inline QStringList accessKeyClashes(QWidget* window) {
    KeyOwners owners;
    const auto add = [&](const QKeySequence& key, const QString& owner) {
        if (!key.isEmpty()) owners[key.toString()] << owner;
    };
    for (auto* button : window->findChildren<QAbstractButton*>())
        if (!button->isHidden()) add(button->shortcut(), button->text());
    for (auto* label : window->findChildren<QLabel*>())
        if (label->buddy()) add(QKeySequence::mnemonic(label->text()), label->text());
    for (auto* box : window->findChildren<QGroupBox*>())
        add(QKeySequence::mnemonic(box->title()), box->title());
    for (auto* bar : window->findChildren<QMenuBar*>())
        for (QAction* menu : bar->actions())
            add(QKeySequence::mnemonic(menu->text()), menu->text());
    for (auto* action : window->findChildren<QAction*>())
        add(action->shortcut(), action->text());
    return clashes(owners);
}

// The access keys of the items of one drop-down menu, which are chosen among themselves while
// it is open.
inline QStringList accessKeyClashes(QMenu* menu) {
    KeyOwners owners;
    for (QAction* item : menu->actions())
        if (!item->isSeparator())
            owners[QKeySequence::mnemonic(item->text()).toString()] << item->text();
    owners.remove(QString());
    return clashes(owners);
}

// A key for the widget that has the focus, as the player would type it.
inline void key(Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), k, m);
}

} // namespace griglione::testing
