// The main dictionary editor driven by keys: loading with its counts, the entry's key filter,
// additions and deletions that leave the file alone, a rebuild that cannot be started twice,
// and "&Uscita" stopping a load half way.
#include "tests/support/window_harness.h"
#include "ui/dictionary_editor_window.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace griglione;
using namespace griglione::testing;

class DictionaryEditorTest : public QObject {
    Q_OBJECT
    std::unique_ptr<EditorHarness> editor;
    std::unique_ptr<DictionaryEditorWindow> window;

    void open(const WordLists& words) {
        editor->state.nomeDizionario = "Italiano";
        window = std::make_unique<DictionaryEditorWindow>(editor->context(words), nullptr);
        window->show();
    }
    QString text(const char* name) { return child<QLabel>(window.get(), name)->text(); }
    QLineEdit* entry() { return child<QLineEdit>(window.get(), "Text1"); }
    QPushButton* button(const char* name) { return child<QPushButton>(window.get(), name); }
    void type(const char* keys) {
        key(Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(entry()->hasFocus());
        QTest::keyClicks(entry(), keys);
        key(Qt::Key_Return);
    }

private slots:
    void init() { editor = std::make_unique<EditorHarness>(); }
    void cleanup() {
        window.reset();
        editor.reset();
    }

    void editsByKeysThenRebuildsTheFileInPlace() {
        WordLists words = WordLists{{{"ERA", "ORA"}, {"CASA", "MARE"}}};
        open(words);
        QTRY_VERIFY(window->isLoaded());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QCOMPARE(text("Label6"), QString("Il Griglione - Dizionario principale in Italiano"));
        QCOMPARE(text("Label2_0"), QString("(2) parole"));
        QCOMPARE(text("Label4"), QString("4"));
        QCOMPARE(child<QComboBox>(window.get(), "Combo1_1")->currentText(), QString("CASA"));

        type("luJn1a"); // J and 1 are dropped, letters go to upper case
        QCOMPARE(editor->lastAlert(),
                 QString("La parola 'LUNA' è stata momentaneamente aggiunta al "
                         "dizionario, cliccare sul bottone 'Crea dizionario' "
                         "per la ricostruzione definitiva sul disco."));
        QCOMPARE(text("Label2_1"), QString("(3) Parole"));
        QCOMPARE(text("Label4"), QString("5"));
        QVERIFY(!entry()->isVisible());
        type("casa");
        QCOMPARE(editor->lastAlert(), QString("La parola 'CASA' esiste già nel dizionario."));
        QVERIFY(entry()->isVisible() && entry()->text().isEmpty());
        QTest::keyClicks(entry(), "ab");
        key(Qt::Key_Return);
        QCOMPARE(editor->lastAlert(), QString("Nel dizionario sono ammesse solamente parole "
                                              "formate da 3 a 10 caratteri."));

        child(window.get(), "Combo1_0")->setFocus();
        key(Qt::Key_Down);
        editor->answers = {true};
        key(Qt::Key_C, Qt::AltModifier);
        QTRY_COMPARE(text("Label2_0"), QString("(1) Parole"));
        QCOMPARE(editor->asked.back(), "Si desidera veramente eliminare la parola: ORA");
        key(Qt::Key_C, Qt::AltModifier);
        QTRY_COMPARE(editor->lastAlert(),
                     QString("Selezionare prima una parola da eliminare dal dizionario."));
        QVERIFY(!editor->dictionary->trovaInDizionario("LUNA")); // the file is as it was

        editor->answers = {false};
        key(Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(editor->lastAlert(), QString("Operazione annulata."));
        // While it writes, "&Uscita" is off and a second rebuild is refused.
        bool exitWasOff = false;
        editor->onYield = [&] {
            exitWasOff = !button("Command2")->isEnabled();
            button("Command4")->click();
        };
        editor->answers = {true};
        key(Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(text("Label3"), QString("Dizionario riscritto correttamente"));
        QVERIFY(exitWasOff && button("Command2")->isEnabled());
        QCOMPARE(editor->asked.size(), std::size_t(3));
        words = WordLists{{{"ERA"}, {"CASA", "LUNA", "MARE"}}};
        QCOMPARE(editor->folder.read("SLESSICO.1").substr(199),
                 buildDictionaryFile("", words).substr(199));
        QCOMPARE(editor->dictionary->cercaParola("LUNA"), std::string("SI"));
        QVERIFY(!editor->dictionary->trovaInDizionario("ORA"));
    }

    void exitStopsALoadAtItsNextCheck() {
        WordLists words = WordLists{{{"ERA"}}};
        for (int i = 0; i < 1000; ++i)
            words[7].push_back(std::string("AAAAAAA") + char('A' + i / 100) +
                               char('A' + i / 10 % 10) + char('A' + i % 10));
        bool clicked = false;
        editor->onYield = [&] {
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
