// The main window in a temporary folder: its start-up state, the announcement and F2, words played
// with real clicks and keys, the confirmation, the options menus and the line width as drawn, and
// two short matches against the fastest opponent with the end-of-match window between them.
#include "board/board_layout.h"
#include "core/mixing_random.h"
#include "dictionary/dictionary_format.h"
#include "tests/support/fakes.h"
#include "ui/die_cell.h"
#include "ui/end_of_match_window.h"
#include "ui/main_window.h"
#include "ui/message_window.h"
#include "ui/time_bar.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace griglione;
using namespace griglione::testing;

namespace {

// Runs `action` on the first visible top-level widget named `name` once it shows up.
void whenShown(const QString& name, std::function<void(QWidget*)> action, int tries = 400) {
    QTimer::singleShot(5, [=] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == name && w->isVisible()) {
                action(w);
                return;
            }
        if (tries > 0) whenShown(name, action, tries - 1);
    });
}

void clickButton(QWidget* window, const char* name) {
    auto* button = window->findChild<QAbstractButton*>(name);
    QVERIFY(button);
    button->click();
}

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TempFolder> folder;
    FakeSounds sounds;
    FakeAlerts alerts;
    FakeOutside outside;
    FixedClock clock;
    MixingRandom random{99};
    int terminated = 0;
    std::unique_ptr<MainWindow> window;
    // Answers every modal message (the match announcement) as the player would, noting it.
    QTimer answerer;
    int announcements = 0;
    QString announced;
    bool clockRanDuringAnnouncement = false;

    void answerAnnouncements() {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "Form8" && w->isVisible() && w->isModal()) {
                ++announcements;
                announced =
                    w->windowTitle() + "|" + w->findChild<QTextEdit*>("Text1")->toPlainText();
                clockRanDuringAnnouncement |= child<QTimer>("Timer1")->isActive();
                clickButton(w, "Command3d1");
            }
    }

    void writeDictionary() {
        WordLists words;
        words[0] = {"ERA", "ORA"};
        words[1] = {"CASA", "MARE"};
        folder->write("SLESSICO.1", buildDictionaryFile("test", words));
        folder->write("SLESSICO.2", buildDictionaryFile("test", words));
    }
    void open() {
        window = std::make_unique<MainWindow>(Services{sounds, alerts, outside, clock, random,
                                                       [] { QCoreApplication::processEvents(); },
                                                       folder->path(), [this] { ++terminated; }});
        window->startUp();
        window->show();
    }
    template <typename T> T* child(const char* name) { return window->findChild<T*>(name); }
    QAction* action(const char* name) { return window->findChild<QAction*>(name); }
    void setBoard(const std::string& letters) {
        for (int n = 0; n < kCells; ++n)
            window->state().immagineCella[n] = dieName(letters[n], 1);
        window->changed(Aspect::Board);
    }
    void press(int n, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(child<DieCell>(qPrintable(QStringLiteral("Picture1_%1").arg(n))), button);
    }
    // Starts a match through the menu, with no announcement.
    void newMatch() { action("menuNuovo")->trigger(); }
    // The thickness of the traced line from die 0 to die 1, measured across it in die 0.
    int drawnLineWidth() {
        auto* overlay = child<QWidget>("path");
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
        connect(&answerer, &QTimer::timeout, this, [this] { answerAnnouncements(); });
    }

