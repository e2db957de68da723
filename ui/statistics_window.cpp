#include "ui/statistics_window.h"

#include "core/file_names.h"
#include "core/levels.h"
#include "core/number_text.h"
#include "core/system_reason.h"
#include "records/log_summary.h"
#include "ui/alert_boxes.h"
#include "ui/bar_chart.h"
#include "ui/colours.h"
#include "ui/main_window.h"
#include "ui/message_window.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace griglione {
namespace {

// The player's bars blue as the player's score in the main window, the computer's orange: apart in
// hue and in lightness, also when a dark ground lightens both.
const QColor kPlayerBars(0, 80, 200);
const QColor kComputerBars(190, 60, 0);

// What tells that the log changed since it was read: its size and the time of its last write.
std::pair<std::uintmax_t, std::filesystem::file_time_type>
fileStamp(const std::filesystem::path& file) {
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    return {error ? 0 : size, std::filesystem::last_write_time(file, error)};
}

QString options(std::string_view source) {
    return QCoreApplication::translate("Options", source.data());
}

QTableWidget* table(QWidget* parent, const char* name, const QString& accessibleName,
                    const QStringList& columns) {
    auto* t = new QTableWidget(0, static_cast<int>(columns.size()), parent);
    t->setObjectName(name);
    t->setAccessibleName(accessibleName);
    t->setHorizontalHeaderLabels(columns);
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setTabKeyNavigation(false);
    t->verticalHeader()->hide();
    t->verticalHeader()->setDefaultSectionSize(t->fontMetrics().height() + 6);
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    return t;
}

void setRow(QTableWidget* t, int row, const QStringList& cells) {
    for (int c = 0; c < cells.size(); ++c) {
        auto* item = new QTableWidgetItem(cells[c]);
        // Numbers line up on the right, as figures in a table do; words read from the left.
        const bool number = !cells[c].isEmpty() && cells[c].front().isDigit() && c > 0;
        item->setTextAlignment(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
        t->setItem(row, c, item);
    }
}

QString minutes(const std::string& when) {
    return QString::fromStdString(when.substr(0, 16));
}

// A label that names the control after it, giving it its access key.
QLabel* caption(const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

StatisticsWindow::StatisticsWindow(std::filesystem::path logFile, Alerts& alerts, Outside& outside,
                                   Ask ask, QWidget* parent)
    : QDialog(parent), m_file(std::move(logFile)), m_alerts(alerts), m_outside(outside),
      m_ask(std::move(ask)) {
    setObjectName("FormStatistiche");
    setWindowTitle(tr("Il Griglione - Statistiche"));

    m_language = new QComboBox(this);
    m_language->setObjectName("ComboLingua");
    for (const LanguageInfo& language : kLanguages)
        m_language->addItem(options(language.nome), language.numero);
    m_length = new QComboBox(this);
    m_length->setObjectName("ComboTempo");
    for (const MatchLengthInfo& length : kMatchLengths)
        m_length->addItem(options(length.caption).remove('&'), length.seconds);
    auto* choice = new QHBoxLayout;
    choice->addWidget(caption(tr("&Lingua:"), m_language));
    choice->addWidget(m_language);
    choice->addSpacing(12);
    choice->addWidget(caption(tr("&Tempo per partita:"), m_length));
    choice->addWidget(m_length);
    choice->addStretch();

    auto* tabs = new QTabWidget(this);
    tabs->setObjectName("TabStatistiche");
    tabs->setAccessibleName(tr("Statistiche"));
    auto* summary = new QWidget;
    m_figures = new QLabel(summary);
    m_figures->setObjectName("LabelCifre");
    m_figures->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    m_levels = table(summary, "TabellaLivelli", tr("Risultati contro ogni livello"),
                     {tr("Avversario"), tr("Partite"), tr("Vinte"), tr("Pareggi"), tr("Perse")});
    m_levels->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_words = table(summary, "TabellaParole", tr("Le dieci parole più lunghe"),
                    {tr("Parola"), tr("Lettere"), tr("Trovata il")});
    auto* summaryLayout = new QGridLayout(summary);
    summaryLayout->addWidget(m_figures, 0, 0, 1, 2);
    summaryLayout->addWidget(caption(tr("Risultati contro ogni li&vello"), m_levels), 1, 0);
    summaryLayout->addWidget(caption(tr("Le dieci parole più lung&he"), m_words), 1, 1);
    summaryLayout->addWidget(m_levels, 2, 0);
    summaryLayout->addWidget(m_words, 2, 1);
    summaryLayout->setColumnStretch(0, 3);
    summaryLayout->setColumnStretch(1, 2);
    tabs->addTab(summary, tr("&Riepilogo"));

    const QString numbersBelow = tr("I numeri del grafico sono nella tabella qui sotto.");
    auto* scores = new QWidget;
    m_scoresChart = new BarChart(scores);
    m_scoresChart->setObjectName("GraficoPunteggi");
    m_scoresChart->setAccessibleName(tr("Grafico degli ultimi 100 punteggi"));
    m_scoresChart->setAccessibleDescription(numbersBelow);
    m_scores = table(scores, "TabellaPunteggi", tr("Ultimi 100 punteggi"),
                     {tr("Partita"), tr("Data"), tr("Tu"), tr("Computer")});
    auto* scoresLayout = new QVBoxLayout(scores);
    scoresLayout->addWidget(m_scoresChart, 3);
    scoresLayout->addWidget(m_scores, 2);
    tabs->addTab(scores, tr("&Punteggi"));

    auto* lengths = new QWidget;
    m_lengthsChart = new BarChart(lengths);
    m_lengthsChart->setObjectName("GraficoLunghezze");
    m_lengthsChart->setAccessibleName(tr("Grafico delle tue parole per lunghezza"));
    m_lengthsChart->setAccessibleDescription(numbersBelow);
    m_lengths = table(lengths, "TabellaLunghezze", tr("Le tue parole per lunghezza"),
                      {tr("Lettere"), tr("Parole trovate")});
    auto* lengthsLayout = new QVBoxLayout(lengths);
    lengthsLayout->addWidget(m_lengthsChart, 3);
    lengthsLayout->addWidget(m_lengths, 2);
    tabs->addTab(lengths, tr("Parole per lun&ghezza"));

    m_skipped = new QLabel(this);
    m_skipped->setObjectName("LabelSaltate");
    m_skipped->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(this);
    auto* empty = buttons->addButton(tr("&Svuota il registro..."), QDialogButtonBox::ActionRole);
    empty->setObjectName("CommandSvuota");
    auto* folder = buttons->addButton(tr("&Apri la cartella"), QDialogButtonBox::ActionRole);
    folder->setObjectName("CommandCartella");
    folder->setToolTip(tr("Apre la cartella che contiene il registro delle partite %1.")
                           .arg(QString::fromStdString(m_file.filename().string())));
    auto* close = buttons->addButton(tr("&Chiudi"), QDialogButtonBox::RejectRole);
    close->setObjectName("CommandChiudi");
    for (QPushButton* b : {empty, folder, close})
        b->setAutoDefault(false);
    connect(empty, &QPushButton::clicked, this, &StatisticsWindow::askToEmpty);
    connect(folder, &QPushButton::clicked, this, [this] {
        m_outside.apri(std::filesystem::absolute(m_file).lexically_normal().parent_path().string());
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(tabs, 1);
    layout->addWidget(m_skipped);
    layout->addWidget(buttons);
    resize(640, 480);
    centreOnScreen(this);

    for (QComboBox* combo : {m_language, m_length})
        connect(combo, &QComboBox::currentIndexChanged, this, &StatisticsWindow::showChoice);
}

void StatisticsWindow::open(QWidget* mainWindow, const Services& services, const GameState& state) {
    auto* window = mainWindow->findChild<StatisticsWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!window)
        window = new StatisticsWindow(resolveFileName(services.folder, kMatchLogFileName),
                                      services.alerts, services.outside, askOkCancel, mainWindow);
    window->load(state.numDizionario, state.tempoPartita);
    window->show();
    window->raise();
    window->activateWindow();
}

void StatisticsWindow::load(int numDizionario, int tempoPartita) {
    const QSignalBlocker quietLanguage(m_language), quietLength(m_length);
    m_language->setCurrentIndex(std::max(0, m_language->findData(numDizionario)));
    m_length->setCurrentIndex(std::max(0, m_length->findData(tempoPartita)));
    readAgain();
}

void StatisticsWindow::readAgain() {
    m_log = readLog(m_file);
    m_stamp = fileStamp(m_file);
    m_skipped->setText(m_log.skipped == 0
                           ? QString()
                           : tr("Righe del registro illeggibili, saltate: %1").arg(m_log.skipped));
    m_skipped->setVisible(m_log.skipped > 0);
    showChoice();
}

bool StatisticsWindow::event(QEvent* event) {
    // A match that ended while the window stood open shows when the player comes back to it;
    // an unchanged log keeps the tables where the player left them.
    if (event->type() == QEvent::WindowActivate && fileStamp(m_file) != m_stamp) readAgain();
    return QDialog::event(event);
}

void StatisticsWindow::showChoice() {
    const LogSummary s = summarize(m_log.entries, m_language->currentData().toInt(),
                                   m_length->currentData().toInt());
    showSummaryTab(s);
    const QString none = tr("Nessuna partita registrata con questa lingua e questo tempo.");

    QStringList numbers, labels;
    std::vector<double> mine, cpu;
    m_scores->setRowCount(static_cast<int>(s.latest.size()));
    const int firstNumber = s.matches - static_cast<int>(s.latest.size()) + 1;
    for (int i = 0; i < static_cast<int>(s.latest.size()); ++i) {
        const ScorePair& pair = s.latest[static_cast<std::size_t>(i)];
        numbers << QString::number(firstNumber + i);
        // Every tenth match is named under the chart, and the first and the last when no tenth
        // is near them.
        const int number = firstNumber + i;
        const bool last = i + 1 == static_cast<int>(s.latest.size());
        labels << (number % 10 == 0 || (i == 0 && number % 10 < 6) || (last && number % 10 > 4)
                       ? numbers.back()
                       : QString());
        mine.push_back(pair.punti);
        cpu.push_back(pair.puntiCPU);
        setRow(m_scores, i,
               {numbers.back(), minutes(pair.when), QString::number(pair.punti),
                QString::number(pair.puntiCPU)});
    }
    m_scores->scrollToBottom();
    m_scoresChart->setEmptyText(none);
    m_scoresChart->setData(
        labels, {{tr("Tu"), kPlayerBars, mine}, {tr("Computer"), kComputerBars, cpu}}, false);

    QStringList letters;
    std::vector<double> found;
    m_lengths->setRowCount(static_cast<int>(kWordLengths));
    for (std::size_t i = 0; i < kWordLengths; ++i) {
        letters << QString::number(kShortestWord + static_cast<int>(i));
        found.push_back(static_cast<double>(s.wordsPerLength[i]));
        setRow(m_lengths, static_cast<int>(i),
               {letters.back(), QString::number(s.wordsPerLength[i])});
    }
    m_lengthsChart->setEmptyText(none);
    m_lengthsChart->setData(s.matches > 0 ? letters : QStringList(),
                            {{tr("Parole trovate"), kPlayerBars, found}}, true);
}

void StatisticsWindow::showSummaryTab(const LogSummary& s) {
    const QString average =
        s.matches > 0 ? QString::number(roundHalfEven(s.average).value_or(0)) : tr("nessuno");
    m_figures->setText(tr("Partite giocate: %1    Miglior punteggio: %2    Punteggio medio: %3")
                           .arg(s.matches)
                           .arg(s.matches > 0 ? QString::number(s.best) : tr("nessuno"), average));

    LevelResults total;
    int row = 0;
    m_levels->setRowCount(0);
    for (std::size_t level = 0; level < s.perLevel.size(); ++level) {
        const LevelResults& r = s.perLevel[level];
        total.wins += r.wins;
        total.draws += r.draws;
        total.losses += r.losses;
        // The row of matches with no level chosen only when there are some.
        if (level == 4 && r.matches() == 0) continue;
        m_levels->setRowCount(row + 1);
        setRow(m_levels, row++,
               {level < 4 ? options(kLevels[level].name) : tr("Nessun livello scelto"),
                QString::number(r.matches()), QString::number(r.wins), QString::number(r.draws),
                QString::number(r.losses)});
    }
    m_levels->setRowCount(row + 1);
    setRow(m_levels, row,
           {tr("Totale"), QString::number(total.matches()), QString::number(total.wins),
            QString::number(total.draws), QString::number(total.losses)});

    m_words->setRowCount(static_cast<int>(s.longestWords.size()));
    for (int i = 0; i < static_cast<int>(s.longestWords.size()); ++i) {
        const LongWord& w = s.longestWords[static_cast<std::size_t>(i)];
        setRow(m_words, i,
               {QString::fromStdString(w.word).toUpper(), QString::number(w.word.size()),
                minutes(w.when).left(10)});
    }
}

void StatisticsWindow::askToEmpty() {
    if (!m_ask(tr("Svuotare il registro delle partite? Le statistiche di tutte le partite giocate "
                  "andranno perse.")
                   .toStdString()))
        return;
    std::error_code why;
    if (!emptyLog(m_file, &why)) {
        const auto where = std::filesystem::absolute(m_file).lexically_normal();
        m_alerts.avviso(tr("Errore 0007: impossibile svuotare il registro delle partite %1 nella "
                           "posizione: %2 (%3).")
                            .arg(QString::fromStdString(where.filename().string()),
                                 QString::fromStdString(where.parent_path().string()),
                                 QString::fromStdString(systemReason(why)))
                            .toStdString());
    }
    readAgain();
}

} // namespace griglione
