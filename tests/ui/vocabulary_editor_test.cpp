// The personal vocabulary editor driven by keys: the checks of a new word and their messages,
// deletions and the selection that follows, the file written only by "&Torna al gioco", and the
// match abandoned while the editor is open and started afresh when it closes.
#include "board/board_layout.h"
#include "core/mixing_random.h"
#include "tests/support/fakes.h"
#include "ui/main_window.h"
#include "ui/vocabulary_editor_window.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest>

#include <deque>
#include <memory>

using namespace griglione;
using namespace griglione::testing;

class VocabularyEditorTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TempFolder> folder;
    GameState state;
    OpenFileTable files;
    FakeAlerts alerts;
    std::deque<bool> answers;
    std::vector<std::string> asked;
    int terminated = 0;
    std::unique_ptr<Dictionary> dictionary;
    std::unique_ptr<VocabularyEditorWindow> window;

    void open() {
        WordLists words;
        words[1] = {"CASA", "MARE"};
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
        window = std::make_unique<VocabularyEditorWindow>(
            EditorContext{state, *dictionary, files, alerts, ask, [] {}, [] {},
                          [this] { ++terminated; }, folder->path()},
            nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    QLineEdit* entry() { return window->findChild<QLineEdit*>("Text1"); }
    QListWidget* list() { return window->findChild<QListWidget*>("List1"); }
    QStringList words() {
        QStringList all;
        for (int i = 0; i < list()->count(); ++i)
            all << list()->item(i)->text();
        return all;
    }
    void key(Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), k, m);
    }
    // "&Nuova parola", the word and Enter.
    void add(const char* word) {
        key(Qt::Key_N, Qt::AltModifier);
        QTRY_VERIFY(entry()->hasFocus());
        QTest::keyClicks(entry(), word);
        key(Qt::Key_Return);
    }

private slots:
    void init() {
        folder = std::make_unique<TempFolder>();
        alerts.shown.clear();
        asked.clear();
        terminated = 0;
    }
    void cleanup() {
        window.reset();
        folder.reset();
    }

    void addsAndDeletesByKeysAndSavesOnlyOnReturnToTheGame() {
        folder->write("ZarmPriv.1", "zeta\r\nALBERO\r\n");
        open();
        QCOMPARE(words(), QStringList({"ALBERO", "ZETA"}));
        QCOMPARE(list()->currentRow(), 0);

        answers = {true}; // two letters: go on correcting
        add("ab");
        QCOMPARE(asked.back(),
                 "La parola deve essere composta da 3 a 10 caratteri, vuoi continuare?");
        QVERIFY(entry()->isVisible() && entry()->hasFocus());
        QCOMPARE(entry()->text(), QString("ab"));
        key(Qt::Key_Escape); // empties the field and closes the entry without a word
        QVERIFY(!entry()->isVisible());

        add("casa");
        QCOMPARE(alerts.shown.back(), "Parola già inserita nel vocabolario generale!");
        add("Zeta");
        QCOMPARE(alerts.shown.back(), "Parola già inserita nel vocabolario personale!");
        add("jazz");
        QCOMPARE(alerts.shown.back(), "Sono stati utilizzati uno o più caratteri non contemplati "
                                      "dall'alfabeto italiano oppure caratteri numerici!");
        add("luna");
        QCOMPARE(alerts.shown.size(), std::size_t(3));
        QCOMPARE(words(), QStringList({"ALBERO", "LUNA", "ZETA"}));

        key(Qt::Key_C, Qt::AltModifier); // the first word: the new first one is selected
        QTRY_COMPARE(words(), QStringList({"LUNA", "ZETA"}));
        QCOMPARE(list()->currentRow(), 0);
        list()->setFocus();
        key(Qt::Key_Down);
        key(Qt::Key_C, Qt::AltModifier); // the last word: the one before it is selected
        QTRY_COMPARE(words(), QStringList({"LUNA"}));
        QCOMPARE(list()->currentRow(), 0);
        QCOMPARE(folder->read("ZarmPriv.1"), "zeta\r\nALBERO\r\n");

        key(Qt::Key_T, Qt::AltModifier);
        QTRY_VERIFY(!window->isVisible());
        QCOMPARE(folder->read("ZarmPriv.1"), "LUNA\r\n");
        QCOMPARE(window->result(), int(QDialog::Accepted));
    }

    void aMissingVocabularyIsCreatedAndAFailedSaveEndsTheProgram() {
        open();
        QVERIFY(folder->exists("ZarmPriv.1"));
        QCOMPARE(folder->read("ZarmPriv.1"), "");
        key(Qt::Key_C, Qt::AltModifier);
        QTRY_COMPARE(alerts.shown.size(), std::size_t(1));
        QCOMPARE(alerts.shown[0], "Non ci sono parole da cancellare dal vocabolario privato!");
        key(Qt::Key_H, Qt::AltModifier); // no rules file: the editor's own message, then no text
        QTRY_COMPARE(alerts.shown.size(), std::size_t(3));
        QCOMPARE(alerts.shown[1], "ERRORE 0001: File contenente le regole sulle parole non "
                                  "trovato: REGPAROL.TCT");
        QCOMPARE(alerts.shown[2], "");

        std::filesystem::remove(folder->path() / "ZarmPriv.1");
        std::filesystem::create_directory(folder->path() / "ZarmPriv.1");
        folder->write("ZarmPriv.1/x", "x");
        key(Qt::Key_T, Qt::AltModifier);
        QTRY_COMPARE(terminated, 1);
        QCOMPARE(alerts.shown.back(),
                 "Errore non e' possibile scrivere sul disco nella posizione: " +
                     folder->path().string() + " - Il programma verra' terminato.");
    }

    void theMenuAbandonsTheMatchAndStartsANewOneWhenTheEditorCloses() {
        WordLists words;
        words[1] = {"CASA"};
        folder->write("SLESSICO.1", buildDictionaryFile("test", words));
        FakeSounds sounds;
        FakeOutside outside;
        FixedClock clock;
        MixingRandom random{7};
        MainWindow main(
            Services{sounds, alerts, outside, clock, random, [] {}, folder->path(), [] {}});
        main.startUp();
        main.show();
        QVERIFY(QTest::qWaitForWindowActive(&main));
        main.findChild<QAction*>("menuNuovo")->trigger();
        auto* timer1 = main.findChild<QTimer*>("Timer1");
        auto* timer2 = main.findChild<QTimer*>("Timer2");
        bool abandoned = false;
        std::function<void(int)> leave = [&](int tries) {
            QWidget* editor = QApplication::activeModalWidget();
            if (!editor || !editor->isActiveWindow()) {
                if (tries > 0) QTimer::singleShot(5, [&, tries] { leave(tries - 1); });
                return;
            }
            abandoned = editor->objectName() == "Form5" && !timer1->isActive() &&
                        !timer2->isActive() && tavolaVuota(main.state());
            QTest::keyClick(editor, Qt::Key_T, Qt::AltModifier);
        };
        leave(400);
        QTest::keyClick(&main, Qt::Key_F6);
        QVERIFY(abandoned);
        QVERIFY(timer1->isActive() && timer2->isActive());
        QVERIFY(!tavolaVuota(main.state()));
        QCOMPARE(folder->read("ZarmPriv.1"), std::string());
    }
};

QTEST_MAIN(VocabularyEditorTest)
#include "vocabulary_editor_test.moc"
