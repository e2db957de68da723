// The main window in a temporary folder: its start-up state, a word played with real clicks, the
// options menus, and a whole short match against the fastest opponent.
#include "board/board_layout.h"
#include "core/mixing_random.h"
#include "dictionary/dictionary_format.h"
#include "tests/support/fakes.h"
#include "ui/die_cell.h"
#include "ui/end_of_match_window.h"
#include "ui/main_window.h"
#include "ui/message_window.h"

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

private slots:
    void init() {
        folder = std::make_unique<TempFolder>();
        writeDictionary();
        sounds.played.clear();
        alerts.shown.clear();
        terminated = 0;
    }
    void cleanup() {
        window.reset();
        folder.reset();
    }

    void startsWaitingOnABlankBoardWithTheStoredSettings() {
        folder->write("ZARMOLO.INI", "Livello=300\r\nSuono=NO\r\nTempo=30\r\nGiocatore1=anna\r\n"
                                     "SpessoreLinea= 13 \r\nDizionario= 2 \r\n");
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
        QVERIFY(action("menuL3")->isChecked());
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

    void aPressOnTheBlankBoardAnnouncesTheMatch() {
        open();
        QString caption, body;
        whenShown("Form8", [&](QWidget* w) {
            caption = w->windowTitle();
            body = w->findChild<QTextEdit*>("Text1")->toPlainText();
            QVERIFY(!window->findChild<QTimer*>("Timer1")->isActive());
            clickButton(w, "Command3d1");
        });
        press(7, Qt::RightButton);
        QCOMPARE(caption, QString("Il Griglione - Inizio partita"));
        QVERIFY(
            body.startsWith("Si inizia una nuova partita di 120 secondi.\nIl dizionario usato"));
        QVERIFY(child<QTimer>("Timer1")->isActive());
        QVERIFY(child<QTimer>("Timer2")->isActive());
        QVERIFY(!tavolaVuota(window->state()));
        QCOMPARE(window->state().parolaComposta, std::string());
    }

    void playsARealWordWithClicksAndEnter() {
        open();
        newMatch();
        child<QTimer>("Timer2")->stop(); // the opponent stays out of this one
        setBoard("CASAXXXXXXXXXXXXXXXXXXXXX");
        for (int n : {0, 1, 2, 3})
            press(n);
        QCOMPARE(child<QLabel>("Label1")->text(), QString("CASA"));
        QTest::keyClick(child<DieCell>("Picture1_3"), Qt::Key_Return);
        QCOMPARE(child<QLabel>("Label10")->text(), QString("320"));
        auto* list = child<QListWidget>("List1");
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->item(0)->text(), QString("casa"));
        QCOMPARE(list->currentRow(), 0);
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
        int announcements = 0;
        std::function<void(QWidget*)> confirm = [&](QWidget* w) {
            ++announcements;
            clickButton(w, "Command3d1");
        };
        whenShown("Form8", confirm);
        action("Menu300s")->trigger();
        QCOMPARE(announcements, 1);
        QVERIFY(child<QTimer>("Timer1")->isActive());
        QCOMPARE(window->state().tempoPartita, 300);
        QVERIFY(folder->read("ZARMOLO.INI").find("Tempo=270\r\n") != std::string::npos);
        // The language already checked does nothing; another one restarts with its dictionary.
        action("Menuita")->trigger();
        QVERIFY(action("Menuita")->isChecked());
        QCOMPARE(announcements, 1);
        whenShown("Form8", confirm);
        action("Menuing")->trigger();
        QCOMPARE(announcements, 2);
        QCOMPARE(window->windowTitle(), QString("Il Griglione - Dizionario English"));
        QVERIFY(folder->read("ZARMOLO.INI").find("Dizionario= 2 \r\n") != std::string::npos);
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

    void aShortMatchAgainstTheFastestOpponentEndsInTheResultWindow() {
        WordLists words;
        words[0] = {"AAA", "EEE"}; // words any board of only A and E is full of
        folder->write("SLESSICO.1", buildDictionaryFile("test", words));
        folder->write("ZARMOLO.INI", "Livello=100\r\nTempo=30\r\n");
        open();
        newMatch();
        setBoard("AEAEAEAEAEAEAEAEAEAEAEAEA");
        child<QTimer>("Timer1")->setInterval(15);
        child<QTimer>("Timer2")->setInterval(1);
        QString result, history, cpuName, wins;
        whenShown(
            "Form2",
            [&](QWidget* w) {
                result = w->findChild<QLabel*>("Label1")->text();
                cpuName = w->findChild<QLabel*>("Label3_1")->text();
                history = w->findChild<QListWidget*>("List1")->item(0)->text();
                wins = w->findChild<QLabel*>("Label10")->text();
                clickButton(w, "Command1");
            },
            2000);
        QTRY_VERIFY_WITH_TIMEOUT(!result.isEmpty(), 10000);
        QCOMPARE(result, QString("Ha vinto Sapienzo (CPU)"));
        QCOMPARE(cpuName, QString("Sapienzo (CPU)"));
        QCOMPARE(history, QString("  1) BRIVO    0   Computer  360"));
        QCOMPARE(wins, QString(" 1"));
        QVERIFY(std::find(sounds.played.begin(), sounds.played.end(), "explode2.wav") !=
                sounds.played.end());
        QVERIFY(child<QTimer>("Timer1")->isActive()); // the next match is under way
        QVERIFY(window->state().secondiTrascorsi < 60);
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
