// The records window from the main window: a score entered on leaving with "&Fine" lands in the
// file byte for byte, and the table opened from the menu changes nothing.
#include "tests/support/window_harness.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopeGuard>

using namespace griglione;
using namespace griglione::testing;

class RecordsWindowTest : public QObject {
    Q_OBJECT
    std::unique_ptr<GameHarness> game;

private slots:
    void init() {
        game = std::make_unique<GameHarness>();
        game->start();
    }
    void cleanup() { game.reset(); }

    void fineEntersTheScoreAndOffersTheSubmission() {
        game->folder.write("zarMolo.HIS", "ANNA, 2000 \r\nCARLO,900\r\n");
        game->window->state().puntiGiocatore = 1000;
        bool seen = false;
        QTimer::singleShot(0, [&] {
            QWidget* shown = shownWindow("Form4");
            QVERIFY(shown);
            // A failed check must still end the modal window, or the test would hang.
            const auto closeAtEnd = qScopeGuard([shown] { shown->close(); });
            seen = true;
            QVERIFY(!game->window->isEnabled());
            QCOMPARE(child<QLabel>(shown, "Label1")->text(), QString("ANNA"));
            QCOMPARE(child<QListWidget>(shown, "List1")->currentItem()->text(),
                     QString(" 02 - BRIVO        -  01.000"));
            child<QLineEdit>(shown, "Text1")->setText(" ciao a tutti & 100% ");
            QTest::mouseClick(child(shown, "Label7"), Qt::LeftButton);
            QTest::mouseClick(child(shown, "Command1"), Qt::LeftButton);
        });
        game->trigger("MenuFine");
        QVERIFY(seen);
        QVERIFY(game->window->isEnabled());
        QVERIFY(!game->timer("Timer1")->isActive());
        QVERIFY(game->folder.read("zarMolo.HIS")
                    .starts_with("ANNA, 2000 \r\nBRIVO, 1000 \r\nCARLO, 900 \r\n, 0 \r\n"));
        QCOMPARE(game->outside.opened.size(), std::size_t{1});
        QVERIFY(game->outside.opened[0].find(
                    "&punti=1000&Tempo=120&Note=ciao_a_tutti___100_&E_MAIL=&") !=
                std::string::npos);
    }

    void theTableFromTheMenuLeavesTheFileAndTheMatchAlone() {
        game->folder.write("zarMolo.HIS", "ANNA, 2000 \r\nZED\r\n");
        game->trigger("menuNuovo");
        game->window->state().puntiGiocatore = 5000;
        game->trigger("MenuHI");
        QWidget* shown = shownWindow("Form4");
        QVERIFY(shown);
        QVERIFY(!game->window->isEnabled());
        QVERIFY(game->timer("Timer1")->isActive());
        QVERIFY(!child(shown, "Label7")->isEnabled());
        QTest::mouseClick(child(shown, "Label2"), Qt::LeftButton);
        QTRY_VERIFY(!shownWindow("Form4"));
        QVERIFY(game->window->isEnabled());
        QVERIFY(game->timer("Timer1")->isActive());
        QCOMPARE(game->folder.read("zarMolo.HIS"), "ANNA, 2000 \r\nZED\r\n");
    }
};

QTEST_MAIN(RecordsWindowTest)
#include "records_window_test.moc"
