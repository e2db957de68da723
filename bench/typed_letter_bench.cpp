// Times one typed letter on the worst board for it: 25 equal letters, where the word's paths are
// the most, at the tenth letter of the word.
#include "bench/bench_support.h"
#include "board/typed_trace.h"

#include <cstdio>

using namespace griglione;

int main() {
    CellLetters board{};
    board.fill('A');
    std::vector<double> runs;
    std::size_t live = 0;
    for (int run = 0; run < 300; ++run) {
        TypedTrace trace;
        for (int letter = 0; letter < 9; ++letter)
            trace.type(board, 'A');
        const auto start = std::chrono::steady_clock::now();
        const bool taken = trace.type(board, 'A');
        runs.push_back(bench::milliseconds(std::chrono::steady_clock::now() - start));
        if (!taken) {
            std::printf("FAILED: the tenth letter was refused\n");
            return 1;
        }
        live = trace.paths().size();
    }
    std::printf("%zu live paths kept at the tenth letter\n", live);
    return bench::report(runs, 1.0);
}
