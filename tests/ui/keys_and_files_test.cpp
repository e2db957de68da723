// The keyboard and the name box: no two controls of a window share a key, Alt+O opens its menu at
// the first press, menus do not count as the name box losing the focus, the name keeps the file's
// case rule and length, a settings file that cannot be written is reported and kept, the board's
// frame and the end-of-match window's name fit what they hold, and a message box stands over the
// window that raised it. Then the links of the "&?" menu and of the information window, an
// installed game whose changes are kept in the player's own folder, and the pictures and sounds of
// data/ that the game names.
#include "board/dealer.h"
#include "core/addresses.h"
#include "core/file_names.h"
#include "platform/game_folder.h"
#include "platform/outside_opener.h"
#include "tests/support/window_harness.h"
#include "ui/alert_boxes.h"
#include "ui/end_of_match_window.h"

#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>

using namespace griglione;
using namespace griglione::testing;
namespace fs = std::filesystem;

class KeysAndFilesTest : public QObject {
    Q_OBJECT
    std::unique_ptr<GameHarness> game;
    const fs::path data{GRIGLIONE_DATA_DIR};

    // For the keyboard: the main window active and the name box focused.
    void openForKeys(const std::string& settings = "") {
        if (!settings.empty()) game->folder.write("ZARMOLO.INI", settings);
        game->start();
        QApplication::setActiveWindow(game->window.get());
        name()->setFocus();
    }
    QLineEdit* name() { return game->get<QLineEdit>("Text1"); }
    // Types any character, as an input method would; QTest only types plain ASCII.
    void type(const QString& text) {
        for (const QChar c : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(name(), &press);
        }
    }
    void focusTheBoard() { game->get("Picture1_0")->setFocus(); }
    bool savedName(const std::string& name) {
        return game->folder.read("ZARMOLO.INI").find("Giocatore1=" + name + "\r\n") !=
               std::string::npos;
    }
    // Keys reach the menu's shortcuts only while the main window is the active one.
    void press(const QString& keys) {
        game->window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(game->window.get()));
        QTest::keySequence(game->window.get(), QKeySequence(keys));
    }
    static QWidgetList informationWindows() {
        QWidgetList found = QApplication::topLevelWidgets();
        found.removeIf([](QWidget* w) { return w->objectName() != "Form3"; });
        return found;
    }

