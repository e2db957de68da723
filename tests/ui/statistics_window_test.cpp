// The match log and its window in the running game: a match that runs out of time is on the disk
// before its result shows, an abandoned one never is, a log that cannot be written is reported
// once; the window sums up the chosen language and length, reads the log again at every opening,
// empties it only when confirmed, and draws its charts in colours readable on light and dark.
#include "core/contrast.h"
#include "platform/interface_translation.h"
#include "records/match_log.h"
#include "tests/support/window_harness.h"
#include "ui/bar_chart.h"
#include "ui/statistics_window.h"

#include <QAccessible>
#include <QComboBox>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTableWidget>

using namespace griglione;
using namespace griglione::testing;

namespace {

QStringList row(const QTableWidget* table, int r) {
    QStringList cells;
    for (int c = 0; c < table->columnCount(); ++c)
        cells << table->item(r, c)->text();
    return cells;
}

MatchEntry logged(int language, int seconds, int level, std::int32_t punti, std::int32_t cpu,
                  std::string word) {
    MatchEntry e;
    e.when = "2026-03-0" + std::to_string(language) + " 10:1" + std::to_string(level + 1) + ":00";
    e.numDizionario = language;
    e.tempoPartita = seconds;
    e.level = level;
    e.punti = punti;
    e.puntiCPU = cpu;
    e.parole = 1;
    e.parolaPiuLunga = word;
    e.perLunghezza[word.size() - kShortestWord] = 1;
    return e;
}

} // namespace

class StatisticsWindowTest : public QObject {
    Q_OBJECT
    std::unique_ptr<GameHarness> game;

    GameState& state() { return game->window->state(); }
    std::string log() { return game->folder.read(std::string(kMatchLogFileName)); }

    // Plays one match to its end in a millisecond; notes the log as it is while the result
    // shows, then goes on.
    void runOut(QStringList& seen) {
        game->trigger("menuNuovo");
        game->timer("Timer2")->setInterval(60'000);
        state().paroleGiocatore = {"era", "tavolo", "casa", "sabbia"};
        state().paroleCPU = {"ora"};
        state().puntiGiocatore = 1000;
        state().puntiCPU = 1500;
        state().tempoPartita = 1;
        const auto before = seen.size();
        whenShown("Form2", [&](QWidget* w) {
            game->timer("Timer1")->setInterval(60'000);
            seen << QString::fromStdString(log());
            child<QAbstractButton>(w, "Command1")->click();
        });
        game->timer("Timer1")->setInterval(1);
        QTRY_COMPARE(seen.size(), before + 1);
    }

private slots:
    void init() { game = std::make_unique<GameHarness>(); }
    void cleanup() { game.reset(); }

    void aMatchRunOutIsLoggedBeforeItsResultAndAFailureIsToldOnce() {
        game->folder.write("ZARMOLO.INI", "Livello=300\r\nDizionario= 2 \r\n");
        game->folder.write("SLESSICO.2", buildDictionaryFile("test", WordLists{{{"ERA"}}}));
        game->start();
        QStringList seen;
        runOut(seen);
        const QStringList lines = seen[0].split("\r\n");
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0] + "\r\n", QString::fromUtf8(kMatchLogHeader));
        QVERIFY(QRegularExpression(
                    "^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\ten\t1\tMemo\t[0-9A-Z]{30}\t1000\t1500\t4\t1\t"
                    "tavolo\t1\t1\t0\t2\t0\t0\t0\t0$")
                    .match(lines[1])
                    .hasMatch());

        // F2 during a match abandons it: nothing is logged.
        game->trigger("menuNuovo");
        game->trigger("menuNuovo");
        QCOMPARE(QString::fromStdString(log()), seen[0]);

        // A folder in the log's place: told once, and the matches go on.
        std::filesystem::remove(game->folder.path() / std::string(kMatchLogFileName));
        std::filesystem::create_directory(game->folder.path() / std::string(kMatchLogFileName));
        runOut(seen);
        runOut(seen);
        QCOMPARE(game->alerts.shown.size(), 1u);
        QVERIFY(game->alerts.shown[0].starts_with(
            "Errore 0006: impossibile scrivere il registro delle partite zarMolo.tsv nella "
            "posizione: "));
    }

