// Playing without the mouse: a match started by F2 and a word typed, mended and submitted from
// the keyboard, the dice reached by arrows; and every control a player reads or uses, in every
// window, named for screen readers.
#include "tests/support/window_harness.h"
#include "ui/confirm_window.h"
#include "ui/dictionary_editor_window.h"
#include "ui/die_cell.h"
#include "ui/end_of_match_window.h"
#include "ui/information_window.h"
#include "ui/records_window.h"
#include "ui/review_window.h"
#include "ui/vocabulary_editor_window.h"

#include <QAccessible>
#include <QLineEdit>

using namespace griglione;
using namespace griglione::testing;

namespace {

// The visible controls of `window` that a screen reader would present without a name.
QStringList namelessControls(QWidget* window) {
    static const QSet<QAccessible::Role> read = {
        QAccessible::Button,   QAccessible::CheckBox,     QAccessible::RadioButton,
        QAccessible::ComboBox, QAccessible::EditableText, QAccessible::List,
        QAccessible::Table,    QAccessible::StaticText,   QAccessible::ProgressBar,
        QAccessible::Graphic,  QAccessible::Link,         QAccessible::SpinBox,
        QAccessible::Dialog,   QAccessible::Window,       QAccessible::Grouping,
        QAccessible::PageTab,  QAccessible::Notification, QAccessible::ButtonMenu};
    QStringList nameless;
    QWidgetList all = window->findChildren<QWidget*>();
    all.prepend(window);
    for (QWidget* w : all) {
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
        if (!face || !w->isVisible() || w->window() != window || !read.contains(face->role()))
            continue;
        // A label that shows nothing is not read.
        const auto* label = qobject_cast<QLabel*>(w);
        if (label && label->text().isEmpty() && label->pixmap().isNull()) continue;
        if (face->text(QAccessible::Name).trimmed().isEmpty())
            nameless << window->objectName() + "/" + w->objectName() + " (" +
                            w->metaObject()->className() + ")";
    }
    return nameless;
}

} // namespace

class KeyboardPlayTest : public QObject {
    Q_OBJECT
    std::unique_ptr<GameHarness> game;

    QString text(const char* label) { return game->get<QLabel>(label)->text(); }
    QWidget* focused() { return QApplication::focusWidget(); }
    // What the main window last gave the screen reader to say.
    QString announced() {
        auto* notice = game->window->findChild<QWidget*>("announcement");
        return notice ? notice->accessibleName() : QString();
    }

private slots:
    void init() {
        game = std::make_unique<GameHarness>();
        game->folder.write("SLESSICO.1", buildDictionaryFile("test", {{{"ERA"}, {"CASA"}}}));
        game->start();
        QApplication::setActiveWindow(game->window.get());
        QVERIFY(QTest::qWaitForWindowActive(game->window.get()));
    }
    void cleanup() { game.reset(); }

    // F2 leaves the focus on the board; letters in either case find the dice; a refused letter
    // beeps and keeps the word; Backspace mends it; Enter scores it as a clicked word.
    void aTypedWordIsTracedMendedAndScored() {
        QTest::keyClick(game->window.get(), Qt::Key_F2);
        game->timer("Timer2")->stop();
        QCOMPARE(focused(), game->get("Picture1_0"));
        game->setBoard("CASA.XA...");
        QTest::keyClicks(focused(), "caSz");
        QCOMPARE(text("Label1"), QString("CAS"));
        QCOMPARE(game->sounds.played.back(), std::string("beep"));
        QCOMPARE(announced(), QString("Z: nessun dado"));
        key(Qt::Key_Backspace);
        QCOMPARE(announced(), QString("CA")); // the word as it stands after the key
        QTest::keyClicks(focused(), "sa");
        QCOMPARE(text("Label1"), QString("CASA"));
        QVERIFY(game->window->state().cellaUsata[3]); // the shown path goes on along the row
        key(Qt::Key_Return);
        QCOMPARE(texts(game->get<QListWidget>("List1")), QStringList("casa"));
        QCOMPARE(text("Label10"), QString("320"));
        QCOMPARE(game->get("Label10")->accessibleName(), QString("I tuoi punti: 320"));
        // A letter typed on the message that follows closes it and starts the next word.
        QTest::keyClick(game->window->messages().window(), Qt::Key_C);
        QTRY_VERIFY(!game->window->messages().window());
        QCOMPARE(text("Label1"), QString("C"));
        QApplication::setActiveWindow(game->window.get()); // as the window manager does
        key(Qt::Key_Escape);
        // The arrows walk the dice, Space presses one, the menu key turns it; the name box
        // keeps its letters.
        key(Qt::Key_Right);
        key(Qt::Key_Down);
        QCOMPARE(focused(), game->get("Picture1_6"));
        QCOMPARE(focused()->accessibleName() + "|" + focused()->accessibleDescription(),
                 QString("A|riga 2, colonna 2"));
        key(Qt::Key_Space);
        key(Qt::Key_Menu);
        QCOMPARE(text("Label1"), QString("A"));
        QCOMPARE(game->window->state().immagineCella[6], std::string("zarMmgA2.gif"));
        game->get("Text1")->setFocus();
        QTest::keyClicks(focused(), "x");
        QCOMPARE(text("Label1"), QString("A"));
    }

