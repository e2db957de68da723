// A short match ends; from the end-of-match window the review of the board opens, a word is
// clicked and its path drawn, and closing the review leaves the end-of-match window as it was.
#include "board/board_layout.h"
#include "tests/support/window_harness.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using namespace griglione;
using namespace griglione::testing;

class ReviewWindowTest : public QObject {
    Q_OBJECT

private slots:
    void theReviewShowsTheMissedWordsAndDrawsAClickedOne() {
        GameHarness game;
        game.folder.write("SLESSICO.1", buildDictionaryFile("test", WordLists{{{"AAA", "EEE"}}}));
        game.folder.write("ZARMOLO.INI", "Livello=100\r\nTempo=30\r\n");
        game.start([] { QCoreApplication::processEvents(); });
        game.trigger("menuNuovo");
        for (int n = 0; n < kCells; ++n)
            game.window->state().immagineCella[n] = dieName(n % 2 ? 'E' : 'A', 1);
        game.window->changed(Aspect::Board);
        QTimer* timer1 = game.timer("Timer1");
        QTimer* timer2 = game.timer("Timer2");
        timer1->setInterval(15);
        timer2->setInterval(1000000); // the computer finds nothing

        QString total, heading;
        QImage board;
        bool timersStopped = false, backOnResult = false;
        whenShown("Form2", [&](QWidget* result) {
            whenShown("Form10", [&](QWidget* review) {
                total = child<QLabel>(review, "Label1")->text();
                heading = child<QLabel>(review, "Label4")->text();
                auto* missed = child<QListWidget>(review, "List3");
                QTest::mouseClick(missed->viewport(), Qt::LeftButton, {},
                                  missed->visualItemRect(missed->item(0)).center());
                board = child(review, "board")->grab().toImage();
                timersStopped = !timer1->isActive() && !timer2->isActive();
                child<QPushButton>(review, "Command2")->click();
            });
            child<QPushButton>(result, "Command3")->click();
            backOnResult = result->isVisible() && !timer1->isActive();
            child<QPushButton>(result, "Command1")->click();
        });
        QTRY_VERIFY_WITH_TIMEOUT(backOnResult, 10000);
        QCOMPARE(total, QString("Il tabellone nascondeva 2 parole per 360 punti in tutto."));
        QCOMPARE(heading, QString("Parole &mancate\n2 parole, 360 punti"));
        // "aaa" first runs from die 0 through die 6 to die 2: the line crosses the centres of
        // dice 6 and 2, not that of die 24.
        const auto lineAt = [&](int x, int y) {
            return board.pixelColor(x, y) == QColor(0, 0, 128);
        };
        QVERIFY(lineAt(100, 100) && lineAt(164, 36));
        QVERIFY(!lineAt(292, 292));
        QVERIFY(timersStopped);
        QVERIFY(timer1->isActive()); // "&OK" still goes on to the next match
    }
};

QTEST_MAIN(ReviewWindowTest)
#include "review_window_test.moc"
