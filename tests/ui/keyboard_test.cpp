// The keyboard and the name box: no two controls of a window share a key, Alt+O opens its menu
// at the first press, menus do not count as the name box losing the focus, the name keeps the
// file's case rule and length, and a settings file that cannot be written is reported and kept.
#include "dictionary/dictionary_format.h"
#include "tests/support/access_keys.h"
#include "tests/support/fakes.h"
#include "ui/confirm_window.h"
#include "ui/die_cell.h"
#include "ui/end_of_match_window.h"
#include "ui/main_window.h"
#include "ui/message_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QTimer>
#include <QtTest>

using namespace griglione;
using namespace griglione::testing;

class KeyboardTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TempFolder> folder;
    FakeSounds sounds;
    FakeAlerts alerts;
    FakeOutside outside;
    FixedClock clock;
    ScriptedRandom random;
    std::unique_ptr<MainWindow> window;

    void open() {
        folder->write("SLESSICO.1", buildDictionaryFile("test", {}));
        window = std::make_unique<MainWindow>(
            Services{sounds, alerts, outside, clock, random, [] {}, folder->path(), [] {}});
        window->startUp();
        window->show();
        QApplication::setActiveWindow(window.get());
        name()->setFocus();
    }
    QLineEdit* name() { return window->findChild<QLineEdit*>("Text1"); }
    // Types any character, as an input method would; QTest only types plain ASCII.
    void type(const QString& text) {
        for (const QChar c : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(name(), &press);
        }
    }
    void focusTheBoard() { window->findChild<DieCell*>("Picture1_0")->setFocus(); }
    std::string savedLine(const std::string& key) {
        const std::string file = folder->read("ZARMOLO.INI");
        const auto at = file.find(key);
        return at == std::string::npos ? "" : file.substr(at, file.find('\r', at) - at);
    }

private slots:
    void init() {
        folder = std::make_unique<TempFolder>();
        alerts.shown.clear();
    }
    void cleanup() {
        window.reset();
        folder.reset();
    }

    void noTwoControlsOfAWindowShareAKey() {
        open();
        QCOMPARE(accessKeyClashes(window.get()), QStringList());
        // "&Opzioni" repeats L and P among its items; Qt moves between them, as menus do.
        for (QMenu* menu : window->menuBar()->findChildren<QMenu*>())
            if (menu->objectName() != "menuOpzioni")
                QVERIFY2(accessKeyClashes(menu).isEmpty(), qPrintable(menu->objectName()));
        QTimer one, two;
        MessageHost messages(window.get());
        EndOfMatchWindow endOfMatch(
            one, two, sounds, messages, [] {}, window.get());
        MessageWindow message({"INFO!", "Prova", "Testo"}, window.get());
        ConfirmWindow confirm("ZEBRA", "Italiano", "", window.get());
        for (QWidget* w : std::initializer_list<QWidget*>{&endOfMatch, &message, &confirm})
            QVERIFY2(accessKeyClashes(w).isEmpty(), qPrintable(accessKeyClashes(w).join("; ")));
    }

    void altOOpensTheOptionsMenuAtTheFirstPress() {
        open();
        focusTheBoard();
        QTest::keyClick(window.get(), Qt::Key_O, Qt::AltModifier);
        auto* options = window->menuBar()->findChild<QMenu*>("menuOpzioni");
        QTRY_VERIFY(options->isVisible());
        options->close();
    }

    void onlyAnotherControlTakingTheFocusSavesTheName() {
        open();
        name()->setText("mario");
        window->menuBar()->setFocus(Qt::MenuBarFocusReason); // a menu opened by keyboard
        name()->setFocus();
        QVERIFY(!folder->exists("ZARMOLO.INI"));
        focusTheBoard();
        QCOMPARE(savedLine("Giocatore1="), std::string("Giocatore1=MARIO"));
    }

    void aNameReadIsKeptWholeAndATypedOneIsHeldToTwelve() {
        folder->write("ZARMOLO.INI", "Giocatore1= giocatorelungo \r\n");
        open();
        QCOMPARE(name()->text(), QString(" GIOCATORELUNGO "));
        QTest::keyClick(name(), Qt::Key_End);
        type("x");
        QTest::keyClick(name(), Qt::Key_Backspace);
        focusTheBoard();
        QCOMPARE(savedLine("Giocatore1="), std::string("Giocatore1= GIOCATORELUNGO"));
        name()->clear();
        type("abcdefghijklmn");
        QCOMPARE(name()->text(), QString("abcdefghijkl"));
    }

    void aTypedNameTakesTheFilesUpperCaseAndOnlyItsCharacters() {
        open();
        name()->clear();
        type(QString::fromUtf8("aßµéΩ€"));
        QCOMPARE(name()->text(), QString::fromUtf8("aßµé€"));
        focusTheBoard();
        QCOMPARE(name()->text(), QString::fromUtf8("AßµÉ€"));
        QCOMPARE(savedLine("Giocatore1="), std::string("Giocatore1=A\xDF\xB5\xC9\x80"));
    }

    void aSettingsFileThatCannotBeWrittenIsReportedAndKept() {
        const std::string old = "Livello=300\r\nGiocatore1=ANNA\r\n";
        for (const bool readOnly : {true, false}) {
            folder->write("ZARMOLO.INI", old);
            const auto file = folder->path() / "ZARMOLO.INI";
            if (readOnly) std::filesystem::permissions(file, std::filesystem::perms::owner_read);
            open();
            {
                std::optional<WriteLimit> full;
                if (!readOnly) full.emplace(20);
                window->findChild<QAction*>("menuL1")->trigger();
            }
            std::filesystem::permissions(file, std::filesystem::perms::owner_all);
            QCOMPARE(folder->read("ZARMOLO.INI"), old);
            QCOMPARE(alerts.shown,
                     std::vector<std::string>{"Errore 001: impossibile riscivere il "
                                              "file di inizializzazione ZARMOLO.INI"});
            alerts.shown.clear();
        }
    }

    void theBoardFrameHugsTheDiceAndItsShadowShowsBelowRight() {
        open();
        QRect dice;
        for (auto* cell : window->findChildren<DieCell*>())
            dice |= cell->geometry();
        const QRect frame = window->findChild<QWidget*>("Shape1_0")->geometry();
        const QRect shadow = window->findChild<QWidget*>("Shape1_1")->geometry();
        QVERIFY(frame.contains(dice) && frame.adjusted(1, 1, -1, -1) == dice);
        QCOMPARE(shadow.size(), frame.size());
        QVERIFY(shadow.left() > frame.left() && shadow.bottom() > frame.bottom());
    }

    void theEndOfMatchWindowShowsItsPictureAndAWideNameWhole() {
        QTimer one, two;
        MessageHost messages(nullptr);
        EndOfMatchWindow endOfMatch(
            one, two, sounds, messages, [] {}, nullptr);
        const QString wide(12, 'W');
        QTimer::singleShot(0, &endOfMatch, [&] {
            auto* label = endOfMatch.findChild<QLabel*>("Label3_0");
            QVERIFY(label->fontMetrics().horizontalAdvance(wide) <= label->width());
            QVERIFY(endOfMatch.findChild<QLabel*>("Picture3"));
            endOfMatch.findChild<QAbstractButton*>("Command1")->click();
        });
        endOfMatch.showResult(wide, 0, 0, {});
    }
};

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
