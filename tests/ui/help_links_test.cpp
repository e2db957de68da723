// The "&?" menu and the links: the help page, the mail and the web site through the keys and the
// links of both windows, and the information window opened again by F4.
#include "core/addresses.h"
#include "tests/support/fakes.h"
#include "ui/main_window.h"

#include <QApplication>
#include <QLabel>
#include <QtTest>

using namespace griglione;
using namespace griglione::testing;

namespace {

QList<QWidget*> informationWindows() {
    QList<QWidget*> found;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "Form3") found.append(w);
    return found;
}

} // namespace

class HelpLinksTest : public QObject {
    Q_OBJECT

    TempFolder folder;
    FakeSounds sounds;
    FakeAlerts alerts;
    FakeOutside outside;
    FixedClock clock;
    ScriptedRandom random;
    std::unique_ptr<MainWindow> window;

    void pressOnMainWindow(int key, Qt::KeyboardModifiers modifiers = {}) {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(window.get(), Qt::Key(key), modifiers);
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
        QTest::addColumn<QString>("helpFile"); // "file", "folder" or nothing beside the game
        QTest::addColumn<int>("key");          // 0: a click on `control` instead
        QTest::addColumn<QString>("control");  // "Form3/…" for a control of Form3
        QTest::addColumn<QString>("opened");
        QTest::addColumn<QString>("alert");
        const QString help = QString::fromStdString((folder.path() / "GRIGLIONE.htm").string());
        const QString missing = "Non trovato file di documentazione/help GRIGLIONE.htm";
        const QString mail = QString("mailto:") + kEmailAutore;
        QTest::newRow("help") << "file" << int(Qt::Key_F1) << "" << help << "";
        QTest::newRow("no help") << "" << int(Qt::Key_F1) << ""
                                 << "" << missing;
        QTest::newRow("help is a folder") << "folder" << int(Qt::Key_F1) << ""
                                          << "" << missing;
        QTest::newRow("mail") << "" << int(Qt::CTRL | Qt::Key_F8) << "" << mail << "";
        QTest::newRow("site") << "" << int(Qt::CTRL | Qt::Key_F9) << "" << kSitoWeb << "";
        QTest::newRow("Label12") << "" << 0 << "Label12" << kSitoWeb << "";
        QTest::newRow("Form3 Label6") << "" << 0 << "Form3/Label6" << kSitoWeb << "";
        QTest::newRow("Form3 Label3") << "" << 0 << "Form3/Label3" << mail << "";
        QTest::newRow("Form3 Picture2") << "" << 0 << "Form3/Picture2" << mail << "";
    }
    void keysAndLinksOpenTheirTargets() {
        QFETCH(QString, helpFile);
        QFETCH(int, key);
        QFETCH(QString, control);
        std::filesystem::remove_all(folder.path() / "GRIGLIONE.htm");
        if (helpFile == "file") folder.write("GRIGLIONE.htm", "<!doctype html>");
        if (helpFile == "folder")
            std::filesystem::create_directory(folder.path() / "GRIGLIONE.htm");
        QWidget* owner = window.get();
        if (control.startsWith("Form3/")) {
            pressOnMainWindow(Qt::Key_F4);
            QCOMPARE(informationWindows().size(), 1);
            owner = informationWindows().first();
        }
        if (key)
            pressOnMainWindow(key & ~Qt::KeyboardModifierMask,
                              Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
        else
            QTest::mouseClick(owner->findChild<QWidget*>(control.section('/', -1)), Qt::LeftButton);
        QFETCH(QString, opened);
        QFETCH(QString, alert);
        QCOMPARE(outside.opened.size(), opened.isEmpty() ? 0u : 1u);
        if (!opened.isEmpty()) QCOMPARE(QString::fromStdString(outside.opened[0]), opened);
        QCOMPARE(alerts.shown.size(), alert.isEmpty() ? 0u : 1u);
        if (!alert.isEmpty()) QCOMPARE(QString::fromStdString(alerts.shown[0]), alert);
    }

    void informationWindowIsRecreatedAndClosesTheMessage() {
        pressOnMainWindow(Qt::Key_F4);
        window->messages().mostraMessaggio({"INFO!", "Prova", "testo"}, false);
        pressOnMainWindow(Qt::Key_F4);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(informationWindows().size(), 1);
        QWidget* info = informationWindows().first();
        QCOMPARE(info->findChild<QLabel*>("Label2")->text(), QString("Versione 3.1.0"));
        QVERIFY(QTest::qWaitForWindowActive(info));
        QTRY_VERIFY(!window->messages().window());
    }
};

QTEST_MAIN(HelpLinksTest)
#include "help_links_test.moc"
