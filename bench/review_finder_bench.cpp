// Times the finder of the after-match review: every word of a dealt Italian board against the
// shipped Italian dictionary, over a thousand boards.
#include "bench/bench_support.h"
#include "board/dealer.h"
#include "core/mixing_random.h"
#include "review/word_finder.h"
#include "review/word_list.h"

#include <cstdio>

using namespace griglione;

namespace {

struct CountingClock : Clock {
    mutable double seconds = 0;
    double secondsSinceMidnight() const override { return seconds += 0.001; }
};

} // namespace

int main(int argc, char** argv) {
    const WordList words = readWordList(argc > 1 ? argv[1] : "data", 1);
    std::size_t records = 0;
    for (const WordBlock& block : words.blocks)
        records += block.count();
    if (records == 0) {
        std::printf("FAILED: no Italian dictionary\n");
        return 1;
    }
    std::printf("%zu words of 3 to 10 letters\n", records);

    GameState state;
    MixingRandom random;
    CountingClock clock;
    Dealer dealer(random, clock);
    std::vector<double> runs;
    std::size_t found = 0, most = 0;
    for (int board = 0; board < 1000; ++board) {
        dealer.deal(state, true);
        const BoardLetters letters = boardLetters(state);
        const auto start = std::chrono::steady_clock::now();
        const auto words_ = findWords(words, letters);
        runs.push_back(bench::milliseconds(std::chrono::steady_clock::now() - start));
        found += words_.size();
        most = std::max(most, words_.size());
    }
    std::printf("%.1f words a board on average, %zu at most\n", found / 1000.0, most);
    return bench::report(runs, 10.0);
}
