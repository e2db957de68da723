// The personal vocabulary editor driven by keys: the checks of a new word and their messages,
// deletions and the selection that follows, the file written only by "&Torna al gioco", and the
// match abandoned while the editor is open and started afresh when it closes.
#include "board/board_layout.h"
#include "tests/support/window_harness.h"
#include "ui/vocabulary_editor_window.h"

#include <QLineEdit>
#include <QListWidget>

using namespace griglione;
using namespace griglione::testing;

class VocabularyEditorTest : public QObject {
    Q_OBJECT
    std::unique_ptr<EditorHarness> editor;
    std::unique_ptr<VocabularyEditorWindow> window;

    void open() {
        window = std::make_unique<VocabularyEditorWindow>(
            editor->context(WordLists{{{}, {"CASA", "MARE"}}}), nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    QLineEdit* entry() { return child<QLineEdit>(window.get(), "Text1"); }
    QListWidget* list() { return child<QListWidget>(window.get(), "List1"); }
    QStringList words() { return texts(list()); }
    // "&Nuova parola", the word and Enter.
    void add(const char* word) {
        key(Qt::Key_N, Qt::AltModifier);
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

    void addsAndDeletesByKeysAndSavesOnlyOnReturnToTheGame() {
        editor->folder.write("ZarmPriv.1", "zeta\r\nALBERO\r\n");
        open();
        QCOMPARE(words(), QStringList({"ALBERO", "ZETA"}));
        QCOMPARE(list()->currentRow(), 0);

        editor->answers = {true}; // two letters: go on correcting
        add("ab");
        QCOMPARE(editor->asked.back(),
                 "La parola deve essere composta da 3 a 10 caratteri, vuoi continuare?");
        QVERIFY(entry()->isVisible() && entry()->hasFocus());
        QCOMPARE(entry()->text(), QString("ab"));
        key(Qt::Key_Escape); // empties the field and closes the entry without a word
        QVERIFY(!entry()->isVisible());

        for (const char* word : {"casa", "Zeta", "jazz", "luna"}) // the last one is new
            add(word);
        QCOMPARE(texts(editor->alerts.shown),
                 QStringList({"Parola già inserita nel vocabolario generale!",
                              "Parola già inserita nel vocabolario personale!",
                              "Sono stati utilizzati uno o più caratteri non contemplati "
                              "dall'alfabeto italiano oppure caratteri numerici!"}));
        QCOMPARE(words(), QStringList({"ALBERO", "LUNA", "ZETA"}));

        key(Qt::Key_C, Qt::AltModifier); // the first word: the new first one is selected
        QTRY_COMPARE(words(), QStringList({"LUNA", "ZETA"}));
        QCOMPARE(list()->currentRow(), 0);
        list()->setFocus();
        key(Qt::Key_Down);
        key(Qt::Key_C, Qt::AltModifier); // the last word: the one before it is selected
        QTRY_COMPARE(words(), QStringList({"LUNA"}));
        QCOMPARE(list()->currentRow(), 0);
        QCOMPARE(editor->folder.read("ZarmPriv.1"), "zeta\r\nALBERO\r\n");

        key(Qt::Key_T, Qt::AltModifier);
        QTRY_VERIFY(!window->isVisible());
        QCOMPARE(editor->folder.read("ZarmPriv.1"), "LUNA\r\n");
        QCOMPARE(window->result(), int(QDialog::Accepted));
    }

    void aMissingVocabularyIsCreatedAndAFailedSaveEndsTheProgram() {
        open();
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
        QTimer* timer1 = game.timer("Timer1");
        QTimer* timer2 = game.timer("Timer2");
        bool abandoned = false;
        std::function<void(QWidget*)> leave = [&](QWidget* editor) {
            // Its access keys work only once it is the active window.
            if (!editor->isActiveWindow()) return whenShown("Form5", leave);
            abandoned =
                !timer1->isActive() && !timer2->isActive() && tavolaVuota(game.window->state());
            QTest::keyClick(editor, Qt::Key_T, Qt::AltModifier);
        };
        whenShown("Form5", leave);
        QTest::keyClick(game.window.get(), Qt::Key_F6);
        QVERIFY(abandoned);
        QVERIFY(timer1->isActive() && timer2->isActive());
        QVERIFY(!tavolaVuota(game.window->state()));
        QCOMPARE(game.folder.read("ZarmPriv.1"), std::string());
    }
};

QTEST_MAIN(VocabularyEditorTest)
#include "vocabulary_editor_test.moc"
