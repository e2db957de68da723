// The main window in a temporary folder: its start-up state, the announcement and F2, words played
// with real clicks and keys, the confirmation, the options menus and the line width as drawn, two
// short matches against the fastest opponent with the end-of-match window and the review between
// them; the keyboard and the name box, the records window, the help links, and an installed game
// whose changes are kept in the player's own folder.
#include "core/addresses.h"
#include "core/file_names.h"
#include "platform/game_folder.h"
#include "tests/support/window_harness.h"
#include "ui/end_of_match_window.h"
#include "ui/time_bar.h"

#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QRadioButton>
#include <QScopeGuard>
#include <QTextEdit>

using namespace griglione;
using namespace griglione::testing;
namespace fs = std::filesystem;

class MainWindowTest : public QObject {
    Q_OBJECT
    std::unique_ptr<GameHarness> game;
    // Answers every modal message (the match announcement) as the player would, noting it.
    QTimer answerer;
    QStringList announced;
    bool clockRanDuringAnnouncement = false;

    void open(const std::string& settings = "") {
        if (!settings.empty()) game->folder.write("ZARMOLO.INI", settings);
        game->start([] { QCoreApplication::processEvents(); });
    }
    GameState& state() { return game->window->state(); }
    QString text(const char* label) { return game->get<QLabel>(label)->text(); }
    bool running(const char* timer) { return game->timer(timer)->isActive(); }
    void click(QWidget* window, const char* button) {
        child<QAbstractButton>(window, button)->click();
    }
    // The thickness of the traced line from die 0 to die 1, measured across it in die 0.
    int drawnLineWidth() {
        QWidget* overlay = game->get("path");
        QImage image(overlay->size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        overlay->render(&image);
        int rows = 0;
        for (int y = 0; y < image.height(); ++y)
            rows += qRed(image.pixel(48, y)) < 64 && qBlue(image.pixel(48, y)) > 64;
        return rows;
    }

    // For the keyboard: the main window active and the name box focused.
    void openForKeys(const std::string& settings = "") {
        open(settings);
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
    bool savedName(const std::string& name) {
        return game->folder.read("ZARMOLO.INI").find("Giocatore1=" + name + "\r\n") !=
               std::string::npos;
    }
    // Keys reach the menu's shortcuts only while the main window is the active one.
    void press(const QString& keys) {
        game->window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(game->window.get()));
        QTest::keySequence(game->window.get(), QKeySequence(keys));
    }
    static QWidgetList informationWindows() {
        QWidgetList found = QApplication::topLevelWidgets();
        found.removeIf([](QWidget* w) { return w->objectName() != "Form3"; });
        return found;
    }

public:
    MainWindowTest() {
        answerer.setInterval(5);
        connect(&answerer, &QTimer::timeout, this, [this] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (w->objectName() == "Form8" && w->isVisible() && w->isModal()) {
                    announced << w->windowTitle() + "|" +
                                     child<QTextEdit>(w, "Text1")->toPlainText();
                    clockRanDuringAnnouncement |= running("Timer1");
                    click(w, "Command3d1");
                }
        });
    }

private slots:
    void init() {
        game = std::make_unique<GameHarness>();
        for (const char* name : {"SLESSICO.1", "SLESSICO.2"})
            game->folder.write(name,
                               buildDictionaryFile("test", {{{"ERA", "ORA"}, {"CASA", "MARE"}}}));
        announced.clear();
        clockRanDuringAnnouncement = false;
        answerer.start();
    }
    void cleanup() {
        answerer.stop();
        game.reset();
    }

