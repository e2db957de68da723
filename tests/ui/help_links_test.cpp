// The "&?" menu and the links of both windows: the help page, the mail and the web site, and the
// information window opened afresh by F4.
#include "core/addresses.h"
#include "tests/support/window_harness.h"

#include <QKeySequence>

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
    void press(const QString& keys) {
        game->window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(game->window.get()));
        QTest::keySequence(game->window.get(), QKeySequence(keys));
    }

private slots:
    void init() {
        game = std::make_unique<GameHarness>();
        game->start();
    }
    void cleanup() { game.reset(); }

    // Each row: what lies beside the game as GRIGLIONE.htm (a file, a folder or nothing), the
    // keys pressed or the control clicked (of Form3 when so named), and the target opened.
    void keysAndLinksOpenTheirTargets() {
        const QString missing = "Non trovato file di documentazione/help GRIGLIONE.htm";
        const QString mail = QString("mailto:") + kEmailAutore, site = kSitoWeb;
        const QString rows[][3] = {{"file", "F1", "help"},      {"", "F1", ""},
                                   {"folder", "F1", ""},        {"", "Ctrl+F8", mail},
                                   {"", "Ctrl+F9", site},       {"", "Label12", site},
                                   {"", "Form3/Label6", site},  {"", "Form3/Label3", mail},
                                   {"", "Form3/Picture2", mail}};
        for (const auto& [beside, input, target] : rows) {
            init();
            const std::filesystem::path help = game->folder.path() / "GRIGLIONE.htm";
            if (beside == "file") game->folder.write("GRIGLIONE.htm", "");
            if (beside == "folder") std::filesystem::create_directory(help);
            const QString opened =
                target == "help" ? QString::fromStdString(help.string()) : target;
            QWidget* owner = game->window.get();
            if (input.startsWith("Form3/")) {
                press("F4");
                owner = informationWindows().value(0);
                QVERIFY(owner);
            }
            if (input.contains("Label") || input.contains("Picture"))
                QTest::mouseClick(child(owner, qPrintable(input.section('/', -1))), Qt::LeftButton);
            else
                press(input);
            QCOMPARE(texts(game->outside.opened),
                     opened.isEmpty() ? QStringList() : QStringList(opened));
            QCOMPARE(texts(game->alerts.shown),
                     opened.isEmpty() ? QStringList(missing) : QStringList());
        }
    }

    void informationWindowIsRecreatedAndClosesTheMessage() {
        press("F4");
        game->window->messages().mostraMessaggio({"INFO!", "Prova", "testo"}, false);
        press("F4");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(informationWindows().size(), 1);
        QVERIFY(QTest::qWaitForWindowActive(informationWindows().first()));
        QTRY_VERIFY(!game->window->messages().window());
    }
};

QTEST_MAIN(HelpLinksTest)
#include "help_links_test.moc"
