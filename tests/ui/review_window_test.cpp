// A short match ends; from the end-of-match window the review of the board opens, a word is
// clicked and its path drawn, and closing the review leaves the end-of-match window as it was.
#include "board/board_layout.h"
#include "core/mixing_random.h"
#include "dictionary/dictionary_format.h"
#include "tests/support/fakes.h"
#include "ui/main_window.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

using namespace griglione;
using namespace griglione::testing;

namespace {

void whenShown(const QString& name, std::function<void(QWidget*)> action, int tries = 2000) {
    QTimer::singleShot(5, [=] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == name && w->isVisible()) return action(w);
        if (tries > 0) whenShown(name, action, tries - 1);
    });
}

} // namespace

class ReviewWindowTest : public QObject {
    Q_OBJECT

private slots:
    void theReviewShowsTheMissedWordsAndDrawsAClickedOne() {
        TempFolder folder;
        WordLists words;
        words[0] = {"AAA", "EEE"};
        folder.write("SLESSICO.1", buildDictionaryFile("test", words));
        folder.write("ZARMOLO.INI", "Livello=100\r\nTempo=30\r\n");
        FakeSounds sounds;
        FakeAlerts alerts;
        FakeOutside outside;
        FixedClock clock;
        MixingRandom random{5};
        MainWindow window(Services{sounds, alerts, outside, clock, random,
                                   [] { QCoreApplication::processEvents(); }, folder.path(),
                                   [] {}});
        window.startUp();
        window.show();
        window.findChild<QAction*>("menuNuovo")->trigger();
        for (int n = 0; n < kCells; ++n)
            window.state().immagineCella[n] = dieName(n % 2 ? 'E' : 'A', 1);
        window.changed(Aspect::Board);
        auto* timer1 = window.findChild<QTimer*>("Timer1");
        auto* timer2 = window.findChild<QTimer*>("Timer2");
        timer1->setInterval(15);
        timer2->setInterval(1000000); // the computer finds nothing

        QString total, heading;
        QImage board;
        bool timersStopped = false, backOnResult = false;
        whenShown("Form2", [&](QWidget* result) {
            whenShown("Form10", [&](QWidget* review) {
                total = review->findChild<QLabel*>("Label1")->text();
                heading = review->findChild<QLabel*>("Label4")->text();
                auto* missed = review->findChild<QListWidget*>("List3");
                QTest::mouseClick(missed->viewport(), Qt::LeftButton, {},
                                  missed->visualItemRect(missed->item(0)).center());
                board = review->findChild<QWidget*>("board")->grab().toImage();
                timersStopped = !timer1->isActive() && !timer2->isActive();
                review->findChild<QPushButton*>("Command2")->click();
            });
            result->findChild<QPushButton*>("Command3")->click();
            backOnResult = result->isVisible() && !timer1->isActive();
            result->findChild<QPushButton*>("Command1")->click();
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
