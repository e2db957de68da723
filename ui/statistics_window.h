// The statistics window ("Statistiche"): the match log summed up for one language and match
// length, in figures, tables and two charts, with a way to empty the log and to open its folder.
#pragma once

#include "core/game_state.h"
#include "core/ports.h"
#include "records/match_log.h"

#include <QDialog>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

class QComboBox;
class QLabel;
class QTableWidget;

namespace griglione {

class BarChart;
struct LogSummary;
struct Services;

class StatisticsWindow final : public QDialog {
    Q_OBJECT
public:
    using Ask = std::function<bool(const std::string&)>;

    StatisticsWindow(std::filesystem::path logFile, Alerts& alerts, Outside& outside, Ask ask,
                     QWidget* parent);

    // Reads the log again and shows it for this language and match length.
    void load(int numDizionario, int tempoPartita);

    // The menu's way in: one window per main window, read afresh and brought forward at every
    // opening, not modal, so the match goes on behind it.
    static void open(QWidget* mainWindow, const Services& services, const GameState& state);

protected:
    bool event(QEvent* event) override;

private:
    void readAgain();
    void showChoice();
    void showSummaryTab(const LogSummary& summary);
    void askToEmpty();

    std::filesystem::path m_file;
    Alerts& m_alerts;
    Outside& m_outside;
    Ask m_ask;
    LogContent m_log;
    std::pair<std::uintmax_t, std::filesystem::file_time_type> m_stamp;
    QComboBox* m_language = nullptr;
    QComboBox* m_length = nullptr;
    QLabel* m_figures = nullptr;
    QTableWidget* m_levels = nullptr;
    QTableWidget* m_words = nullptr;
    BarChart* m_scoresChart = nullptr;
    QTableWidget* m_scores = nullptr;
    BarChart* m_lengthsChart = nullptr;
    QTableWidget* m_lengths = nullptr;
    QLabel* m_skipped = nullptr;
};

} // namespace griglione
