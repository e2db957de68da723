// The "&?" menu and the links of both windows: the help page, the mail and the web site, and the
// information window opened afresh by F4.
#include "core/addresses.h"
#include "tests/support/window_harness.h"

using namespace griglione;
using namespace griglione::testing;

static QWidgetList informationWindows() {
    QWidgetList found = QApplication::topLevelWidgets();
    found.removeIf([](QWidget* w) { return w->objectName() != "Form3"; });
    return found;
}

class HelpLinksTest : public QObject {
    Q_OBJECT
    std::unique_ptr<GameHarness> game;

    // Keys reach the menu's shortcuts only while the main window is the active one.
    void press(int keys) {
        game->window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(game->window.get()));
        const auto combination = QKeyCombination::fromCombined(keys);
        QTest::keyClick(game->window.get(), combination.key(), combination.keyboardModifiers());
    }

private slots:
    void init() {
        game = std::make_unique<GameHarness>();
        game->start();
    }
    void cleanup() { game.reset(); }

    void keysAndLinksOpenTheirTargets_data() {
        QTest::addColumn<QString>("helpFile"); // what lies beside the game: "file", "folder", ""
        QTest::addColumn<int>("keys");         // 0: a click on `control` instead
        QTest::addColumn<QString>("control");  // a control of Form3 when it starts with "Form3/"
        QTest::addColumn<QString>("opened");   // "help" for the help file beside the game
        QTest::addColumn<QString>("alert");
        const QString missing = "Non trovato file di documentazione/help GRIGLIONE.htm";
        const QString mail = QString("mailto:") + kEmailAutore, site = kSitoWeb;
        const int f1 = Qt::Key_F1, f8 = (Qt::CTRL | Qt::Key_F8).toCombined(),
                  f9 = (Qt::CTRL | Qt::Key_F9).toCombined();
        QTest::newRow("help") << "file" << f1 << ""
                              << "help"
                              << "";
        QTest::newRow("no help") << "" << f1 << ""
                                 << "" << missing;
        QTest::newRow("help is a folder") << "folder" << f1 << ""
                                          << "" << missing;
        QTest::newRow("mail") << "" << f8 << "" << mail << "";
        QTest::newRow("site") << "" << f9 << "" << site << "";
        QTest::newRow("Label12") << "" << 0 << "Label12" << site << "";
        QTest::newRow("Form3 Label6") << "" << 0 << "Form3/Label6" << site << "";
        QTest::newRow("Form3 Label3") << "" << 0 << "Form3/Label3" << mail << "";
        QTest::newRow("Form3 Picture2") << "" << 0 << "Form3/Picture2" << mail << "";
    }
    void keysAndLinksOpenTheirTargets() {
        QFETCH(QString, helpFile);
        QFETCH(int, keys);
        QFETCH(QString, control);
        QFETCH(QString, opened);
        QFETCH(QString, alert);
        if (helpFile == "file") game->folder.write("GRIGLIONE.htm", "<!DOCTYPE html>");
        if (helpFile == "folder")
            std::filesystem::create_directory(game->folder.path() / "GRIGLIONE.htm");
        if (opened == "help")
            opened = QString::fromStdString((game->folder.path() / "GRIGLIONE.htm").string());
        QWidget* owner = game->window.get();
        if (control.startsWith("Form3/")) {
            press(Qt::Key_F4);
            owner = informationWindows().value(0);
            QVERIFY(owner);
        }
        if (keys)
            press(keys);
        else
            QTest::mouseClick(child(owner, qPrintable(control.section('/', -1))), Qt::LeftButton);
        const auto only = [](const std::vector<std::string>& seen) {
            return seen.size() == 1 ? QString::fromStdString(seen[0])
                                    : QString::number(seen.size());
        };
        QCOMPARE(only(game->outside.opened), opened.isEmpty() ? "0" : opened);
        QCOMPARE(only(game->alerts.shown), alert.isEmpty() ? "0" : alert);
    }

    void informationWindowIsRecreatedAndClosesTheMessage() {
        press(Qt::Key_F4);
        game->window->messages().mostraMessaggio({"INFO!", "Prova", "testo"}, false);
        press(Qt::Key_F4);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(informationWindows().size(), 1);
        QVERIFY(QTest::qWaitForWindowActive(informationWindows().first()));
        QTRY_VERIFY(!game->window->messages().window());
    }
};

QTEST_MAIN(HelpLinksTest)
#include "help_links_test.moc"