    void theWindowSumsUpTheChosenLanguageAndLengthAndReadsTheLogAgain() {
        std::string bytes(kMatchLogHeader);
        for (const MatchEntry& e :
             {logged(1, 90, 2, 900, 300, "tavolo"), logged(1, 90, 2, 200, 200, "casa"),
              logged(1, 90, -1, 100, 400, "abete"), logged(2, 90, 0, 5000, 0, "catamarano"),
              logged(1, 60, 0, 5000, 0, "catamarano")})
            bytes += logLine(e);
        game->folder.write(std::string(kMatchLogFileName), bytes + "2026-03-01\tdanneggiata\r\n");
        game->folder.write("ZARMOLO.INI", "Tempo=60\r\n");
        game->start();
        game->trigger("MenuStatistiche");
        auto* window = game->window->findChild<StatisticsWindow*>();
        QVERIFY(window && window->isVisible());
        QCOMPARE(child<QComboBox>(window, "ComboTempo")->currentData().toInt(), 90);
        QCOMPARE(child<QLabel>(window, "LabelCifre")->text(),
                 "Partite giocate: 3    Miglior punteggio: 900    Punteggio medio: 400");
        QCOMPARE(child<QLabel>(window, "LabelSaltate")->text(),
                 "Righe del registro illeggibili, saltate: 1");
        auto* levels = child<QTableWidget>(window, "TabellaLivelli");
        QCOMPARE(levels->rowCount(), 6);
        QCOMPARE(row(levels, 2), QStringList({"Medio (Memo)", "2", "1", "1", "0"}));
        QCOMPARE(row(levels, 4), QStringList({"Nessun livello scelto", "1", "0", "0", "1"}));
        QCOMPARE(row(levels, 5), QStringList({"Totale", "3", "1", "1", "1"}));
        auto* words = child<QTableWidget>(window, "TabellaParole");
        QCOMPARE(words->rowCount(), 3);
        QCOMPARE(row(words, 0), QStringList({"TAVOLO", "6", "2026-03-01"}));
        auto* scores = child<QTableWidget>(window, "TabellaPunteggi");
        QCOMPARE(scores->rowCount(), 3);
        QCOMPARE(row(scores, 2), QStringList({"3", "2026-03-01 10:10", "100", "400"}));
        QCOMPARE(row(child<QTableWidget>(window, "TabellaLunghezze"), 2), QStringList({"5", "1"}));

        // Another language: its own figures; one with no match says so.
        child<QComboBox>(window, "ComboLingua")->setCurrentIndex(1);
        QCOMPARE(row(child<QTableWidget>(window, "TabellaParole"), 0).first(), "CATAMARANO");
        child<QComboBox>(window, "ComboLingua")->setCurrentIndex(2);
        QCOMPARE(scores->rowCount(), 0);
        QCOMPARE(row(levels, 4), QStringList({"Totale", "0", "0", "0", "0"}));

        // A match ended while the window stood open shows when the player comes back to it,
        // and the menu brings the same window forward.
        QVERIFY(appendMatch(game->folder.path() / std::string(kMatchLogFileName),
                            logged(1, 90, 3, 2000, 0, "tavolozza")));
        QEvent activate(QEvent::WindowActivate);
        QApplication::sendEvent(window, &activate);
        QCOMPARE(scores->rowCount(), 0); // Latin, as chosen
        child<QComboBox>(window, "ComboLingua")->setCurrentIndex(0);
        QCOMPARE(scores->rowCount(), 4);
        QCOMPARE(row(words, 0).first(), "TAVOLOZZA");
        game->trigger("MenuStatistiche");
        QCOMPARE(game->window->findChildren<StatisticsWindow*>().size(), 1);
    }

