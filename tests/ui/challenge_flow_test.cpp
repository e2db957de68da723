// Shared boards through the real windows: a code with a slip is refused and starts nothing, a
// code deals exactly its board in its language, the board of the day runs 120 seconds without
// touching the settings file, and the review sends only the words of the main dictionary.
#include "board/day_board.h"
#include "records/challenge_words.h"
#include "tests/support/window_harness.h"
#include "ui/board_code_dialog.h"

#include <QClipboard>
#include <QDate>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopeGuard>
#include <QTextEdit>

#include <cstdlib>

using namespace griglione;
using namespace griglione::testing;

namespace {

std::array<std::string, kCells> diceOf(const SharedBoard& board) {
    GameState state;
    placeBoard(state, board);
    return state.immagineCella;
}

// A board with CASA and ERA (and ASA, ACA) to type: A C A S A over R E R E R.
SharedBoard wordBoard() {
    SharedBoard board;
    const std::string letters = "ACASARERER";
    for (int n = 0; n < kCells; ++n) {
        board.letters[n] = n < 10 ? letters[n] : n % 2 == 0 ? 'U' : 'B';
        board.faces[n] = n % 4 + 1;
    }
    return board;
}

CivilDate today() {
    const QDate d = QDate::currentDate();
    return {d.year(), d.month(), d.day()};
}

} // namespace

class ChallengeTest : public QObject {
    Q_OBJECT
    std::unique_ptr<GameHarness> game;
    QTimer answerer; // closes every announcement, noting it
    QStringList announced;
    bool clockRanInDialog = false;