    void startsWaitingWithTheStoredSettingsAndAnnouncesTheFirstMatch() {
        const std::string settings =
            "Livello=300\r\nSuono=NO\r\nTempo=30\r\nGiocatore1=anna\r\nDizionario= 2 \r\n";
        open(settings);
        QVERIFY(!running("Timer1") && !running("Timer2"));
        QCOMPARE(game->timer("Timer2")->interval(), 300);
        QVERIFY(tavolaVuota(state()));
        QCOMPARE(game->window->windowTitle(), QString("Il Griglione - Dizionario English"));
        QCOMPARE(game->checkedItems(), QStringList({"MenuMedio", "Menuing", "menu30s", "menuL2"}));
        QCOMPARE(game->get<QLineEdit>("Text1")->text(), QString("ANNA"));
        QCOMPARE(text("Label10") + "|" + text("Label1"), QString("0|"));
        QCOMPARE(game->folder.read("ZARMOLO.INI"), settings);
        // A press on the blank board announces the match; F2 starts another without a word.
        game->press(7, Qt::RightButton);
        QCOMPARE(announced.size(), 1);
        QVERIFY(announced[0].startsWith("Il Griglione - Inizio partita|Si inizia una nuova partita "
                                        "di 60 secondi.\nIl dizionario usato"));
        QVERIFY(!clockRanDuringAnnouncement);
        QVERIFY(running("Timer1") && running("Timer2"));
        QVERIFY(!tavolaVuota(state()));
        QCOMPARE(state().parolaComposta, std::string());
        const auto board = state().immagineCella;
        QApplication::setActiveWindow(game->window.get());
        QTest::keyClick(game->window.get(), Qt::Key_F2);
        QCOMPARE(announced.size(), 1);
        QVERIFY(state().immagineCella != board);
        QVERIFY(running("Timer1"));
    }

    void playsWordsWithClicksAndEnterAndConfirmsAnUnknownOne() {
        open();
        game->trigger("menuNuovo");
        game->timer("Timer2")->stop(); // the opponent stays out of this one
        game->setBoard("CASAXMAREXZEBRA");
        for (int n : {0, 1, 2, 3})
            game->press(n);
        QCOMPARE(text("Label1"), QString("CASA"));
        QTest::keyClick(game->get("Picture1_3"), Qt::Key_Return);
        for (int n : {5, 6, 7, 8})
            game->press(n);
        QTest::keyClick(game->window.get(), Qt::Key_Return); // Enter on the window, not on a die
        QCOMPARE(text("Label10"), QString("640"));
        auto* list = game->get<QListWidget>("List1");
        QCOMPARE(texts(list), QStringList({"casa", "mare"}));
        QCOMPARE(list->currentRow(), 1);
        MessageWindow* message = game->window->messages().window();
        QVERIFY(message && message->isVisible());
        QCOMPARE(message->windowTitle(), QString("Il Griglione - Complimenti, parola accettata!"));
        QCOMPARE(child<QLabel>(message, "Label1_0")->text(), QString("B"));
        QCOMPARE(child<QLabel>(message, "Label1_4")->text(), QString("!"));
        QCOMPARE(text("Label1"), QString());
        QCOMPARE(game->sounds.played.back(), "vinci.wav");
        // Tracing across a row end is refused with the "OOPS!" message.
        game->press(4);
        game->press(5);
        QCOMPARE(game->window->messages().window()->windowTitle(),
                 QString("Il Griglione - Lettera non adiacente"));
        QCOMPARE(text("Label1"), QString("X"));
        QTest::keyClick(game->get("Picture1_4"), Qt::Key_Escape);
        QCOMPARE(text("Label1"), QString());
        // An unknown word is confirmed into the personal vocabulary.
        for (int n : {10, 11, 12, 13, 14})
            game->press(n);
        bool clockStopped = false;
        whenShown("Form6", [&](QWidget* w) {
            clockStopped = !running("Timer1");
            QVERIFY(child<QRadioButton>(w, "Option3")->isChecked());
            QCOMPARE(child<QLabel>(w, "Label2")->text(), QString("ZEBRA"));
            QCOMPARE(child<QLabel>(w, "Label3")->text(), QString("Dizionario in Italiano"));
            child<QRadioButton>(w, "Option1")->setChecked(true);
            click(w, "Command1");
        });
        click(game->window.get(), "Command2");
        QVERIFY(clockStopped && running("Timer1"));
        QCOMPARE(game->folder.read("ZarmPriv.1"), std::string("ZEBRA\r\n"));
        QCOMPARE(text("Label10"), QString("1140"));
        // Closed by its frame, the window answers "do not add", whatever option is chosen.
        for (int n : {10, 11, 12})
            game->press(n);
        whenShown("Form6", [&](QWidget* w) {
            child<QRadioButton>(w, "Option1")->setChecked(true);
            w->close();
        });
        click(game->window.get(), "Command2");
        QCOMPARE(state().rispostaConferma, 3);
        QCOMPARE(game->folder.read("ZarmPriv.1"), std::string("ZEBRA\r\n"));
        QCOMPARE(text("Label10"), QString("1140"));
        QVERIFY(running("Timer1"));
    }

