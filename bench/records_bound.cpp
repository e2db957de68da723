// The highest plausible score of a world record, per language and match length: deals many boards
// with the game's own dealer, finds every word each holds with the review's finder, and prints
// the richest board's total and what the fastest player could enter of it in each match length.
//   records_bound [DATA FOLDER (data)] [BOARDS per language (100000)]
#include "board/dealer.h"
#include "core/mixing_random.h"
#include "review/word_finder.h"
#include "review/word_list.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace griglione;

namespace {

// A word of L letters takes L presses and one to send it. Ten presses a second, held for the
// whole match, is beyond the fastest player: a bound, not an estimate.
constexpr double kPressesPerSecond = 10.0;
constexpr int kLengths[] = {60, 90, 120, 300};

struct SteppingClock : Clock {
    mutable double seconds = 0;
    double secondsSinceMidnight() const override { return seconds += 0.0137; }
};

// The most points the words of one board give within `presses`: the words by points per press,
// the best first, and a fraction of the first that no longer fits (so never below the truth).
double enterable(const std::vector<int>& lengths, double presses) {
    double points = 0;
    for (const int l : lengths) { // longest first: points per press grow with the length
        const double cost = l + 1, value = l * l * 20.0;
        if (presses >= cost) {
            points += value;
            presses -= cost;
        } else {
            points += value * presses / cost;
            break;
        }
    }
    return points;
}

} // namespace

int main(int argc, char** argv) {
    const char* folder = argc > 1 ? argv[1] : "data";
    const long boards = argc > 2 ? std::max(1L, std::atol(argv[2])) : 100'000;
    std::printf("%ld boards per language, %.0f presses a second\n", boards, kPressesPerSecond);
    std::printf("lingua  words(max)  total(max)  60s  90s  120s  300s\n");
    for (int lingua = 1; lingua <= 3; ++lingua) {
        const WordList words = readWordList(folder, lingua);
        if (words.blocks.empty()) {
            std::printf("no dictionary %d in %s\n", lingua, folder);
            return 1;
        }
        GameState state;
        state.numDizionario = lingua;
        MixingRandom random(0x5EEDull + static_cast<unsigned>(lingua));
        SteppingClock clock;
        Dealer dealer(random, clock);
        std::size_t mostWords = 0;
        long richest = 0;
        double best[4] = {};
        const auto start = std::chrono::steady_clock::now();
        for (long b = 0; b < boards; ++b) {
            dealer.deal(state, true);
            const auto found = findWords(words, boardLetters(state));
            std::vector<int> lengths;
            long total = 0;
            for (const FoundWord& w : found) {
                lengths.push_back(static_cast<int>(w.word.size()));
                total += static_cast<long>(w.word.size() * w.word.size() * 20);
            }
            std::sort(lengths.rbegin(), lengths.rend());
            mostWords = std::max(mostWords, found.size());
            richest = std::max(richest, total);
            for (int t = 0; t < 4; ++t)
                best[t] = std::max(best[t], enterable(lengths, kLengths[t] * kPressesPerSecond));
        }
        std::printf(
            "%d  %zu  %ld  %.0f  %.0f  %.0f  %.0f  (%.0f s)\n", lingua, mostWords, richest, best[0],
            best[1], best[2], best[3],
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        std::fflush(stdout);
    }
    return 0;
}
