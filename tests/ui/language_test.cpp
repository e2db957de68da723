// The game in each language: no two controls of a window share a key, the menus, windows and the
// logic's messages speak the language, F1 opens the help page in it, and every file is written
// byte for byte as the Italian game writes it.
#include "platform/interface_translation.h"
#include "tests/support/window_harness.h"
#include "ui/dictionary_editor_window.h"
#include "ui/end_of_match_window.h"
#include "ui/review_window.h"
#include "ui/vocabulary_editor_window.h"

#include <QTextEdit>

using namespace griglione;
using namespace griglione::testing;

class LanguageTest : public QObject {
    Q_OBJECT

    // The windows with more than one key. The Italian "&Opzioni" repeats L and P among its items,
    // which Qt moves between, as menus do.
    static QStringList keyClashes(MainWindow* main, bool english) {
        QStringList found = accessKeyClashes(main);
        for (QMenu* menu : main->menuBar()->findChildren<QMenu*>())
            if (english || menu->objectName() != "menuOpzioni") found << accessKeyClashes(menu);
        QTimer one, two;
        FakeSounds sounds;
        MessageHost messages(main);
        EndOfMatchWindow endOfMatch(
            one, two, sounds, messages, [] {}, main);
        ReviewWindow review(main);
        EditorHarness editors;
        VocabularyEditorWindow vocabulary(editors.context(WordLists{{{"ERA"}}}), main);
        DictionaryEditorWindow dictionary(editors.context(WordLists{{{"ERA"}}}), main);
        for (QWidget* w :
             std::initializer_list<QWidget*>{&endOfMatch, &review, &vocabulary, &dictionary})
            found << accessKeyClashes(w);
        return found;
    }

    // One short session: the keys, a word too short, a level chosen, the help page, and leaving
    // with a record. Returns what the player read and the files left behind.
    static std::pair<QStringList, std::string> session(InterfaceLanguage language) {
        if (!useInterfaceLanguage(language, GRIGLIONE_GAME_DIR)) return {{"no translation"}, ""};
        GameHarness game;
        for (const char* page : {"GRIGLIONE.htm", "GRIGLIONE_en.htm"})
            game.folder.write(page, "<html></html>");
        game.start();
        QStringList seen(
            keyClashes(game.window.get(), language == InterfaceLanguage::English).join(", "));
        seen << game.window->windowTitle() << game.get<QAction>("MenuMedio")->text()
             << game.get<QAction>("MenuFine")->text() << game.get<QLabel>("Label7")->text();
        game.trigger("menuNuovo");
        game.timer("Timer2")->stop();
        game.setBoard("ERA");
        game.press(0);
        game.press(1);
        QTest::keyClick(game.window.get(), Qt::Key_Return);
        const MessageWindow* message = game.window->messages().window();
        seen << message->windowTitle() + "|" + child<QTextEdit>(message, "Text1")->toPlainText();
        game.trigger("MenuMedio");
        game.trigger("menuHelp");
        seen << QString::fromStdString(game.outside.opened.back()).section('/', -1);
        game.window->state().puntiGiocatore = 1500;
        whenShown("Form4", [&seen](QWidget* records) {
            seen << child<QListWidget>(records, "List1")->item(0)->text();
            records->close();
        });
        game.trigger("MenuFine");
        return {seen, game.folder.read("ZARMOLO.INI") + "|" + game.folder.read("zarMolo.HIS")};
    }

private slots:
    void cleanup() { useInterfaceLanguage(InterfaceLanguage::Italian, {}); }

    void aSessionInEnglishReadsInEnglishAndWritesTheFilesOfTheItalianGame() {
        const auto [italianSeen, italianFiles] = session(InterfaceLanguage::Italian);
        const auto [seen, files] = session(InterfaceLanguage::English);
        QCOMPARE(italianSeen.at(0), QString());
        QCOMPARE(italianSeen.at(6), QString("GRIGLIONE.htm"));
        QCOMPARE(seen, QStringList({"", "Il Griglione - Italian Dictionary", "&Intermediate (Memo)",
                                    "E&xit", "Score",
                                    "Il Griglione - Word too short!|Watch out: you must enter a "
                                    "word in Italian of at least 3 letters.",
                                    "GRIGLIONE_en.htm", " N. - Player       -  Score"}));
        QVERIFY(files.find("Livello=300\r\n") != std::string::npos);
        QCOMPARE(files, italianFiles);
    }
};

QTEST_MAIN(LanguageTest)
#include "language_test.moc"