    void optionsAreStoredOnlyOnceChangedAndLengthRestartsTheMatch() {
        open();
        QVERIFY(!game->folder.exists("ZARMOLO.INI"));
        QCOMPARE(game->timer("Timer2")->interval(), 200);
        QCOMPARE(game->checkedItems(), QStringList({"MenuSuono", "Menuita", "menuL2"}));
        game->trigger("menuL1");
        QCOMPARE(game->folder.read("ZARMOLO.INI"),
                 std::string("Livello=200\r\nSuono=SI\r\nTempo=90\r\nGiocatore1=BRIVO\r\n"
                             "SpessoreLinea= 1 \r\nDizionario= 1 \r\n"));
        game->trigger("MenuExpert");
        QCOMPARE(game->timer("Timer2")->interval(), 100);
        game->trigger("MenuSuono");
        game->trigger("Menu300s");
        QCOMPARE(announced.size(), 1);
        QVERIFY(running("Timer1"));
        QCOMPARE(state().tempoPartita, 300);
        // The language already checked does nothing; another one restarts with its dictionary.
        game->trigger("Menuita");
        QCOMPARE(game->checkedItems(),
                 QStringList({"Menu300s", "MenuExpert", "Menuita", "menuL1"}));
        QCOMPARE(announced.size(), 1);
        game->trigger("Menuing");
        QCOMPARE(announced.size(), 2);
        QCOMPARE(game->window->windowTitle(), QString("Il Griglione - Dizionario English"));
        QCOMPARE(game->folder.read("ZARMOLO.INI"),
                 std::string("Livello=100\r\nSuono=NO\r\nTempo=270\r\nGiocatore1=BRIVO\r\n"
                             "SpessoreLinea= 1 \r\nDizionario= 2 \r\n"));
    }

    void theLineWidthIsReadMappedDrawnAndStored() {
        const struct {
            const char *stored, *item;
            int pixels;
            const char* written;
        } cases[] = {
            {"5", "menuL2", 12, " 7 "}, {" 13 ", "menuL3", 18, " 13 "}, {"1", "menuL1", 6, " 1 "}};
        for (const auto& c : cases) {
            init();
            open(std::string("SpessoreLinea=") + c.stored + "\r\n");
            QVERIFY2(game->get<QAction>(c.item)->isChecked(), c.item);
            game->trigger("menuNuovo");
            game->timer("Timer2")->stop();
            game->press(0);
            game->press(1);
            QCOMPARE(drawnLineWidth(), c.pixels);
            game->trigger("MenuBir");
            const std::string line = std::string("SpessoreLinea=") + c.written + "\r\n";
            QVERIFY2(game->folder.read("ZARMOLO.INI").find(line) != std::string::npos, c.item);
            cleanup();
        }
    }

