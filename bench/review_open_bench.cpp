// Times the opening of the after-match review on dealt Italian boards: the reading of the word
// list, the finder and the lists, and, with the windows built, the window shown on an offscreen
// screen. Prints the resident memory before the first review, while one is open, and after all
// are closed: the word list must not stay in memory once the review is gone.
#include "bench/bench_support.h"
#include "board/dealer.h"
#include "core/mixing_random.h"
#include "review/board_review.h"
#include "review/word_list.h"

#ifdef GRIGLIONE_BENCH_WITH_WINDOWS
#include "ui/review_window.h"

#include <QApplication>
#endif

#include <unistd.h>

#include <cstdio>
#include <fstream>

using namespace griglione;

namespace {

struct CountingClock : Clock {
    mutable double seconds = 0;
    double secondsSinceMidnight() const override { return seconds += 0.001; }
};

double residentMegabytes() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0, resident = 0;
    statm >> pages >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

} // namespace

int main(int argc, char** argv) {
    const std::filesystem::path folder = argc > 1 ? argv[1] : "data";
#ifdef GRIGLIONE_BENCH_WITH_WINDOWS
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::printf("the review window shown offscreen, reading and finding included\n");
#else
    std::printf("reading, finding and splitting only (built without windows)\n");
#endif
    GameState state;
    MixingRandom random;
    CountingClock clock;
    Dealer dealer(random, clock);
    dealer.deal(state, true);
    const double atStart = residentMegabytes();
    double before = 0, open = 0;
    std::vector<double> runs;
#ifdef GRIGLIONE_BENCH_WITH_WINDOWS
    // Made once, as the game makes it, and shown again for every board.
    ReviewWindow review(nullptr);
#endif
    for (int board = 0; board <= 100; ++board) {
        // The first opening also loads what every window needs (fonts, pictures, the screen);
        // the review's own memory shows from the second on.
        if (board == 1) before = residentMegabytes();
        dealer.deal(state, true);
        const auto start = std::chrono::steady_clock::now();
#ifdef GRIGLIONE_BENCH_WITH_WINDOWS
        review.load(state, folder);
        review.show();
        QCoreApplication::processEvents();
        review.hide();
#else
        const BoardLetters letters = boardLetters(state);
        const BoardReview review = reviewBoard(findWords(readWordList(folder, 1), letters), letters,
                                               state.paroleGiocatore, state.paroleCPU);
#endif
        runs.push_back(bench::milliseconds(std::chrono::steady_clock::now() - start));
        open = std::max(open, residentMegabytes());
    }
    std::printf("resident memory: %.1f MB at start, %.1f MB after the first review, %.1f MB with "
                "a review open, %.1f MB after 100 more\n",
                atStart, before, open, residentMegabytes());
    std::printf("first opening %.2f ms, slowest %.2f ms\n", runs.front(),
                *std::max_element(runs.begin(), runs.end()));
    return bench::report(runs, 100.0);
}
