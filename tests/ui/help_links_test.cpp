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

    // The row's name says what lies beside the game as GRIGLIONE.htm: a "file", a "folder" or
    // nothing; `input` is keys, or a control to click, of Form3 when it starts with "Form3/".
    void keysAndLinksOpenTheirTargets_data() {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("opened"); // "help" for the help file beside the game
        QTest::addColumn<QString>("alert");
        const QString missing = "Non trovato file di documentazione/help GRIGLIONE.htm";
        const QString mail = QString("mailto:") + kEmailAutore, site = kSitoWeb;
        const QString rows[][3] = {{"file", "F1", "help"},
                                   {"none", "F1", ""},
                                   {"folder", "F1", ""},
                                   {"mail", "Ctrl+F8", mail},
                                   {"site", "Ctrl+F9", site},
                                   {"Label12", "Label12", site},
                                   {"Form3 Label6", "Form3/Label6", site},
                                   {"Form3 Label3", "Form3/Label3", mail},
                                   {"Form3 Picture2", "Form3/Picture2", mail}};
        for (const auto& [tag, input, opened] : rows)
            QTest::newRow(qPrintable(tag))
                << input << opened << (opened.isEmpty() ? missing : QString());
    }
    void keysAndLinksOpenTheirTargets() {
        QFETCH(QString, input);
        QFETCH(QString, opened);
        QFETCH(QString, alert);
        const std::filesystem::path help = game->folder.path() / "GRIGLIONE.htm";
        if (QTest::currentDataTag() == QString("file")) game->folder.write("GRIGLIONE.htm", "");
        if (QTest::currentDataTag() == QString("folder")) std::filesystem::create_directory(help);
        if (opened == "help") opened = QString::fromStdString(help.string());
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
        const auto only = [](const std::vector<std::string>& seen) {
            return seen.size() == 1 ? QString::fromStdString(seen[0])
                                    : QString::number(seen.size());
        };
        QCOMPARE(only(game->outside.opened), opened.isEmpty() ? "0" : opened);
        QCOMPARE(only(game->alerts.shown), alert.isEmpty() ? "0" : alert);
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
