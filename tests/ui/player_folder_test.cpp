// An installed game: the program's folder cannot be written and the shipped files lie in the data
// folder beside it; what the player changes is kept in the player's own folder.
#include "board/board_layout.h"
#include "core/atomic_file.h"
#include "core/file_names.h"
#include "core/mixing_random.h"
#include "dictionary/dictionary_format.h"
#include "platform/game_folder.h"
#include "tests/support/fakes.h"
#include "ui/die_cell.h"
#include "ui/main_window.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QRadioButton>
#include <QTimer>
#include <QtTest>

#include <memory>

using namespace griglione;
using namespace griglione::testing;
namespace fs = std::filesystem;

class PlayerFolderTest : public QObject {
    Q_OBJECT

    FakeSounds sounds;
    FakeAlerts alerts;
    FakeOutside outside;
    FixedClock clock;
    MixingRandom random{7};

private slots:
    void changesAreKeptInThePlayersFolder() {
        TempFolder tree;
        const fs::path program = tree.path() / "games";
        const fs::path data = tree.path() / "share/games/griglione";
        const fs::path player = tree.path() / "xdg/griglione";
        fs::create_directories(program);
        fs::create_directories(data);
        WordLists words;
        words[0] = {"ERA"};
        std::ofstream(data / "SLESSICO.1", std::ios::binary) << buildDictionaryFile("test", words);
        fs::permissions(program, fs::perms::owner_write, fs::perm_options::remove);
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString((tree.path() / "xdg").string()));
        const QString before = QDir::currentPath();

        QVERIFY(settleGameFolder(QString::fromStdString(program.string())));
        QCOMPARE(fs::current_path(), player);
        int terminated = 0;
        auto window = std::make_unique<MainWindow>(
            Services{sounds, alerts, outside, clock, random, [] {}, ".", [&] { ++terminated; }});
        window->startUp();
        window->show();
        QCOMPARE(terminated, 0); // the shipped dictionary was found

        window->findChild<QAction*>("MenuSuono")->trigger();
        window->findChild<QAction*>("menuNuovo")->trigger();
        window->findChild<QTimer*>("Timer2")->stop();
        for (int n = 0; n < 5; ++n)
            window->state().immagineCella[n] = dieName("ZEBRA"[n], 1);
        window->changed(Aspect::Board);
        for (int n = 0; n < 5; ++n)
            QTest::mouseClick(
                window->findChild<DieCell*>(qPrintable(QString("Picture1_%1").arg(n))),
                Qt::LeftButton);
        QTimer::singleShot(0, [] {
            QWidget* confirm = QApplication::activeModalWidget();
            QVERIFY(confirm && confirm->objectName() == "Form6");
            confirm->findChild<QRadioButton*>("Option1")->setChecked(true);
            confirm->findChild<QAbstractButton*>("Command1")->click();
        });
        window->findChild<QAbstractButton*>("Command2")->click();
        window->state().puntiGiocatore = 1500;
        QTimer::singleShot(0, [] {
            for (QWidget* shown : QApplication::topLevelWidgets())
                if (shown->objectName() == "Form4" && shown->isVisible()) shown->close();
        });
        window->findChild<QAction*>("MenuFine")->trigger();
        window.reset();

        QDir::setCurrent(before);
        setFileSearchOrder({});
        QVERIFY(fs::exists(player / "ZARMOLO.INI"));
        QCOMPARE(readWholeFile(player / "ZarmPriv.1").value_or(""), std::string("ZEBRA\r\n"));
        QVERIFY(readWholeFile(player / "zarMolo.HIS").value_or("").starts_with("BRIVO, 1500 \r\n"));
        for (const fs::path& shared : {program, data})
            for (const char* name : {"ZARMOLO.INI", "ZarmPriv.1", "zarMolo.HIS"})
                QVERIFY(!fs::exists(shared / name));
        fs::permissions(program, fs::perms::owner_write, fs::perm_options::add);
    }
};

QTEST_MAIN(PlayerFolderTest)
#include "player_folder_test.moc"
