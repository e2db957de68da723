// The keyboard and the name box: no two controls of a window share a key, Alt+O opens its menu
// at the first press, menus do not count as the name box losing the focus, the name keeps the
// file's case rule and length, a settings file that cannot be written is reported and kept, and
// the board's frame and the end-of-match window's name fit what they hold.
#include "tests/support/access_keys.h"
#include "tests/support/window_harness.h"
#include "ui/confirm_window.h"
#include "ui/end_of_match_window.h"
#include "ui/message_window.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>

using namespace griglione;
using namespace griglione::testing;

class KeyboardTest : public QObject {
    Q_OBJECT
    std::unique_ptr<GameHarness> game;

    void open(const std::string& settings = "") {
        if (!settings.empty()) game->folder.write("ZARMOLO.INI", settings);
        game->start();
        QApplication::setActiveWindow(game->window.get());
        name()->setFocus();
    }
    QLineEdit* name() { return game->get<QLineEdit>("Text1"); }
    // Types any character, as an input method would; QTest only types plain ASCII.
    void type(const QString& text) {
        for (const QChar c : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(name(), &press);
        }
    }
    void focusTheBoard() { game->get("Picture1_0")->setFocus(); }
    std::string savedName() {
        const std::string file = game->folder.read("ZARMOLO.INI");
        const auto at = file.find("Giocatore1=");
        return at == std::string::npos ? "" : file.substr(at + 11, file.find('\r', at) - at - 11);
    }

private slots:
    void init() { game = std::make_unique<GameHarness>(); }
    void cleanup() { game.reset(); }

    void noTwoControlsOfAWindowShareAKey() {
        open();
        QWidget* main = game->window.get();
        QCOMPARE(accessKeyClashes(main), QStringList());
        // "&Opzioni" repeats L and P among its items; Qt moves between them, as menus do.
        for (QMenu* menu : game->window->menuBar()->findChildren<QMenu*>())
            if (menu->objectName() != "menuOpzioni")
                QVERIFY2(accessKeyClashes(menu).isEmpty(), qPrintable(menu->objectName()));
        QTimer one, two;
        MessageHost messages(main);
        EndOfMatchWindow endOfMatch(
            one, two, game->sounds, messages, [] {}, main);
        MessageWindow message({"INFO!", "Prova", "Testo"}, main);
        ConfirmWindow confirm("ZEBRA", "Italiano", "", main);
        for (QWidget* w : std::initializer_list<QWidget*>{&endOfMatch, &message, &confirm})
            QCOMPARE(accessKeyClashes(w), QStringList());
    }

    void altOOpensTheOptionsMenuAtTheFirstPress() {
        open();
        focusTheBoard();
        QTest::keyClick(game->window.get(), Qt::Key_O, Qt::AltModifier);
        auto* options = game->window->menuBar()->findChild<QMenu*>("menuOpzioni");
        QTRY_VERIFY(options->isVisible());
        options->close();
    }

    // A name read is kept whole, a typed one is held to twelve characters of the file's own
    // set and upper-cased; it is saved when another control, not a menu, takes the focus.
    void theNameBoxKeepsTheFilesRulesAndSavesOnLeaving() {
        const std::string settings = "Giocatore1= giocatorelungo \r\n";
        open(settings);
        QCOMPARE(name()->text(), QString(" GIOCATORELUNGO "));
        QTest::keyClick(name(), Qt::Key_End);
        type("x");
        QTest::keyClick(name(), Qt::Key_Backspace);
        game->window->menuBar()->setFocus(Qt::MenuBarFocusReason); // a menu opened by keyboard
        name()->setFocus();
        QCOMPARE(game->folder.read("ZARMOLO.INI"), settings);
        focusTheBoard();
        QCOMPARE(savedName(), " GIOCATORELUNGO");
        name()->clear();
        type("abcdefghijklmn");
        QCOMPARE(name()->text(), QString("abcdefghijkl"));
        name()->clear();
        type(QString::fromUtf8("aßµéΩ€"));
        QCOMPARE(name()->text(), QString::fromUtf8("aßµé€"));
        name()->setFocus();
        focusTheBoard();
        QCOMPARE(name()->text(), QString::fromUtf8("AßµÉ€"));
        QCOMPARE(savedName(), "A\xDF\xB5\xC9\x80");
    }

    // Read-only, a full disk, a folder in its place: the choice still applies to the game.
    void aSettingsFileThatCannotBeWrittenIsReportedAndKept() {
        const std::string old = "Livello=100\r\nGiocatore1=ANNA\r\n";
        for (const int damage : {0, 1, 2}) {
            init();
            open(old);
            const auto file = game->folder.path() / "ZARMOLO.INI";
            if (damage == 0) std::filesystem::permissions(file, std::filesystem::perms::owner_read);
            if (damage == 2) std::filesystem::remove(file), std::filesystem::create_directory(file);
            {
                std::optional<WriteLimit> full;
                if (damage == 1) full.emplace(20);
                game->trigger("MenuMedio");
            }
            std::filesystem::permissions(file, std::filesystem::perms::owner_all);
            QVERIFY(damage == 2 ? std::filesystem::is_directory(file)
                                : game->folder.read("ZARMOLO.INI") == old);
            QCOMPARE(texts(game->alerts.shown),
                     QStringList("Errore 001: impossibile riscivere il file di inizializzazione "
                                 "ZARMOLO.INI"));
            QCOMPARE(game->timer("Timer2")->interval(), 300);
            QVERIFY(game->get<QAction>("MenuMedio")->isChecked());
        }
    }

    void theBoardFrameHugsTheDiceAndItsShadowShowsBelowRight() {
        open();
        QRect dice;
        for (int n = 0; n < kCells; ++n)
            dice |= game->get(qPrintable(QString("Picture1_%1").arg(n)))->geometry();
        const QRect frame = game->get("Shape1_0")->geometry();
        const QRect shadow = game->get("Shape1_1")->geometry();
        QCOMPARE(frame.adjusted(1, 1, -1, -1), dice);
        QCOMPARE(shadow.size(), frame.size());
        QVERIFY(shadow.left() > frame.left() && shadow.bottom() > frame.bottom());
    }

    void theEndOfMatchWindowShowsItsPictureAndAWideNameWhole() {
        QTimer one, two;
        MessageHost messages(nullptr);
        FakeSounds sounds;
        EndOfMatchWindow endOfMatch(
            one, two, sounds, messages, [] {}, nullptr);
        const QString wide(12, 'W');
        QTimer::singleShot(0, &endOfMatch, [&] {
            auto* label = child<QLabel>(&endOfMatch, "Label3_0");
            QVERIFY(label->fontMetrics().horizontalAdvance(wide) <= label->width());
            child<QLabel>(&endOfMatch, "Picture3");
            child<QAbstractButton>(&endOfMatch, "Command1")->click();
        });
        endOfMatch.showResult(wide, 0, 0, {});
    }
};

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