    // F7 puts the focus in the name box, as it always did; closed during a match, the rules
    // give the keys back to the board, and the next letter goes into the word, not the name.
    void theRulesGiveTheKeysBackToTheBoard() {
        QTest::keyClick(game->window.get(), Qt::Key_F2);
        game->timer("Timer2")->stop();
        game->setBoard("CASA");
        QTest::keyClick(focused(), Qt::Key_F7);
        MessageWindow* rules = game->window->messages().window();
        QVERIFY(rules && rules->isVisible());
        QCOMPARE(game->window->focusWidget(), game->get("Text1"));
        // The window manager moves the activation to the rules and back when they close.
        QApplication::setActiveWindow(rules);
        QVERIFY(QTest::qWaitForWindowActive(rules));
        rules->close();
        QTRY_VERIFY(!game->window->messages().window());
        QApplication::setActiveWindow(game->window.get());
        QTRY_VERIFY(qobject_cast<DieCell*>(focused()));
        QTest::keyClicks(focused(), "c");
        QCOMPARE(text("Label1"), QString("C"));
        QCOMPARE(game->get<QLineEdit>("Text1")->text(), QString("BRIVO"));
    }

    // The review's dice: the arrows move between them, Space keeps only the words through a die
    // and Enter on the same die shows them all again.
    void theReviewsDiceAnswerTheKeys() {
        game->setBoard("CASA");
        ReviewWindow review(game->window.get());
        review.load(game->window->state(), game->folder.path());
        review.show();
        QApplication::setActiveWindow(&review);
        QVERIFY(QTest::qWaitForWindowActive(&review));
        auto* hint = review.findChild<QLabel*>("Label5");
        const QString all = hint->text();
        review.findChild<QWidget*>("Picture1_0")->setFocus();
        QTest::keyClick(focused(), Qt::Key_Right);
        QCOMPARE(focused(), review.findChild<QWidget*>("Picture1_1"));
        QTest::keyClick(focused(), Qt::Key_Space);
        QVERIFY(hint->text() != all);
        QTest::keyClick(focused(), Qt::Key_Return);
        QCOMPARE(hint->text(), all);
    }

    void everyControlAPlayerUsesHasAName() {
        QWidget* main = game->window.get();
        QTest::keyClick(main, Qt::Key_F2);
        game->timer("Timer2")->stop();
        game->setBoard("CA");
        QTest::keyClicks(focused(), "ca");
        key(Qt::Key_Return); // a message, read out as well
        QStringList nameless = namelessControls(main);
        nameless << namelessControls(game->window->messages().window());
        auto* announcement = main->findChild<QWidget*>("announcement");
        QVERIFY(announcement && announcement->accessibleName().startsWith("Parola troppo corta!"));

        QTimer one, two;
        EndOfMatchWindow endOfMatch(
            one, two, game->sounds, game->window->messages(), [] {}, main);
        whenShown("Form2", [&](QWidget* w) {
            nameless << namelessControls(w);
            w->close();
        });
        endOfMatch.showResult("ANNA", 320, 180, {true, false, false, false});
        ReviewWindow review(main);
        review.load(game->window->state(), game->folder.path());
        ConfirmWindow confirm("ZEBRA", "Italiano", "", main);
        RecordsWindow records([](const QString&, const QString&) {}, [] {}, main);
        records.fill(TabellaRecord{});
        InformationWindow information(
            QPixmap(), game->window->messages(), [] {}, [] {}, main);
        EditorHarness editors;
        VocabularyEditorWindow vocabulary(editors.context({{{"ERA"}}}), main);
        DictionaryEditorWindow dictionary(editors.context({{{"ERA"}}}), main);
        for (QWidget* w : std::initializer_list<QWidget*>{&review, &confirm, &records, &information,
                                                          &vocabulary, &dictionary}) {
            w->show();
            nameless << namelessControls(w);
            w->hide();
        }
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join("\n")));
    }
};

QTEST_MAIN(KeyboardPlayTest)
#include "keyboard_play_test.moc"