private slots:
    void init() { game = std::make_unique<GameHarness>(); }
    void cleanup() { game.reset(); }

    void noTwoControlsShareAKeyAltOOpensItsMenuAndTheFrameHugsTheDice() {
        openForKeys();
        QWidget* main = game->window.get();
        QCOMPARE(accessKeyClashes(main), QStringList());
        // "&Opzioni" repeats L and P among its items; Qt moves between them, as menus do.
        for (QMenu* menu : game->window->menuBar()->findChildren<QMenu*>())
            if (menu->objectName() != "menuOpzioni")
                QVERIFY2(accessKeyClashes(menu).isEmpty(), qPrintable(menu->objectName()));
        QTimer one, two;
        MessageHost messages(main);
        EndOfMatchWindow endOfMatch(
            one, two, game->sounds, messages, [] {}, main);
        MessageWindow message({"INFO!", "Prova", "Testo"}, main);
        ConfirmWindow confirm("ZEBRA", "Italiano", "", main);
        for (QWidget* w : std::initializer_list<QWidget*>{&endOfMatch, &message, &confirm})
            QCOMPARE(accessKeyClashes(w), QStringList());
        // Alt+O opens its menu at the first press.
        focusTheBoard();
        QTest::keyClick(game->window.get(), Qt::Key_O, Qt::AltModifier);
        auto* options = game->window->menuBar()->findChild<QMenu*>("menuOpzioni");
        QTRY_VERIFY(options->isVisible());
        options->close();
    }

    // A name read is kept whole, a typed one is held to twelve characters of the file's own
    // set but the comma, and upper-cased; it is saved when another control, not a menu, takes the
    // focus.
    void theNameBoxKeepsTheFilesRulesAndSavesOnLeaving() {
        const std::string settings = "Giocatore1= giocatorelungo \r\n";
        openForKeys(settings);
        QCOMPARE(name()->text(), QString(" GIOCATORELUNGO "));
        QTest::keyClick(name(), Qt::Key_End);
        type("x");
        QTest::keyClick(name(), Qt::Key_Backspace);
        game->window->menuBar()->setFocus(Qt::MenuBarFocusReason); // a menu opened by keyboard
        name()->setFocus();
        QCOMPARE(game->folder.read("ZARMOLO.INI"), settings);
        focusTheBoard();
        QVERIFY(savedName(" GIOCATORELUNGO"));
        name()->clear();
        type("abcdefghijklmn");
        QCOMPARE(name()->text(), QString("abcdefghijkl"));
        name()->clear();
        type(QString::fromUtf8("aßµ,éΩ€")); // a comma would split the name in the records
        QCOMPARE(name()->text(), QString::fromUtf8("aßµé€"));
        name()->setFocus();
        focusTheBoard();
        QCOMPARE(name()->text(), QString::fromUtf8("AßµÉ€"));
        QVERIFY(savedName("A\xDF\xB5\xC9\x80"));
    }

    // Read-only, a full disk, a folder in its place: the choice still applies to the game.
    void aSettingsFileThatCannotBeWrittenIsReportedAndKept() {
        const std::string old = "Livello=100\r\nGiocatore1=ANNA\r\n";
        for (const int damage : {0, 1, 2}) {
            init();
            openForKeys(old);
            const auto file = game->folder.path() / "ZARMOLO.INI";
            if (damage == 0) fs::permissions(file, fs::perms::owner_read);
            if (damage == 2) fs::remove(file), fs::create_directory(file);
            {
                std::optional<WriteLimit> full;
                if (damage == 1) full.emplace(20);
                game->trigger("MenuMedio");
            }
            fs::permissions(file, fs::perms::owner_all);
            QVERIFY(damage == 2 ? fs::is_directory(file) : game->folder.read("ZARMOLO.INI") == old);
            QCOMPARE(texts(game->alerts.shown),
                     QStringList("Errore 001: impossibile riscivere il file di inizializzazione "
                                 "ZARMOLO.INI"));
            QCOMPARE(game->timer("Timer2")->interval(), 300);
            QVERIFY(game->get<QAction>("MenuMedio")->isChecked());
        }
    }

    void theBoardFrameHugsTheDiceAndItsShadowShowsBelowRight() {
        openForKeys();
        QRect dice;
        for (int n = 0; n < kCells; ++n)
            dice |= game->get(qPrintable(QString("Picture1_%1").arg(n)))->geometry();
        const QRect frame = game->get("Shape1_0")->geometry();
        const QRect shadow = game->get("Shape1_1")->geometry();
        QCOMPARE(frame.adjusted(1, 1, -1, -1), dice);
        QCOMPARE(shadow.size(), frame.size());
        QVERIFY(shadow.left() > frame.left() && shadow.bottom() > frame.bottom());
    }

    void theEndOfMatchWindowShowsItsPictureAndAWideNameWhole() {
        QTimer one, two;
        MessageHost messages(nullptr);
        FakeSounds sounds;
        EndOfMatchWindow endOfMatch(
            one, two, sounds, messages, [] {}, nullptr);
        const QString wide(12, 'W');
        QTimer::singleShot(0, &endOfMatch, [&] {
            auto* label = child<QLabel>(&endOfMatch, "Label3_0");
            QVERIFY(label->fontMetrics().horizontalAdvance(wide) <= label->width());
            child<QLabel>(&endOfMatch, "Picture3");
            child<QAbstractButton>(&endOfMatch, "Command1")->click();
        });
        endOfMatch.showResult(wide, 0, 0, {});
    }

    // A box stands over the window that raised it (an editor, not the board), its title whole.
    void aMessageBoxCentresOnTheWindowThatRaisedIt() {
        QWidget main;
        QDialog editor(&main);
        editor.setGeometry(500, 300, 300, 200);
        QRect box;
        QTimer::singleShot(0, &editor, [&] {
            QTimer::singleShot(20, [&] { box = QApplication::activeModalWidget()->geometry(); });
            QTimer::singleShot(30, [] { QApplication::activeModalWidget()->close(); });
            AlertBoxes(&main).avviso("No");
            editor.accept();
        });
        editor.exec();
        QVERIFY((box.center() - editor.geometry().center()).manhattanLength() < 4);
        QVERIFY(box.width() > editor.fontMetrics().horizontalAdvance(kProgramTitle) + 100);
    }

    // Each row: what lies beside the game as GRIGLIONE.htm (a file, a folder or nothing), the
    // keys pressed or the control clicked (of Form3 when so named), and the target opened.
    void keysAndLinksOpenTheirTargetsAndF4RecreatesTheInformation() {
        const QString missing = "Non trovato file di documentazione/help GRIGLIONE.htm";
        const QString mail = QString("mailto:") + kEmailAutore, site = kSitoWeb;
        const QString rows[][3] = {{"file", "F1", "help"},      {"", "F1", ""},
                                   {"folder", "F1", ""},        {"", "Ctrl+F8", mail},
                                   {"", "Ctrl+F9", site},       {"", "Label12", site},
                                   {"", "Form3/Label6", site},  {"", "Form3/Label3", mail},
                                   {"", "Form3/Picture2", mail}};
        for (const auto& [beside, input, target] : rows) {
            init();
            game->start();
            const fs::path help = game->folder.path() / "GRIGLIONE.htm";
            if (beside == "file") game->folder.write("GRIGLIONE.htm", "");
            if (beside == "folder") fs::create_directory(help);
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
        // With the information window open, a message shown and F4 again: a new one replaces
        // it and the message closes.
        game->window->messages().mostraMessaggio({"INFO!", "Prova", "testo"}, false);
        press("F4");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(informationWindows().size(), 1);
        QVERIFY(QTest::qWaitForWindowActive(informationWindows().first()));
        QTRY_VERIFY(!game->window->messages().window());
    }

    // A records address arrives already encoded: the desktop gets its bytes as they are. The
    // site links follow the service named by the environment.
    void recordAddressesAreNotEncodedAgainAndTheSiteFollowsTheService() {
        const QByteArray address = "http://127.0.0.1:8089/records/griglione.asp?Nome=A%23B%20%26"
                                   "%C8&Note=x%25_%2B&E_MAIL=a%40b.it&ora=07:09";
        QCOMPARE(OutsideOpener::urlOf(address.toStdString()).toEncoded(), address);
        qputenv("GRIGLIONE_RECORDS_URL", "http://127.0.0.1:9");
        game->start();
        press("Ctrl+F9");
        qunsetenv("GRIGLIONE_RECORDS_URL");
        QCOMPARE(texts(game->outside.opened), QStringList("http://127.0.0.1:9/"));
    }

    // It moves the working folder and the file search order, and puts them back at its end.
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
    // Every die the pools can deal, with four faces of one size, every sound effect, and the help
    // page with every picture it shows.
    void theDataFilesTheGameNamesAreThere() {
        const QImage blank(QString::fromStdString((data / std::string(kBlankDie)).string()));
        QVERIFY(!blank.isNull());
        for (int language : {1, 2, 3})
            for (std::string_view pool :
                 {letterPools(language).vocali, letterPools(language).consonanti})
                for (char letter : pool)
                    for (int face = 1; face <= 4; ++face) {
                        const auto file = data / dieName(letter, face);
                        const QImage die(QString::fromStdString(file.string()));
                        QVERIFY2(!die.isNull(), file.c_str());
                        QCOMPARE(die.size(), blank.size());
                    }
        for (const char* name :
             {"COLLAPSE.WAV", "collapse.wav", "SND0002.wav", "SND0230.wav", "DOOLANE.WAV",
              "SHOOT1.WAV", "ROCHAN3.WAV", "perdi.wav", "vinci.wav", "explode2.wav", "SND0012.WAV"})
            QVERIFY2(fs::is_regular_file(resolveFileName(data, name)), name);
        const auto image = [&](const QString& name) {
            return QImage(QString::fromStdString((data / name.toStdString()).string()));
        };
        for (const char* name : {"griglione.gif", "manina.gif"}) // the logo and the hand pointer
            QVERIFY2(!image(name).isNull(), name);
        // Each page's pictures, and the twice-as-large one a sharp screen takes instead.
        const QRegularExpression tag("<img\\s[^>]*>"), src("\\ssrc=\"([^\"]+)\"");
        const QRegularExpression srcset("\\ssrcset=\"([^\"]*)\""), sharp("^[^ ]+ 2x$");
        for (const char* pageName : {"GRIGLIONE.htm", "GRIGLIONE_en.htm"}) {
            QFile page(QString::fromStdString((data / pageName).string()));
            QVERIFY2(page.open(QIODevice::ReadOnly), pageName);
            const QString html = QString::fromUtf8(page.readAll());
            QVERIFY(tag.globalMatch(html).hasNext());
            for (auto tags = tag.globalMatch(html); tags.hasNext();) {
                const QString img = tags.next().captured(0);
                const QImage plain = image(src.match(img).captured(1));
                QVERIFY2(!plain.isNull(), qPrintable(img));
                const auto set = srcset.match(img);
                if (!set.hasMatch()) continue;
                // Only "NAME 2x": twice the pixels of the picture it stands for.
                QVERIFY2(sharp.match(set.captured(1)).hasMatch(), qPrintable(img));
                QVERIFY2(image(set.captured(1).chopped(3)).size() == plain.size() * 2,
                         qPrintable(img));
            }
        }
    }
};

QTEST_MAIN(KeysAndFilesTest)
#include "keys_and_files_test.moc"
