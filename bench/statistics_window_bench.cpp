// Opening the statistics window over a match log of 10,000 matches, all of the language and
// length shown (the most the window has to sum up): reading the log, the summary, the tables and
// both charts drawn. Each run makes the window afresh, as the first opening of a run does.
#include "bench_support.h"
#include "records/match_log.h"
#include "ui/statistics_window.h"

#include <QApplication>
#include <QTabWidget>

#include <cstdio>
#include <fstream>
#include <unistd.h>

using namespace griglione;

namespace {

struct NoOutside : Outside {
    void apri(const std::string&) override {}
};

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const auto folder =
        std::filesystem::temp_directory_path() / ("griglione-bench-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    const auto file = folder / std::string(kMatchLogFileName);
    std::string bytes(kMatchLogHeader);
    const char* words[] = {"era",     "casa",     "tavol",     "tavolo",
                           "cartone", "montagna", "cartolina", "capotavola"};
    for (int i = 0; i < 10'000; ++i) {
        MatchEntry e;
        e.when = "2026-11-24 21:05:09";
        e.level = i % 4;
        e.punti = (i * 7919) % 9000;
        e.puntiCPU = (i * 104729) % 9000;
        e.parole = e.paroleCPU = 12;
        for (std::size_t length = 0; length < kWordLengths; ++length)
            e.perLunghezza[length] = length < 4 ? 3 : 0;
        e.parolaPiuLunga = words[i % 8];
        e.perLunghezza[e.parolaPiuLunga.size() - kShortestWord] += 1;
        bytes += logLine(e);
    }
    std::ofstream(file, std::ios::binary) << bytes;
    std::printf("log of 10,000 matches, %zu bytes\n", bytes.size());

    bench::BenchAlerts alerts;
    NoOutside outside;
    std::vector<double> runs;
    for (int run = 0; run < 21; ++run) {
        const auto start = std::chrono::steady_clock::now();
        {
            StatisticsWindow window(file, alerts, outside, {}, nullptr);
            window.load(1, 120);
            window.show();
            // Every page drawn once, the charts included.
            auto* tabs = window.findChild<QTabWidget*>();
            for (int page = 0; page < tabs->count(); ++page) {
                tabs->setCurrentIndex(page);
                window.grab();
            }
            QCoreApplication::processEvents();
            if (run == 0)
                std::printf("first opening %.1f ms\n",
                            bench::milliseconds(std::chrono::steady_clock::now() - start));
        }
        runs.push_back(bench::milliseconds(std::chrono::steady_clock::now() - start));
    }
    std::filesystem::remove_all(folder);
    return bench::report(runs, 150);
}
