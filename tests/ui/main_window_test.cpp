// The main window in a temporary folder: its start-up state, the announcement and F2, words played
// with real clicks and keys, the confirmation, the options menus and the line width as drawn, two
// short matches against the fastest opponent with the end-of-match window and the review between
// them, and the records window entered at time-up, on leaving and opened from the menu.
#include "tests/support/window_harness.h"
#include "ui/time_bar.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScopeGuard>
#include <QTextEdit>

using namespace griglione;
using namespace griglione::testing;

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
        QTimer *timer1 = game->timer("Timer1"), *timer2 = game->timer("Timer2");
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
                history = texts(list) << QString::number(list->currentRow());
                whenShown("Form10", [&](QWidget* review) {
                    for (const char* label : {"Label1", "Label4", "count3"})
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
        QCOMPARE(history, QStringList({first.last(), "  2) BRIVO    0   Computer    0", "1"}));
        QCOMPARE(game->terminated, 1); // "&Annulla"
        QVERIFY(timer1->isActive());   // and "&OK", after the review, goes on all the same
        QCOMPARE(reviewed, QStringList({"Il tabellone nascondeva 2 parole per 360 punti in tutto.",
                                        "Parole &mancate", "2 parole, 360 punti"}));
        QVERIFY(reviewKeptTheClockStopped);
        // "aaa" first runs from die 0 through die 6 to die 2: the line crosses the centres of
        // dice 6 and 2, not that of die 24.
        const auto lineAt = [&](int x, int y) {
            return reviewBoard.pixelColor(x, y) == QColor(0, 0, 128);
        };
        QVERIFY(lineAt(100, 100) && lineAt(164, 36) && !lineAt(292, 292));
    }

    // At time-up more than 1000 points enter the table, in a window that holds the match where it
    // ended until it closes; a table that could not be kept (a folder in its place) is reported.
    void aRecordAtTimeUpTakesMoreThan1000PointsAndHoldsTheMatch() {
        for (const int points : {1000, 1001}) {
            init();
            open();
            std::filesystem::create_directory(game->folder.path() / "zarMolo.HIS");
            game->trigger("menuNuovo");
            game->timer("Timer2")->setInterval(60'000);
            state().puntiGiocatore = points;
            state().tempoPartita = 1;
            game->timer("Timer1")->setInterval(1);
            QString seen;
            whenShown("Form2", [&](QWidget* w) {
                game->timer("Timer1")->setInterval(60'000);
                QTimer::singleShot(20, [&] {
                    QWidget* records = shownWindow("Form4");
                    seen = QString("held at %1s, main window %2")
                               .arg(state().secondiTrascorsi)
                               .arg(game->window->isEnabled() ? "on" : "off");
                    if (records) click(records, "Command1");
                });
                click(w, "Command1");
            });
            QTRY_COMPARE(seen, points > 1000 ? "held at 2s, main window off"
                                             : "held at 0s, main window on");
            QCOMPARE(
                texts(game->alerts.shown),
                QStringList("Errore 0004: impossibile scrivere il file dei record zarMolo.HIS, "
                            "il record non è stato salvato")
                    .mid(0, points - 1000));
            cleanup();
        }
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
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