    GameState& state() { return game->window->state(); }
    void click(QWidget* window, const char* button) {
        child<QAbstractButton>(window, button)->click();
    }
    // Types `word` on the board as the player would, then Enter.
    void play(const char* word) {
        QTest::keyClicks(game->get("Picture1_0"), word);
        QTest::keyClick(game->get("Picture1_0"), Qt::Key_Return);
    }
    // Enters `text` in the play-a-board dialog and presses "Gioca".
    void playCode(const QString& text) {
        whenShown("FormTabellone", [=, this](QWidget* w) {
            clockRanInDialog |= game->timer("Timer1")->isActive();
            child<QLineEdit>(w, "TextCodice")->setText(text);
            click(w, "CommandGioca");
        });
        game->trigger("MenuTabellone");
    }

private slots:
    void init() {
        game = std::make_unique<GameHarness>();
        game->folder.write("SLESSICO.1", buildDictionaryFile("test", {{{"ERA"}, {"CASA"}}}));
        game->folder.write("SLESSICO.2", buildDictionaryFile("test", {{{"CAT"}}}));
        game->folder.write("ZarmPriv.1", "ASA\r\n");
        announced.clear();
        clockRanInDialog = false;
        answerer.setInterval(5);
        connect(&answerer, &QTimer::timeout, this, [this] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (w->objectName() == "Form8" && w->isVisible() && w->isModal()) {
                    announced << child<QTextEdit>(w, "Text1")->toPlainText();
                    click(w, "Command3d1");
                }
        });
        answerer.start();
        game->start([] { QCoreApplication::processEvents(); });
    }
    void cleanup() {
        answerer.stop();
        answerer.disconnect();
        game.reset();
    }

    void mistakesAreNamedAndStartNothing() {
        const std::string good = "10PE748HG9S998BE9K9G5QSZK2PW";
        QString pastTheLast; // well formed and checked, but past the last Italian board
        for (const char c : kCodeSymbols)
            if (decodeBoard("1ZZZZZZZZZZZZZZZZZZZZZZZZZZ" + std::string(1, c)).error ==
                CodeError::Board)
                pastTheLast = QString("1ZZZZZZZZZZZZZZZZZZZZZZZZZZ") + c;
        const std::vector<std::pair<QString, CodeError>> cases = {
            {"   ", CodeError::Empty},
            {"griglione:", CodeError::Empty},
            {"10PE748HG9S998BE9K9G5QSZK2P!", CodeError::Symbol},
            {"10PE748HG9S998BE9K9G5QSZK2P", CodeError::Length},
            {"40PE748HG9S998BE9K9G5QSZK2PW", CodeError::Language},
            {"10PE748HG9S998BE9K9G5QSZK3PW", CodeError::Check},           // one symbol slipped
            {"griglione:10PE748HG9S989BE9K9G5QSZK2PW", CodeError::Check}, // two swapped
            {pastTheLast, CodeError::Board},
        };
        QStringList shown, expected;
        bool stayedOpen = true;
        whenShown("FormTabellone", [&](QWidget* w) {
            auto* error = child<QLabel>(w, "LabelErrore");
            for (const auto& [text, kind] : cases) {
                child<QLineEdit>(w, "TextCodice")->setText(text);
                click(w, "CommandGioca");
                shown << (error->isVisible() ? error->text() : QString());
                expected << BoardCodeDialog::errorText(kind);
                stayedOpen &= w->isVisible();
            }
            click(w, "CommandAnnulla");
        });
        game->trigger("MenuTabellone");
        QCOMPARE(shown, expected);
        QVERIFY(stayedOpen);
        QVERIFY(!game->timer("Timer1")->isActive() && !game->timer("Timer2")->isActive());
        QVERIFY(tavolaVuota(state()));
        QVERIFY(announced.isEmpty());
        QVERIFY(!pastTheLast.isEmpty() && encodeBoard(*decodeBoard(good).board) == good);
    }

    void aCodeDealsItsBoardInItsLanguageWithThePlayersLengthAndLevel() {
        game->trigger("MenuExpert");
        game->trigger("menu30s"); // 60 seconds: announces and starts an Italian match
        const SharedBoard english = dayBoard({2026, 11, 24}, 2);
        const std::string code = encodeBoard(english);
        // A link of the service, pasted with the case and hyphens a player might leave.
        playCode(QString("https://griglione.example.org/sfide/%1-%2?da=mail")
                     .arg(QString::fromStdString(code.substr(0, 10)).toLower(),
                          QString::fromStdString(code.substr(10))));
        QVERIFY(!clockRanInDialog); // the Italian match waited while the link was pasted
        QCOMPARE(state().immagineCella, diceOf(english));
        QCOMPARE(state().codiceTabellone, code);
        QCOMPARE(state().numDizionario, 2);
        QVERIFY(game->checkedItems().contains("Menuing"));
        QVERIFY(game->folder.read("ZARMOLO.INI").ends_with("Dizionario= 2 \r\n"));
        QCOMPARE(announced.size(), 2);
        QVERIFY(announced.last().startsWith("Si inizia una nuova partita di 60 secondi.\nIl "
                                            "dizionario usato è : English\n"));
        QVERIFY(game->timer("Timer1")->isActive() && game->timer("Timer2")->isActive());
        QCOMPARE(game->timer("Timer2")->interval(), 100);
        // A die turned in play changes the board shown, never the code of the match.
        game->press(0, Qt::RightButton);
        QVERIFY(state().immagineCella != diceOf(english));
        QCOMPARE(state().codiceTabellone, code);
    }

    void theDaysBoardRunsTwoMinutesAndLeavesTheSettingsAsTheyWere() {
        game->trigger("menu30s");
        const std::string settings = game->folder.read("ZARMOLO.INI");
        QVERIFY(settings.find("Tempo=30\r\n") != std::string::npos);
        game->trigger("MenuGiorno");
        const SharedBoard day = dayBoard(today(), 1);
        QCOMPARE(state().immagineCella, diceOf(day));
        QVERIFY(announced.last().startsWith("Si inizia una nuova partita di 120 secondi."));
        // Saving any setting during the match keeps the player's own length, and so does a
        // second start of the day's board.
        game->trigger("MenuSuono");
        game->trigger("MenuSuono");
        game->trigger("MenuGiorno");
        QCOMPARE(game->folder.read("ZARMOLO.INI"), settings);
        QCOMPARE(state().tempoPartita, 120);

        game->timer("Timer2")->stop();
        game->timer("Timer1")->setInterval(1);
        int endedOn = 0;
        whenShown("Form2", [&](QWidget* w) {
            endedOn = state().secondiTrascorsi;
            game->timer("Timer1")->setInterval(60'000);
            click(w, "Command1");
        });
        QTRY_VERIFY_WITH_TIMEOUT(endedOn != 0, 10000);
        QCOMPARE(endedOn, 121);
        QCOMPARE(state().tempoPartita, 60);
        QVERIFY(!state().tabelloneCondiviso);
        QVERIFY(state().immagineCella != diceOf(day));
        QCOMPARE(game->folder.read("ZARMOLO.INI"), settings);
    }

    void theReviewSendsOnlyTheMainDictionarysWords() {
        qputenv("GRIGLIONE_RECORDS_URL", "http://127.0.0.1:1/");
        const auto unset = qScopeGuard([] { qunsetenv("GRIGLIONE_RECORDS_URL"); });
        game->trigger("menu30s");
        const std::string code = encodeBoard(wordBoard());
        playCode(QString::fromStdString(code));
        game->timer("Timer2")->stop(); // the opponent takes no word of these
        QCOMPARE(state().immagineCella, diceOf(wordBoard()));
        play("casa"); // main dictionary
        play("asa");  // personal vocabulary
        whenShown("Form6", [&](QWidget* w) {
            child<QRadioButton>(w, "Option1")->setChecked(true);
            click(w, "Command1");
        });
        play("aca"); // unknown, accepted with points
        play("era"); // main dictionary
        QCOMPARE(texts(state().paroleGiocatore), QStringList({"casa", "asa", "aca", "era"}));

        QString status, clipboard;
        bool panelShown = false;
        game->timer("Timer1")->setInterval(1);
        whenShown("Form2", [&](QWidget* w) {
            game->timer("Timer1")->setInterval(60'000);
            whenShown("Form10", [&](QWidget* review) {
                panelShown = child(review, "challenge")->isVisible();
                click(review, "CommandCodice");
                clipboard = QGuiApplication::clipboard()->text();
                click(review, "CommandLink");
                clipboard += " " + QGuiApplication::clipboard()->text();
                click(review, "CommandInvia");
                status = child<QLabel>(review, "LabelStato")->text();
                click(review, "Command2");
            });
            click(w, "Command3");
            click(w, "Command1");
        });
        QTRY_VERIFY_WITH_TIMEOUT(!status.isEmpty(), 10000);
        QVERIFY(panelShown);
        const QString q = QString::fromStdString(code);
        QCOMPARE(clipboard, q + " http://127.0.0.1:1/sfide/" + q);
        QCOMPARE(game->outside.opened,
                 std::vector<std::string>{"http://127.0.0.1:1/sfide/invia?codice=" + code +
                                          "&nome=BRIVO&tempo=60&parole=0CASA0ERA"});
        QVERIFY(game->alerts.shown.empty());
    }
};

QTEST_MAIN(ChallengeTest)
#include "challenge_flow_test.moc"