private slots:
    void init() {
        folder = std::make_unique<TempFolder>();
        writeDictionary();
        sounds.played.clear();
        alerts.shown.clear();
        terminated = 0;
        announcements = 0;
        clockRanDuringAnnouncement = false;
        answerer.start();
    }
    void cleanup() {
        answerer.stop();
        window.reset();
        folder.reset();
    }

    void startsWaitingOnABlankBoardWithTheStoredSettings() {
        folder->write("ZARMOLO.INI", "Livello=300\r\nSuono=NO\r\nTempo=30\r\nGiocatore1=anna\r\n"
                                     "Dizionario= 2 \r\n");
        open();
        QVERIFY(!child<QTimer>("Timer1")->isActive());
        QVERIFY(!child<QTimer>("Timer2")->isActive());
        QCOMPARE(child<QTimer>("Timer2")->interval(), 300);
        QVERIFY(tavolaVuota(window->state()));
        QCOMPARE(window->windowTitle(), QString("Il Griglione - Dizionario English"));
        QVERIFY(action("MenuMedio")->isChecked());
        QVERIFY(!action("MenuBir")->isChecked());
        QVERIFY(!action("MenuSuono")->isChecked());
        QVERIFY(action("menu30s")->isChecked());
        QVERIFY(action("Menuing")->isChecked());
        QVERIFY(!action("Menuita")->isChecked());
        QCOMPARE(child<QLineEdit>("Text1")->text(), QString("ANNA"));
        QCOMPARE(child<QLabel>("Label10")->text(), QString("0"));
        QCOMPARE(child<QLabel>("Label1")->text(), QString());
        QCOMPARE(window->state().tempoPartita, 60);
        QCOMPARE(folder->read("ZARMOLO.INI").substr(0, 12), std::string("Livello=300\r"));
    }

    void firstRunWithoutSettingsWritesNothingUntilAChange() {
        open();
        QVERIFY(!folder->exists("ZARMOLO.INI"));
        QCOMPARE(child<QTimer>("Timer2")->interval(), 200);
        for (const char* name : {"MenuBir", "MenuTapo", "MenuMedio", "MenuExpert", "menu30s",
                                 "Menu60s", "Menu90s", "Menu300s"})
            QVERIFY2(!action(name)->isChecked(), name);
        QVERIFY(action("MenuSuono")->isChecked());
        QVERIFY(action("menuL2")->isChecked());
        QVERIFY(action("Menuita")->isChecked());
        action("menuL1")->trigger();
        QCOMPARE(folder->read("ZARMOLO.INI"),
                 std::string("Livello=200\r\nSuono=SI\r\nTempo=90\r\nGiocatore1=BRIVO\r\n"
                             "SpessoreLinea= 1 \r\nDizionario= 1 \r\n"));
    }

    void aPressOnTheBlankBoardAnnouncesTheMatchAndF2StartsOneWithout() {
        open();
        press(7, Qt::RightButton);
        QCOMPARE(announcements, 1);
        QVERIFY(announced.startsWith("Il Griglione - Inizio partita|Si inizia una nuova partita di "
                                     "120 secondi.\nIl dizionario usato"));
        QVERIFY(!clockRanDuringAnnouncement);
        QVERIFY(child<QTimer>("Timer1")->isActive());
        QVERIFY(child<QTimer>("Timer2")->isActive());
        QVERIFY(!tavolaVuota(window->state()));
        QCOMPARE(window->state().parolaComposta, std::string());
        const auto board = window->state().immagineCella;
        QApplication::setActiveWindow(window.get());
        QTest::keyClick(window.get(), Qt::Key_F2);
        QCOMPARE(announcements, 1);
        QVERIFY(window->state().immagineCella != board);
        QVERIFY(child<QTimer>("Timer1")->isActive());
    }

    void playsARealWordWithClicksAndEnter() {
        open();
        newMatch();
        child<QTimer>("Timer2")->stop(); // the opponent stays out of this one
        setBoard("CASAXMAREXXXXXXXXXXXXXXXX");
        for (int n : {0, 1, 2, 3})
            press(n);
        QCOMPARE(child<QLabel>("Label1")->text(), QString("CASA"));
        QTest::keyClick(child<DieCell>("Picture1_3"), Qt::Key_Return);
        for (int n : {5, 6, 7, 8})
            press(n);
        QTest::keyClick(window.get(), Qt::Key_Return); // Enter on the window, not on a die
        QCOMPARE(child<QLabel>("Label10")->text(), QString("640"));
        auto* list = child<QListWidget>("List1");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), QString("casa"));
        QCOMPARE(list->currentRow(), 1);
        MessageWindow* message = window->messages().window();
        QVERIFY(message && message->isVisible());
        QCOMPARE(message->windowTitle(), QString("Il Griglione - Complimenti, parola accettata!"));
        QCOMPARE(message->findChild<QLabel*>("Label1_0")->text(), QString("B"));
        QCOMPARE(message->findChild<QLabel*>("Label1_4")->text(), QString("!"));
        QCOMPARE(child<QLabel>("Label1")->text(), QString());
        QVERIFY(sounds.played.back() == "vinci.wav");
        // Tracing across a row end is refused with the "OOPS!" message.
        press(4);
        press(5);
        QCOMPARE(window->messages().window()->windowTitle(),
                 QString("Il Griglione - Lettera non adiacente"));
        QCOMPARE(child<QLabel>("Label1")->text(), QString("X"));
        QTest::keyClick(child<DieCell>("Picture1_4"), Qt::Key_Escape);
        QCOMPARE(child<QLabel>("Label1")->text(), QString());
    }

    void anUnknownWordIsConfirmedIntoThePersonalVocabulary() {
        open();
        newMatch();
        child<QTimer>("Timer2")->stop();
        setBoard("ZEBRAXXXXXXXXXXXXXXXXXXXX");
        for (int n : {0, 1, 2, 3, 4})
            press(n);
        bool clockStopped = false;
        whenShown("Form6", [&](QWidget* w) {
            clockStopped = !window->findChild<QTimer*>("Timer1")->isActive();
            QVERIFY(w->findChild<QRadioButton*>("Option3")->isChecked());
            QCOMPARE(w->findChild<QLabel*>("Label2")->text(), QString("ZEBRA"));
            QCOMPARE(w->findChild<QLabel*>("Label3")->text(), QString("Dizionario in Italiano"));
            w->findChild<QRadioButton*>("Option1")->setChecked(true);
            clickButton(w, "Command1");
        });
        clickButton(window.get(), "Command2");
        QVERIFY(clockStopped);
        QVERIFY(child<QTimer>("Timer1")->isActive());
        QCOMPARE(folder->read("ZarmPriv.1"), std::string("ZEBRA\r\n"));
        QCOMPARE(child<QLabel>("Label10")->text(), QString("500"));
        // Closed by its frame, the window answers "do not add", whatever option is chosen.
        for (int n : {0, 1, 2})
            press(n);
        whenShown("Form6", [&](QWidget* w) {
            w->findChild<QRadioButton*>("Option1")->setChecked(true);
            w->close();
        });
        clickButton(window.get(), "Command2");
        QCOMPARE(window->state().rispostaConferma, 3);
        QCOMPARE(folder->read("ZarmPriv.1"), std::string("ZEBRA\r\n"));
        QCOMPARE(child<QLabel>("Label10")->text(), QString("500"));
        QVERIFY(child<QTimer>("Timer1")->isActive());
    }

    void optionsAreStoredAndLengthRestartsTheMatch() {
        open();
        action("MenuExpert")->trigger();
        QCOMPARE(child<QTimer>("Timer2")->interval(), 100);
        QVERIFY(!action("MenuBir")->isChecked());
        action("MenuSuono")->trigger();
        QCOMPARE(folder->read("ZARMOLO.INI"),
                 std::string("Livello=100\r\nSuono=NO\r\nTempo=90\r\nGiocatore1=BRIVO\r\n"
                             "SpessoreLinea= 7 \r\nDizionario= 1 \r\n"));
        action("Menu300s")->trigger();
        QCOMPARE(announcements, 1);
        QVERIFY(child<QTimer>("Timer1")->isActive());
        QCOMPARE(window->state().tempoPartita, 300);
        QVERIFY(folder->read("ZARMOLO.INI").find("Tempo=270\r\n") != std::string::npos);
        // The language already checked does nothing; another one restarts with its dictionary.
        action("Menuita")->trigger();
        QVERIFY(action("Menuita")->isChecked());
        QCOMPARE(announcements, 1);
        action("Menuing")->trigger();
        QCOMPARE(announcements, 2);
        QCOMPARE(window->windowTitle(), QString("Il Griglione - Dizionario English"));
        QVERIFY(folder->read("ZARMOLO.INI").find("Dizionario= 2 \r\n") != std::string::npos);
    }

    void theLineWidthIsReadMappedDrawnAndStored_data() {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("item");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("5 is taken as 7") << QByteArray("5") << "menuL2" << 12 << QByteArray(" 7 ");
        QTest::newRow("13") << QByteArray(" 13 ") << "menuL3" << 18 << QByteArray(" 13 ");
        QTest::newRow("1") << QByteArray("1") << "menuL1" << 6 << QByteArray(" 1 ");
    }
    void theLineWidthIsReadMappedDrawnAndStored() {
        QFETCH(QByteArray, stored);
        QFETCH(QString, item);
        QFETCH(int, pixels);
        QFETCH(QByteArray, written);
        folder->write("ZARMOLO.INI", "SpessoreLinea=" + stored.toStdString() + "\r\n");
        open();
        QVERIFY(action(qPrintable(item))->isChecked());
        newMatch();
        child<QTimer>("Timer2")->stop();
        press(0);
        press(1);
        QCOMPARE(drawnLineWidth(), pixels);
        action("MenuBir")->trigger();
        const std::string line = "SpessoreLinea=" + written.toStdString() + "\r\n";
        QVERIFY(folder->read("ZARMOLO.INI").find(line) != std::string::npos);
    }

    void aSettingsFileThatCannotBeWrittenIsReportedAndTheGameGoesOn() {
        open();
        std::filesystem::create_directory(folder->path() / "ZARMOLO.INI"); // blocks the rename
        action("MenuMedio")->trigger();
        QCOMPARE(alerts.shown.size(), std::size_t(1));
        QCOMPARE(alerts.shown[0],
                 std::string("Errore 001: impossibile riscivere il file di inizializzazione "
                             "ZARMOLO.INI"));
        QCOMPARE(child<QTimer>("Timer2")->interval(), 300);
        QVERIFY(action("MenuMedio")->isChecked());
        QVERIFY(std::filesystem::is_directory(folder->path() / "ZARMOLO.INI"));
    }

    void theNameIsUpperCasedAndSavedWhenTheBoxLosesTheFocus() {
        open();
        QApplication::setActiveWindow(window.get());
        auto* name = child<QLineEdit>("Text1");
        name->setFocus();
        name->setText("mario");
        child<QListWidget>("List1")->setFocus();
        QCOMPARE(name->text(), QString("MARIO"));
        QVERIFY(folder->read("ZARMOLO.INI").find("Giocatore1=MARIO\r\n") != std::string::npos);
    }

    void twoShortMatchesAgainstTheFastestOpponentShareOneResultWindow() {
        WordLists words;
        words[0] = {"AAA", "EEE"}; // words any board of only A and E is full of
        folder->write("SLESSICO.1", buildDictionaryFile("test", words));
        folder->write("ZARMOLO.INI", "Livello=100\r\nTempo=30\r\n");
        open();
        newMatch();
        setBoard("AEAEAEAEAEAEAEAEAEAEAEAEA");
        const auto aeBoard = window->state().immagineCella;
        auto* timer1 = child<QTimer>("Timer1");
        auto* timer2 = child<QTimer>("Timer2");
        // The clock waits for the opponent to find both words, and the opponent then rests, so that
        // no walk is halfway through a yield when the time runs out.
        timer1->setInterval(60'000);
        timer2->setInterval(1);
        QTRY_COMPARE_WITH_TIMEOUT(window->state().puntiCPU, 360, 10000);
        timer2->stop();
        timer1->setInterval(1);
        int shown = 0, nestedTicks = 0, opponentRan = 0;
        QString result, history, cpuName, wins;
        QStringList historyAfterTwo;
        std::function<void(QWidget*)> onResult = [&](QWidget* w) {
            ++shown;
            opponentRan += timer2->isActive();
            auto* list = w->findChild<QListWidget*>("List1");
            if (shown == 1) {
                result = w->findChild<QLabel*>("Label1")->text();
                cpuName = w->findChild<QLabel*>("Label3_1")->text();
                history = list->item(0)->text();
                wins = w->findChild<QLabel*>("Label10")->text();
                // Ticks falling due now are dropped: with a longer match they would count on.
                const int elapsed = window->state().secondiTrascorsi;
                window->state().tempoPartita = 1000;
                timer1->start(0);
                QTest::qWait(30);
                timer1->stop();
                nestedTicks = window->state().secondiTrascorsi - elapsed;
            } else {
                for (int i = 0; i < list->count(); ++i)
                    historyAfterTwo << list->item(i)->text();
                clickButton(w, "Command2");
            }
            timer1->setInterval(60'000); // nothing moves while the new board is looked at
            timer2->setInterval(60'000);
            clickButton(w, "Command1");
        };
        whenShown("Form2", onResult, 2000);
        QTRY_COMPARE_WITH_TIMEOUT(shown, 1, 10000);
        QCOMPARE(result, QString("Ha vinto Sapienzo (CPU)"));
        QCOMPARE(cpuName, QString("Sapienzo (CPU)"));
        QCOMPARE(history, QString("  1) BRIVO    0   Computer  360"));
        QCOMPARE(wins, QString(" 1"));
        QVERIFY(std::find(sounds.played.begin(), sounds.played.end(), "explode2.wav") !=
                sounds.played.end());
        QCOMPARE(nestedTicks, 0);
        QCOMPARE(terminated, 0);
        // "&OK": the next match is under way on a new board, from nothing.
        QVERIFY(timer1->isActive() && timer2->isActive());
        QVERIFY(window->state().immagineCella != aeBoard);
        QCOMPARE(child<QLabel>("Label10")->text(), QString("0"));
        QCOMPARE(child<QLabel>("Label11")->text(), QString("0"));
        QCOMPARE(child<QLabel>("Label4")->text(), QString("0s"));
        QCOMPARE(child<TimeBar>("Picture2")->filledWidth(), 0);
        QCOMPARE(child<QListWidget>("List2")->count(), 0);

        window->state().tempoPartita = 2;
        timer1->setInterval(1);
        whenShown("Form2", onResult, 2000);
        QTRY_COMPARE_WITH_TIMEOUT(shown, 2, 10000);
        QCOMPARE(opponentRan, 0);
        QCOMPARE(historyAfterTwo.size(), 2);
        QCOMPARE(historyAfterTwo[0], history);
        QCOMPARE(terminated, 1); // "&Annulla"
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
