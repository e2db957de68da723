// The records window from the main window: a score entered on leaving with "&Fine" lands in the
// file byte for byte, and the table opened from the menu changes nothing.
#include "core/mixing_random.h"
#include "dictionary/dictionary_format.h"
#include "tests/support/fakes.h"
#include "ui/main_window.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>
#include <QtTest>

#include <memory>

using namespace griglione;
using namespace griglione::testing;

class RecordsWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TempFolder> folder;
    FakeSounds sounds;
    FakeAlerts alerts;
    FakeOutside outside;
    FixedClock clock;
    MixingRandom random{7};
    std::unique_ptr<MainWindow> window;

    QWidget* records() {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "Form4" && w->isVisible()) return w;
        return nullptr;
    }
    void trigger(const char* name) { window->findChild<QAction*>(name)->trigger(); }
    bool clockRuns() { return window->findChild<QTimer*>("Timer1")->isActive(); }

private slots:
    void init() {
        folder = std::make_unique<TempFolder>();
        folder->write("SLESSICO.1", buildDictionaryFile("test", {{{"ERA"}}}));
        window = std::make_unique<MainWindow>(
            Services{sounds, alerts, outside, clock, random, [] {}, folder->path(), [] {}});
        window->startUp();
        window->show();
    }
    void cleanup() {
        window.reset();
        folder.reset();
    }

    void fineEntersTheScoreAndOffersTheSubmission() {
        folder->write("zarMolo.HIS", "ANNA, 2000 \r\nCARLO,900\r\n");
        window->state().puntiGiocatore = 1000;
        bool seen = false;
        QTimer::singleShot(0, [&] {
            QWidget* shown = records();
            QVERIFY(shown);
            // A failed check must still end the modal window, or the test would hang.
            const auto closeAtEnd = qScopeGuard([shown] { shown->close(); });
            seen = true;
            QVERIFY(!window->isEnabled());
            QCOMPARE(shown->findChild<QLabel*>("Label1")->text(), QString("ANNA"));
            auto* list = shown->findChild<QListWidget*>("List1");
            QCOMPARE(list->currentItem()->text(), QString(" 02 - BRIVO        -  01.000"));
            shown->findChild<QLineEdit*>("Text1")->setText(" ciao a tutti & 100% ");
            QTest::mouseClick(shown->findChild<QLabel*>("Label7"), Qt::LeftButton);
            QTest::mouseClick(shown->findChild<QPushButton*>("Command1"), Qt::LeftButton);
        });
        trigger("MenuFine");
        QVERIFY(seen);
        QVERIFY(window->isEnabled());
        QVERIFY(!clockRuns());
        std::string written = "ANNA, 2000 \r\nBRIVO, 1000 \r\nCARLO, 900 \r\n";
        for (int i = 0; i < 47; ++i)
            written += ", 0 \r\n";
        QCOMPARE(folder->read("zarMolo.HIS"), written);
        QCOMPARE(outside.opened.size(), std::size_t{1});
        QVERIFY(outside.opened[0].find("&punti=1000&Tempo=120&Note=ciao_a_tutti___100_&E_MAIL=&") !=
                std::string::npos);
    }

    void theTableFromTheMenuLeavesTheFileAndTheMatchAlone() {
        folder->write("zarMolo.HIS", "ANNA, 2000 \r\nZED\r\n");
        trigger("menuNuovo");
        window->state().puntiGiocatore = 5000;
        trigger("MenuHI");
        QVERIFY(records());
        QVERIFY(!window->isEnabled());
        QVERIFY(clockRuns());
        QVERIFY(!records()->findChild<QLabel*>("Label7")->isEnabled());
        QTest::mouseClick(records()->findChild<QLabel*>("Label2"), Qt::LeftButton);
        QTRY_VERIFY(!records());
        QVERIFY(window->isEnabled());
        QVERIFY(clockRuns());
        QCOMPARE(folder->read("zarMolo.HIS"), "ANNA, 2000 \r\nZED\r\n");
    }
};

QTEST_MAIN(RecordsWindowTest)
#include "records_window_test.moc"