    // Emptied only after a yes; the folder opened is the log's own.
    void emptiesTheLogWhenConfirmedAndOpensItsFolder() {
        TempFolder folder;
        const auto file = folder.path() / "log.tsv";
        QVERIFY(appendMatch(file, logged(1, 120, 0, 100, 0, "era")));
        const std::string before = folder.read("log.tsv");
        FakeAlerts alerts;
        FakeOutside outside;
        std::vector<bool> answers = {false, true};
        StatisticsWindow window(
            file, alerts, outside,
            [&](const std::string&) {
                const bool answer = answers.front();
                answers.erase(answers.begin());
                return answer;
            },
            nullptr);
        window.load(1, 120);
        auto* empty = child<QAbstractButton>(&window, "CommandSvuota");
        empty->click();
        QCOMPARE(folder.read("log.tsv"), before);
        empty->click();
        QCOMPARE(folder.read("log.tsv"), kMatchLogHeader);
        QCOMPARE(child<QTableWidget>(&window, "TabellaPunteggi")->rowCount(), 0);
        QVERIFY(alerts.shown.empty());
        child<QAbstractButton>(&window, "CommandCartella")->click();
        QCOMPARE(outside.opened, std::vector<std::string>{folder.path().string()});
    }

    // The bars are drawn, on a light and on a dark ground, in colours that stand out from it.
    void theChartsReadOnLightAndDark() {
        const QColor darkWindow(53, 53, 53), darkText(238, 238, 236), darkBase(45, 45, 45);
        const QPalette dark(darkText, darkWindow, darkWindow.lighter(), darkWindow.darker(),
                            darkWindow, darkText, Qt::white, darkBase, darkWindow);
        for (const QPalette& palette : {QStyleFactory::create("Fusion")->standardPalette(), dark}) {
            QApplication::setPalette(palette);
            BarChart chart;
            chart.resize(400, 200);
            chart.setData(
                {"1", "2"},
                {{"Tu", QColor(0, 0, 128), {10, 20}}, {"Computer", QColor(128, 0, 0), {20, 10}}},
                false);
            const QImage image = chart.grab().toImage();
            const QColor ground = palette.color(QPalette::Base);
            for (std::size_t i = 0; i < 2; ++i) {
                const QColor bar = chart.shownColour(i);
                int pixels = 0;
                for (int y = 0; y < image.height(); ++y)
                    for (int x = 0; x < image.width(); ++x)
                        pixels += image.pixelColor(x, y) == bar;
                QVERIFY2(pixels > 500, qPrintable(bar.name()));
                QVERIFY(contrastRatio({bar.red(), bar.green(), bar.blue()},
                                      {ground.red(), ground.green(), ground.blue()}) >=
                        kReadableContrast);
            }
        }
    }

    // Each control has a key of its own, in either language, and a name a screen reader speaks.
    void everyControlHasItsOwnKeyAndAName() {
        for (const InterfaceLanguage language :
             {InterfaceLanguage::English, InterfaceLanguage::Italian}) {
            QVERIFY(useInterfaceLanguage(language, GRIGLIONE_GAME_DIR));
            FakeAlerts alerts;
            FakeOutside outside;
            StatisticsWindow window("log.tsv", alerts, outside, {}, nullptr);
            window.load(1, 120);
            QCOMPARE(accessKeyClashes(&window), QStringList());
            QStringList nameless;
            for (QWidget* w : window.findChildren<QWidget*>())
                if (w->focusPolicy() != Qt::NoFocus || qobject_cast<BarChart*>(w))
                    if (QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name).isEmpty())
                        nameless << w->metaObject()->className() + QString(" ") + w->objectName();
            QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(", ")));
        }
    }
};

QTEST_MAIN(StatisticsWindowTest)
#include "statistics_window_test.moc"
