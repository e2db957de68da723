// Times the records service's check of a challenge submission: a dealt board's code and every
// word the shipped dictionary holds on it (more than any player sends), read, traced, looked up
// and counted, over five hundred boards of each language.
#include "bench/bench_support.h"
#include "board/board_code.h"
#include "board/dealer.h"
#include "core/mixing_random.h"
#include "records/challenge_words.h"
#include "review/word_finder.h"
#include "server/challenge.h"

#include <cstdio>

using namespace griglione;

namespace {

struct CountingClock : Clock {
    mutable double seconds = 0;
    double secondsSinceMidnight() const override { return seconds += 0.001; }
};

} // namespace

int main(int argc, char** argv) {
    const std::filesystem::path folder = argc > 1 ? argv[1] : "data";
    const ChallengeDictionaries dictionaries(folder);
    const auto start = std::chrono::steady_clock::now();
    const DayBoards days;
    std::printf("index of the days' boards drawn in %.0f ms\n",
                bench::milliseconds(std::chrono::steady_clock::now() - start));
    std::vector<double> runs;
    std::size_t words = 0, longest = 0;
    for (int language = 1; language <= 3; ++language) {
        if (!dictionaries.has(language)) {
            std::printf("FAILED: no dictionary %d in %s\n", language, folder.c_str());
            return 1;
        }
        GameState state;
        state.numDizionario = language;
        MixingRandom random;
        CountingClock clock;
        Dealer dealer(random, clock);
        const WordList list = readWordList(folder, language);
        for (int board = 0; board < 500; ++board) {
            dealer.deal(state, true);
            std::vector<std::string> found;
            for (const FoundWord& word : findWords(list, boardLetters(state)))
                found.push_back(word.word);
            const std::string query =
                "codice=" + boardCode(state) + "&nome=Anna&tempo=120&parole=" + packWords(found);
            const auto begin = std::chrono::steady_clock::now();
            const CheckedChallenge checked =
                checkChallenge(query, dictionaries, days, CivilDate{2026, 11, 24});
            runs.push_back(bench::milliseconds(std::chrono::steady_clock::now() - begin));
            if (!checked.entry) {
                std::printf("FAILED: a board's own words refused: %s\n", checked.errore.c_str());
                return 1;
            }
            words += found.size();
            longest = std::max(longest, query.size());
        }
    }
    std::printf("%.1f words a submission on average; longest query %zu bytes\n", words / 1500.0,
                longest);
    return bench::report(runs, 2.0);
}
