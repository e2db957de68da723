// The "&?" menu and the links of both windows: the help page, the mail and the web site, and the
// information window opened afresh by F4.
#include "core/addresses.h"
#include "tests/support/fakes.h"
#include "ui/main_window.h"

#include <QApplication>
#include <QtTest>

using namespace griglione;
using namespace griglione::testing;

static QWidgetList informationWindows() {
    QWidgetList found = QApplication::topLevelWidgets();
    found.removeIf([](QWidget* w) { return w->objectName() != "Form3"; });
    return found;
}

static QStringList texts(const std::vector<std::string>& strings) {
    QStringList list;
    for (const std::string& s : strings)
        list << QString::fromStdString(s);
    return list;
}

class HelpLinksTest : public QObject {
    Q_OBJECT
    TempFolder folder;
    FakeSounds sounds;
    FakeAlerts alerts;
    FakeOutside outside;
    FixedClock clock;
    ScriptedRandom random;
    std::unique_ptr<MainWindow> window;

    // Keys reach the menu's shortcuts only while the main window is the active one.
    void press(int keys) {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        const auto combination = QKeyCombination::fromCombined(keys);
        QTest::keyClick(window.get(), combination.key(), combination.keyboardModifiers());
    }

private slots:
    void init() {
        alerts.shown.clear();
        outside.opened.clear();
        window = std::make_unique<MainWindow>(
            Services{sounds, alerts, outside, clock, random, [] {}, folder.path(), [] {}});
        window->show();
    }
    void cleanup() { window.reset(); }

    void keysAndLinksOpenTheirTargets_data() {
        QTest::addColumn<QString>("helpFile"); // what lies beside the game: "file", "folder", ""
        QTest::addColumn<int>("keys");         // 0: a click on `control` instead
        QTest::addColumn<QString>("control");  // a control of Form3 when it starts with "Form3/"
        QTest::addColumn<QStringList>("opened");
        QTest::addColumn<QStringList>("alerts");
        const QStringList help{QString::fromStdString((folder.path() / "GRIGLIONE.htm").string())};
        const QStringList missing{"Non trovato file di documentazione/help GRIGLIONE.htm"};
        const QStringList mail{QString("mailto:") + kEmailAutore}, site{kSitoWeb}, none;
        const int f1 = Qt::Key_F1, f8 = (Qt::CTRL | Qt::Key_F8).toCombined(),
                  f9 = (Qt::CTRL | Qt::Key_F9).toCombined();
        QTest::newRow("help") << "file" << f1 << "" << help << none;
        QTest::newRow("no help") << "" << f1 << "" << none << missing;
        QTest::newRow("help is a folder") << "folder" << f1 << "" << none << missing;
        QTest::newRow("mail") << "" << f8 << "" << mail << none;
        QTest::newRow("site") << "" << f9 << "" << site << none;
        QTest::newRow("Label12") << "" << 0 << "Label12" << site << none;
        QTest::newRow("Form3 Label6") << "" << 0 << "Form3/Label6" << site << none;
        QTest::newRow("Form3 Label3") << "" << 0 << "Form3/Label3" << mail << none;
        QTest::newRow("Form3 Picture2") << "" << 0 << "Form3/Picture2" << mail << none;
    }
    void keysAndLinksOpenTheirTargets() {
        QFETCH(QString, helpFile);
        QFETCH(int, keys);
        QFETCH(QString, control);
        std::filesystem::remove_all(folder.path() / "GRIGLIONE.htm");
        if (helpFile == "file") folder.write("GRIGLIONE.htm", "<!DOCTYPE html>");
        if (helpFile == "folder")
            std::filesystem::create_directory(folder.path() / "GRIGLIONE.htm");
        QWidget* owner = window.get();
        if (control.startsWith("Form3/")) {
            press(Qt::Key_F4);
            owner = informationWindows().value(0);
            QVERIFY(owner);
        }
        if (keys)
            press(keys);
        else
            QTest::mouseClick(owner->findChild<QWidget*>(control.section('/', -1)), Qt::LeftButton);
        QTEST(texts(outside.opened), "opened");
        QTEST(texts(alerts.shown), "alerts");
    }

    void informationWindowIsRecreatedAndClosesTheMessage() {
        press(Qt::Key_F4);
        window->messages().mostraMessaggio({"INFO!", "Prova", "testo"}, false);
        press(Qt::Key_F4);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(informationWindows().size(), 1);
        QVERIFY(QTest::qWaitForWindowActive(informationWindows().first()));
        QTRY_VERIFY(!window->messages().window());
    }
};

QTEST_MAIN(HelpLinksTest)
#include "help_links_test.moc"
