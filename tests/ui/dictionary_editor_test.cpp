// The main dictionary editor driven by keys: loading with its counts, the entry's key filter,
// additions and deletions that leave the file alone, a rebuild that cannot be started twice,
// and "&Uscita" stopping a load half way.
#include "tests/support/fakes.h"
#include "ui/dictionary_editor_window.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <deque>
#include <functional>
#include <memory>

using namespace griglione;
using namespace griglione::testing;

class DictionaryEditorTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TempFolder> folder;
    GameState state;
    OpenFileTable files;
    FakeAlerts alerts;
    std::deque<bool> answers;
    std::vector<std::string> asked;
    std::function<void()> onYield;
    std::unique_ptr<Dictionary> dictionary;
    std::unique_ptr<DictionaryEditorWindow> window;

    void open(const WordLists& words) {
        state.nomeDizionario = "Italiano";
        folder->write("SLESSICO.1", buildDictionaryFile("test", words));
        dictionary = std::make_unique<Dictionary>(
            state, files, alerts, [] {}, folder->path());
        dictionary->prendidiz();
        const auto ask = [this](const std::string& text) {
            asked.push_back(text);
            const bool answer = answers.front();
            answers.pop_front();
            return answer;
        };
        const auto yield = [this] {
            QCoreApplication::processEvents();
            if (onYield) onYield();
        };
        window = std::make_unique<DictionaryEditorWindow>(EditorContext{state, *dictionary, files,
                                                                        alerts, ask, yield, [] {},
                                                                        [] {}, folder->path()},
                                                          nullptr);
        window->show();
    }
    QString text(const QString& name) { return window->findChild<QLabel*>(name)->text(); }
    QString lastAlert() { return QString::fromStdString(alerts.shown.back()); }
    QLineEdit* entry() { return window->findChild<QLineEdit*>("Text1"); }
    QPushButton* button(const char* name) { return window->findChild<QPushButton*>(name); }
    void key(Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), k, m);
    }
    void type(const char* keys) {
        key(Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(entry()->hasFocus());
        QTest::keyClicks(entry(), keys);
        key(Qt::Key_Return);
    }

private slots:
    void init() {
        folder = std::make_unique<TempFolder>();
        alerts.shown.clear();
        asked.clear();
        onYield = nullptr;
    }
    void cleanup() {
        window.reset();
        folder.reset();
    }

    void editsByKeysThenRebuildsTheFileInPlace() {
        WordLists words;
        words[0] = {"ERA", "ORA"};
        words[1] = {"CASA", "MARE"};
        open(words);
        QTRY_VERIFY(window->isLoaded());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QCOMPARE(text("Label6"), QString("Il Griglione - Dizionario principale in Italiano"));
        QCOMPARE(text("Label2_0"), QString("(2) parole"));
        QCOMPARE(text("Label2_2"), QString("(0) parole"));
        QCOMPARE(text("Label4"), QString("4"));
        QCOMPARE(text("Label3"), QString());
        QCOMPARE(window->findChild<QComboBox*>("Combo1_1")->currentText(), QString("CASA"));

        type("luJn1a"); // J and 1 are dropped, letters go to upper case
        QCOMPARE(lastAlert(), QString("La parola 'LUNA' è stata momentaneamente aggiunta al "
                                      "dizionario, cliccare sul bottone 'Crea dizionario' per "
                                      "la ricostruzione definitiva sul disco."));
        QCOMPARE(text("Label2_1"), QString("(3) Parole"));
        QCOMPARE(text("Label4"), QString("5"));
        QVERIFY(!entry()->isVisible());
        type("casa");
        QCOMPARE(lastAlert(), QString("La parola 'CASA' esiste già nel dizionario."));
        QVERIFY(entry()->isVisible() && entry()->text().isEmpty());
        QTest::keyClicks(entry(), "ab");
        key(Qt::Key_Return);
        QCOMPARE(lastAlert(), QString("Nel dizionario sono ammesse solamente parole formate da 3 "
                                      "a 10 caratteri."));
        QVERIFY(!entry()->isVisible());

        window->findChild<QComboBox*>("Combo1_0")->setFocus();
        key(Qt::Key_Down);
        answers = {true};
        key(Qt::Key_C, Qt::AltModifier);
        QTRY_COMPARE(text("Label2_0"), QString("(1) Parole"));
        QCOMPARE(asked.back(), std::string("Si desidera veramente eliminare la parola: ORA"));
        key(Qt::Key_C, Qt::AltModifier);
        QTRY_COMPARE(lastAlert(),
                     QString("Selezionare prima una parola da eliminare dal dizionario."));
        QVERIFY(!dictionary->trovaInDizionario("LUNA")); // the file is as it was

        answers = {false};
        key(Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(lastAlert(), QString("Operazione annulata."));
        // While it writes, "&Uscita" is off and a second rebuild is refused.
        bool exitWasOff = false;
        onYield = [&] {
            exitWasOff = !button("Command2")->isEnabled();
            button("Command4")->click();
        };
        answers = {true};
        key(Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(text("Label3"), QString("Dizionario riscritto correttamente"));
        QVERIFY(exitWasOff && button("Command2")->isEnabled());
        QCOMPARE(asked.size(), std::size_t(3));
        words[0] = {"ERA"};
        words[1] = {"CASA", "LUNA", "MARE"};
        QCOMPARE(folder->read("SLESSICO.1").substr(199),
                 buildDictionaryFile("", words).substr(199));
        QVERIFY(dictionary->trovaInDizionario("LUNA"));
        QCOMPARE(dictionary->cercaParola("LUNA"), std::string("SI"));
        QVERIFY(!dictionary->trovaInDizionario("ORA"));
    }

    void exitStopsALoadAtItsNextCheck() {
        WordLists words;
        words[0] = {"ERA"};
        for (int i = 0; i < 1000; ++i)
            words[7].push_back(std::string("AAAAAAA") + char('A' + i / 100) +
                               char('A' + i / 10 % 10) + char('A' + i % 10));
        bool clicked = false;
        onYield = [&] {
            // Once the short lengths are in, the player leaves.
            if (!clicked && !text("Label2_6").isEmpty()) {
                clicked = true;
                button("Command2")->click();
            }
        };
        open(words);
        QTRY_VERIFY(!window->isVisible());
        QVERIFY(clicked);
        QTest::qWait(20);
        QVERIFY(!window->isLoaded());
        QCOMPARE(text("Label2_7"), QString());
        QVERIFY(!button("Command4")->isEnabled());
        QCOMPARE(QApplication::overrideCursor(), nullptr);
    }
};

QTEST_MAIN(DictionaryEditorTest)
#include "dictionary_editor_test.moc"
