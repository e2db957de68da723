// The vocabulary editors driven by keys. The main dictionary's: loading with its counts, the
// entry's key filter, additions and deletions that leave the file alone, a rebuild that cannot be
// started twice, and "&Uscita" stopping a load half way. The personal one's: the checks of a new
// word and their messages, deletions and the selection that follows, the file written only by
// "&Torna al gioco", and the match abandoned while it is open and started afresh when it closes.
// And the program's yield, which runs the event loop seldom enough for a scan to be quick, and
// often enough for a running timer to fire in the middle of one.
#include "board/board_layout.h"
#include "platform/event_yield.h"
#include "tests/support/window_harness.h"
#include "ui/dictionary_editor_window.h"
#include "ui/vocabulary_editor_window.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace griglione;
using namespace griglione::testing;

class EditorWindowsTest : public QObject {
    Q_OBJECT
    std::unique_ptr<EditorHarness> editor;
    std::unique_ptr<QDialog> window;

    void openDictionary(const WordLists& words) {
        editor->state.nomeDizionario = "Italiano";
        window = std::make_unique<DictionaryEditorWindow>(editor->context(words), nullptr);
        window->show();
    }
    void openVocabulary() {
        window = std::make_unique<VocabularyEditorWindow>(
            editor->context(WordLists{{{}, {"CASA", "MARE"}}}), nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    bool loaded() { return static_cast<DictionaryEditorWindow*>(window.get())->isLoaded(); }
    QString text(const char* name) { return child<QLabel>(window.get(), name)->text(); }
    QLineEdit* entry() { return child<QLineEdit>(window.get(), "Text1"); }
    QPushButton* button(const char* name) { return child<QPushButton>(window.get(), name); }
    QListWidget* list() { return child<QListWidget>(window.get(), "List1"); }
    QStringList words() { return texts(list()); }
    // The access key that opens the entry, the word and Enter.
    void enter(Qt::Key accessKey, const char* word) {
        key(accessKey, Qt::AltModifier);
        QTRY_VERIFY(entry()->hasFocus());
        QTest::keyClicks(entry(), word);
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
        openDictionary(words);
        QTRY_VERIFY(loaded());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QCOMPARE(text("Label6"), QString("Il Griglione - Dizionario principale in Italiano"));
        QCOMPARE(text("Label2_0") + "|" + text("Label4"), QString("(2) parole|4"));
        QCOMPARE(child<QComboBox>(window.get(), "Combo1_1")->currentText(), QString("CASA"));

        enter(Qt::Key_A, "luJn1a"); // J and 1 are dropped, letters go to upper case
        QCOMPARE(editor->lastAlert(),
                 QString("La parola 'LUNA' è stata momentaneamente aggiunta al "
                         "dizionario, cliccare sul bottone 'Crea dizionario' "
                         "per la ricostruzione definitiva sul disco."));
        QCOMPARE(text("Label2_1") + "|" + text("Label4"), QString("(3) Parole|5"));
        QVERIFY(!entry()->isVisible());
        enter(Qt::Key_A, "casa");
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
        // A dictionary that cannot be replaced is named with the system's reason, and nothing
        // changes, the counts included.
        const auto file = editor->folder.path() / "SLESSICO.1";
        std::filesystem::permissions(file, std::filesystem::perms::owner_read);
        editor->answers = {true};
        key(Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(
            editor->lastAlert(),
            QString("Errore 0005: il dizionario non è stato ricreato, impossibile scrivere il "
                    "file SLESSICO.1 nella posizione: %1 (permesso negato). Resta in uso il "
                    "dizionario di prima e le modifiche restano negli elenchi.")
                .arg(QString::fromStdString(editor->folder.path().string())));
        QCOMPARE(text("Label2_0") + text("Label2_2"), QString("(1) Parole(0) parole"));
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
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
        QCOMPARE(editor->asked.size(), std::size_t(4));
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
        openDictionary(words);
        QTRY_VERIFY(!window->isVisible());
        QVERIFY(clicked);
        QTest::qWait(20);
        QVERIFY(!loaded());
        QCOMPARE(text("Label2_7"), QString());
        QVERIFY(!button("Command4")->isEnabled());
        QCOMPARE(QApplication::overrideCursor(), nullptr);
    }

    void addsAndDeletesByKeysAndSavesOnlyOnReturnToTheGame() {
        editor->folder.write("ZarmPriv.1", "zeta\r\nALBERO\r\n");
        openVocabulary();
        QCOMPARE(words(), QStringList({"ALBERO", "ZETA"}));
        QCOMPARE(list()->currentRow(), 0);

        editor->answers = {true}; // two letters: go on correcting
        enter(Qt::Key_N, "ab");
        QCOMPARE(editor->asked.back(),
                 "La parola deve essere composta da 3 a 10 caratteri, vuoi continuare?");
        QVERIFY(entry()->isVisible() && entry()->hasFocus());
        QCOMPARE(entry()->text(), QString("ab"));
        key(Qt::Key_Escape); // empties the field and closes the entry without a word
        QVERIFY(!entry()->isVisible());

        for (const char* word : {"casa", "Zeta", "jazz", "luna"}) // the last one is new
            enter(Qt::Key_N, word);
        QCOMPARE(texts(editor->alerts.shown),
                 QStringList({"Parola già inserita nel vocabolario generale!",
                              "Parola già inserita nel vocabolario personale!",
                              "Sono stati utilizzati uno o più caratteri non contemplati "
                              "dall'alfabeto italiano oppure caratteri numerici!"}));
        QCOMPARE(words(), QStringList({"ALBERO", "LUNA", "ZETA"}));
        // Back on "Nuova parola" for the next word, not on the next button along.
        QCOMPARE(QApplication::focusWidget(), button("Command3d2"));

        list()->setCurrentRow(1);
        list()->setFocus();
        key(Qt::Key_C, Qt::AltModifier); // a word in the middle: the one before it is selected
        QTRY_COMPARE(words(), QStringList({"ALBERO", "ZETA"}));
        QCOMPARE(list()->currentRow(), 0);
        key(Qt::Key_C, Qt::AltModifier); // the first word: the new first one is selected
        QTRY_COMPARE(words(), QStringList({"ZETA"}));
        QCOMPARE(list()->currentRow(), 0);
        QCOMPARE(editor->folder.read("ZarmPriv.1"), "zeta\r\nALBERO\r\n");

        key(Qt::Key_T, Qt::AltModifier);
        QTRY_VERIFY(!window->isVisible());
        QCOMPARE(editor->folder.read("ZarmPriv.1"), "ZETA\r\n");
        QCOMPARE(window->result(), int(QDialog::Accepted));
    }

    void aMissingVocabularyIsCreatedAndAFailedSaveEndsTheProgram() {
        openVocabulary();
        QCOMPARE(editor->folder.exists("ZarmPriv.1") ? editor->folder.read("ZarmPriv.1") : "-", "");
        key(Qt::Key_C, Qt::AltModifier);
        QTRY_COMPARE(editor->lastAlert(),
                     QString("Non ci sono parole da cancellare dal vocabolario privato!"));
        key(Qt::Key_H, Qt::AltModifier); // no rules file: the editor's own message, then no text
        QTRY_COMPARE(editor->alerts.shown.size(), std::size_t(3));
        QCOMPARE(editor->alerts.shown[1], "ERRORE 0001: File contenente le regole sulle parole "
                                          "non trovato: REGPAROL.TCT");
        QCOMPARE(editor->lastAlert(), QString());

        std::filesystem::remove(editor->folder.path() / "ZarmPriv.1");
        std::filesystem::create_directory(editor->folder.path() / "ZarmPriv.1");
        editor->folder.write("ZarmPriv.1/x", "x");
        key(Qt::Key_T, Qt::AltModifier);
        QTRY_COMPARE(editor->terminated, 1);
        QCOMPARE(editor->alerts.shown.back(),
                 "Errore non e' possibile scrivere sul disco nella posizione: " +
                     editor->folder.path().string() + " - Il programma verra' terminato.");
    }

    void theMenuAbandonsTheMatchAndStartsANewOneWhenTheEditorCloses() {
        GameHarness game;
        game.start();
        QVERIFY(QTest::qWaitForWindowActive(game.window.get()));
        game.trigger("menuNuovo");
        QTimer *timer1 = game.timer("Timer1"), *timer2 = game.timer("Timer2");
        bool abandoned = false;
        std::function<void(QWidget*)> leave = [&](QWidget* form) {
            // Its access keys work only once it is the active window.
            if (!form->isActiveWindow()) return whenShown("Form5", leave);
            abandoned =
                !timer1->isActive() && !timer2->isActive() && tavolaVuota(game.window->state());
            QTest::keyClick(form, Qt::Key_T, Qt::AltModifier);
        };
        whenShown("Form5", leave);
        QTest::keyClick(game.window.get(), Qt::Key_F6);
        QVERIFY(abandoned);
        QVERIFY(timer1->isActive() && timer2->isActive());
        QVERIFY(!tavolaVuota(game.window->state()));
        QCOMPARE(game.folder.read("ZarmPriv.1"), std::string());
    }

    void aTimerFiresInsideAScan() {
        // 200,000 words of 10 letters: a scan of many milliseconds on any machine.
        WordLists words;
        for (int i = 0; i < 200000; ++i) {
            std::string word = "AAAAAAAAAA";
            for (int k = 9, rest = i; rest > 0; --k, rest /= 26)
                word[k] = char('A' + rest % 26);
            words[7].push_back(word);
        }
        editor->folder.write("SLESSICO.1", buildDictionaryFile("test", words));
        int records = 0, firedAt = -1;
        const auto yield = [&] {
            ++records;
            yieldToWindow();
        };
        Dictionary dictionary(editor->state, editor->files, editor->alerts, yield,
                              editor->folder.path());
        dictionary.prendidiz();
        // The tick closes the files, as a submission does, so the scan ends soon after it.
        QTimer::singleShot(2, [&] {
            firedAt = records;
            editor->files.closeAll();
        });
        QVERIFY(!dictionary.trovaInDizionario("ZZZZZZZZZZ"));
        QVERIFY(firedAt > 1 && firedAt < 200000);
    }
};

QTEST_MAIN(EditorWindowsTest)
#include "editor_windows_test.moc"