    void twoShortMatchesAgainstTheFastestOpponentShareOneResultWindow() {
        game->folder.write("SLESSICO.1", buildDictionaryFile("test", {{{"AAA", "EEE"}}}));
        open("Livello=100\r\nTempo=30\r\n");
        game->trigger("menuNuovo");
        game->setBoard("AEAEAEAEAEAEAEAEAEAEAEAEA"); // full of both words
        const auto aeBoard = state().immagineCella;
        QTimer* timer1 = game->timer("Timer1");
        QTimer* timer2 = game->timer("Timer2");
        // The clock waits for the opponent to find both words, and the opponent then rests, so that
        // no walk is halfway through a yield when the time runs out.
        timer1->setInterval(60'000);
        timer2->setInterval(1);
        QTRY_COMPARE_WITH_TIMEOUT(state().puntiCPU, 360, 10000);
        timer2->stop();
        timer1->setInterval(1);
        int shown = 0, nestedTicks = 0, opponentRan = 0;
        bool reviewKeptTheClockStopped = false;
        QStringList first, history, reviewed;
        QImage reviewBoard;
        std::function<void(QWidget*)> onResult = [&](QWidget* w) {
            ++shown;
            opponentRan += timer2->isActive();
            auto* list = child<QListWidget>(w, "List1");
            if (shown == 1) {
                for (const char* label : {"Label1", "Label3_1", "Label10"})
                    first << child<QLabel>(w, label)->text();
                first << list->item(0)->text();
                // Ticks falling due now are dropped: with a longer match they would count on.
                const int elapsed = state().secondiTrascorsi;
                state().tempoPartita = 1000;
                timer1->start(0);
                QTest::qWait(30);
                timer1->stop();
                nestedTicks = state().secondiTrascorsi - elapsed;
            } else {
                history = texts(list);
                whenShown("Form10", [&](QWidget* review) {
                    for (const char* label : {"Label1", "Label4"})
                        reviewed << child<QLabel>(review, label)->text();
                    auto* missed = child<QListWidget>(review, "List3");
                    QTest::mouseClick(missed->viewport(), Qt::LeftButton, {},
                                      missed->visualItemRect(missed->item(0)).center());
                    reviewBoard = child(review, "board")->grab().toImage();
                    reviewKeptTheClockStopped = !timer1->isActive() && !timer2->isActive();
                    click(review, "Command2");
                });
                click(w, "Command3");
                reviewKeptTheClockStopped &= w->isVisible() && !timer1->isActive();
                click(w, "Command2");
            }
            timer1->setInterval(60'000); // nothing moves while the new board is looked at
            timer2->setInterval(60'000);
            click(w, "Command1");
        };
        whenShown("Form2", onResult);
        QTRY_COMPARE_WITH_TIMEOUT(shown, 1, 10000);
        QCOMPARE(first, QStringList({"Ha vinto Sapienzo (CPU)", "Sapienzo (CPU)", " 1",
                                     "  1) BRIVO    0   Computer  360"}));
        QVERIFY(game->sounds.played.end() !=
                std::find(game->sounds.played.begin(), game->sounds.played.end(), "explode2.wav"));
        QCOMPARE(nestedTicks, 0);
        QCOMPARE(game->terminated, 0);
        // "&OK": the next match is under way on a new board, from nothing.
        QVERIFY(timer1->isActive() && timer2->isActive());
        QVERIFY(state().immagineCella != aeBoard);
        QCOMPARE(QStringList({text("Label10"), text("Label11"), text("Label4")}),
                 QStringList({"0", "0", "0s"}));
        QCOMPARE(game->get<TimeBar>("Picture2")->filledWidth(), 0);
        QCOMPARE(game->get<QListWidget>("List2")->count(), 0);

        game->setBoard("AEAEAEAEAEAEAEAEAEAEAEAEA"); // now nobody finds a word on it
        state().tempoPartita = 2;
        timer1->setInterval(1);
        whenShown("Form2", onResult);
        QTRY_COMPARE_WITH_TIMEOUT(shown, 2, 10000);
        QCOMPARE(opponentRan, 0);
        QCOMPARE(history.size(), 2);
        QCOMPARE(history[0], first.last());
        QCOMPARE(game->terminated, 1); // "&Annulla"
        QVERIFY(timer1->isActive());   // and "&OK", after the review, goes on all the same
        QCOMPARE(reviewed, QStringList({"Il tabellone nascondeva 2 parole per 360 punti in tutto.",
                                        "Parole &mancate\n2 parole, 360 punti"}));
        QVERIFY(reviewKeptTheClockStopped);
        // "aaa" first runs from die 0 through die 6 to die 2: the line crosses the centres of
        // dice 6 and 2, not that of die 24.
        const auto lineAt = [&](int x, int y) {
            return reviewBoard.pixelColor(x, y) == QColor(0, 0, 128);
        };
        QVERIFY(lineAt(100, 100) && lineAt(164, 36) && !lineAt(292, 292));
    }

    void noTwoControlsOfAWindowShareAKey() {
        openForKeys();
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
        openForKeys();
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
        openForKeys(settings);
        QCOMPARE(name()->text(), QString(" GIOCATORELUNGO "));
        QTest::keyClick(name(), Qt::Key_End);
        type("x");
        QTest::keyClick(name(), Qt::Key_Backspace);
        game->window->menuBar()->setFocus(Qt::MenuBarFocusReason); // a menu opened by keyboard
        name()->setFocus();
        QCOMPARE(game->folder.read("ZARMOLO.INI"), settings);
        focusTheBoard();
        QVERIFY(savedName(" GIOCATORELUNGO"));
        name()->clear();
        type("abcdefghijklmn");
        QCOMPARE(name()->text(), QString("abcdefghijkl"));
        name()->clear();
        type(QString::fromUtf8("aßµéΩ€"));
        QCOMPARE(name()->text(), QString::fromUtf8("aßµé€"));
        name()->setFocus();
        focusTheBoard();
        QCOMPARE(name()->text(), QString::fromUtf8("AßµÉ€"));
        QVERIFY(savedName("A\xDF\xB5\xC9\x80"));
    }

    // Read-only, a full disk, a folder in its place: the choice still applies to the game.
    void aSettingsFileThatCannotBeWrittenIsReportedAndKept() {
        const std::string old = "Livello=100\r\nGiocatore1=ANNA\r\n";
        for (const int damage : {0, 1, 2}) {
            init();
            openForKeys(old);
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
        openForKeys();
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

    void fineEntersTheScoreAndOffersTheSubmission() {
        open();
        game->folder.write("zarMolo.HIS", "ANNA, 2000 \r\nCARLO,900\r\n");
        game->window->state().puntiGiocatore = 1000;
        bool seen = false;
        QTimer::singleShot(0, [&] {
            QWidget* shown = shownWindow("Form4");
            QVERIFY(shown);
            // A failed check must still end the modal window, or the test would hang.
            const auto closeAtEnd = qScopeGuard([shown] { shown->close(); });
            seen = true;
            QVERIFY(!game->window->isEnabled());
            QCOMPARE(child<QLabel>(shown, "Label1")->text(), QString("ANNA"));
            QCOMPARE(child<QListWidget>(shown, "List1")->currentItem()->text(),
                     QString(" 02 - BRIVO        -  01.000"));
            child<QLineEdit>(shown, "Text1")->setText(" ciao a tutti & 100% ");
            QTest::mouseClick(child(shown, "Label7"), Qt::LeftButton);
            QTest::mouseClick(child(shown, "Command1"), Qt::LeftButton);
        });
        game->trigger("MenuFine");
        QVERIFY(seen);
        QVERIFY(game->window->isEnabled());
        QVERIFY(!game->timer("Timer1")->isActive());
        QVERIFY(game->folder.read("zarMolo.HIS")
                    .starts_with("ANNA, 2000 \r\nBRIVO, 1000 \r\nCARLO, 900 \r\n, 0 \r\n"));
        QCOMPARE(game->outside.opened.size(), std::size_t{1});
        QVERIFY(game->outside.opened[0].find(
                    "&punti=1000&Tempo=120&Note=ciao_a_tutti___100_&E_MAIL=&") !=
                std::string::npos);
    }

    void theTableFromTheMenuLeavesTheFileAndTheMatchAlone() {
        open();
        game->folder.write("zarMolo.HIS", "ANNA, 2000 \r\nZED\r\n");
        game->trigger("menuNuovo");
        game->window->state().puntiGiocatore = 5000;
        game->trigger("MenuHI");
        QWidget* shown = shownWindow("Form4");
        QVERIFY(shown);
        QVERIFY(!game->window->isEnabled());
        QVERIFY(game->timer("Timer1")->isActive());
        QVERIFY(!child(shown, "Label7")->isEnabled());
        QTest::mouseClick(child(shown, "Label2"), Qt::LeftButton);
        QTRY_VERIFY(!shownWindow("Form4"));
        QVERIFY(game->window->isEnabled());
        QVERIFY(game->timer("Timer1")->isActive());
        QCOMPARE(game->folder.read("zarMolo.HIS"), "ANNA, 2000 \r\nZED\r\n");
    }

    // Each row: what lies beside the game as GRIGLIONE.htm (a file, a folder or nothing), the
    // keys pressed or the control clicked (of Form3 when so named), and the target opened.
    void keysAndLinksOpenTheirTargets() {
        const QString missing = "Non trovato file di documentazione/help GRIGLIONE.htm";
        const QString mail = QString("mailto:") + kEmailAutore, site = kSitoWeb;
        const QString rows[][3] = {{"file", "F1", "help"},      {"", "F1", ""},
                                   {"folder", "F1", ""},        {"", "Ctrl+F8", mail},
                                   {"", "Ctrl+F9", site},       {"", "Label12", site},
                                   {"", "Form3/Label6", site},  {"", "Form3/Label3", mail},
                                   {"", "Form3/Picture2", mail}};
        for (const auto& [beside, input, target] : rows) {
            init();
            open();
            const std::filesystem::path help = game->folder.path() / "GRIGLIONE.htm";
            if (beside == "file") game->folder.write("GRIGLIONE.htm", "");
            if (beside == "folder") std::filesystem::create_directory(help);
            const QString opened =
                target == "help" ? QString::fromStdString(help.string()) : target;
            QWidget* owner = game->window.get();
            if (input.startsWith("Form3/")) {
                press("F4");
                owner = informationWindows().value(0);
                QVERIFY(owner);
            }
            if (input.contains("Label") || input.contains("Picture"))
                QTest::mouseClick(child(owner, qPrintable(input.section('/', -1))), Qt::LeftButton);
            else
                press(input);
            QCOMPARE(texts(game->outside.opened),
                     opened.isEmpty() ? QStringList() : QStringList(opened));
            QCOMPARE(texts(game->alerts.shown),
                     opened.isEmpty() ? QStringList(missing) : QStringList());
        }
    }

    void informationWindowIsRecreatedAndClosesTheMessage() {
        open();
        press("F4");
        game->window->messages().mostraMessaggio({"INFO!", "Prova", "testo"}, false);
        press("F4");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(informationWindows().size(), 1);
        QVERIFY(QTest::qWaitForWindowActive(informationWindows().first()));
        QTRY_VERIFY(!game->window->messages().window());
    }

    // Last: it moves the working folder and the file search order, and puts them back.
    void changesAreKeptInThePlayersFolder() {
        GameHarness game;
        const fs::path tree = game.folder.path(), program = tree / "games",
                       data = tree / "share/games/griglione", player = tree / "xdg/griglione";
        fs::create_directories(program);
        fs::create_directories(data);
        game.folder.write("share/games/griglione/SLESSICO.1",
                          buildDictionaryFile("test", {{{"ERA"}}}));
        fs::permissions(program, fs::perms::owner_write, fs::perm_options::remove);
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString((tree / "xdg").string()));
        const QString before = QDir::currentPath();

        QVERIFY(settleGameFolder(QString::fromStdString(program.string())));
        QCOMPARE(fs::current_path(), player);
        game.start([] {}, ".");
        QCOMPARE(game.terminated, 0); // the shipped dictionary was found

        game.trigger("MenuSuono");
        game.trigger("menuNuovo");
        game.timer("Timer2")->stop();
        game.setBoard("ZEBRA");
        for (int n = 0; n < 5; ++n)
            game.press(n);
        whenShown("Form6", [](QWidget* confirm) {
            child<QRadioButton>(confirm, "Option1")->setChecked(true);
            child<QAbstractButton>(confirm, "Command1")->click();
        });
        game.get<QAbstractButton>("Command2")->click();
        game.window->state().puntiGiocatore = 1500;
        whenShown("Form4", [](QWidget* records) { records->close(); });
        game.trigger("MenuFine");
        game.window.reset();

        QDir::setCurrent(before);
        setFileSearchOrder({});
        QVERIFY(fs::exists(player / "ZARMOLO.INI"));
        QCOMPARE(readWholeFile(player / "ZarmPriv.1").value_or(""), std::string("ZEBRA\r\n"));
        QVERIFY(readWholeFile(player / "zarMolo.HIS").value_or("").starts_with("BRIVO, 1500 \r\n"));
        for (const fs::path& shared : {program, data})
            for (const char* name : {"ZARMOLO.INI", "ZarmPriv.1", "zarMolo.HIS"})
                QVERIFY(!fs::exists(shared / name));
        fs::permissions(program, fs::perms::owner_write, fs::perm_options::add);
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
