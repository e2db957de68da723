// An installed game: the program's folder cannot be written and the shipped files lie in the data
// folder beside it; what the player changes is kept in the player's own folder.
#include "core/atomic_file.h"
#include "core/file_names.h"
#include "platform/game_folder.h"
#include "tests/support/window_harness.h"

#include <QDir>
#include <QRadioButton>

using namespace griglione;
using namespace griglione::testing;
namespace fs = std::filesystem;

class PlayerFolderTest : public QObject {
    Q_OBJECT

private slots:
    void changesAreKeptInThePlayersFolder() {
        GameHarness game;
        const fs::path tree = game.folder.path(), program = tree / "games",
                       data = tree / "share/games/griglione", player = tree / "xdg/griglione";
        fs::create_directories(program);
        fs::create_directories(data);
        game.folder.write("share/games/griglione/SLESSICO.1",
                          buildDictionaryFile("test", {{{"ERA"}}}));
        fs::permissions(program, fs::perms::owner_write, fs::perm_options::remove);
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString((tree / "xdg").string()));
        const QString before = QDir::currentPath();

        QVERIFY(settleGameFolder(QString::fromStdString(program.string())));
        QCOMPARE(fs::current_path(), player);
        game.start([] {}, ".");
        QCOMPARE(game.terminated, 0); // the shipped dictionary was found

        game.trigger("MenuSuono");
        game.trigger("menuNuovo");
        game.timer("Timer2")->stop();
        game.setBoard("ZEBRA");
        for (int n = 0; n < 5; ++n)
            game.press(n);
        whenShown("Form6", [](QWidget* confirm) {
            child<QRadioButton>(confirm, "Option1")->setChecked(true);
            child<QAbstractButton>(confirm, "Command1")->click();
        });
        game.get<QAbstractButton>("Command2")->click();
        game.window->state().puntiGiocatore = 1500;
        whenShown("Form4", [](QWidget* records) { records->close(); });
        game.trigger("MenuFine");
        game.window.reset();

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
