// Times the submission's full scan: an absent word against the largest length block of the
// Italian dictionary, one yield before every record as in play.
#include "bench/bench_support.h"
#include "dictionary/dictionary.h"

#include <cstdio>
#include <exception>

using namespace griglione;

int main(int argc, char** argv) try {
    bench::ShippedDictionary shipped(argc, argv);
    Dictionary& dictionary = shipped.dictionary;

    int length = kMinWordLength;
    for (int l = kMinWordLength; l <= kMaxWordLength; ++l)
        if (dictionary.index().contaGruppo(l) > dictionary.index().contaGruppo(length)) length = l;
    // Sorts after every word of the block, and no language spells it.
    const std::string absent(static_cast<std::size_t>(length), 'Z');
    if (dictionary.verificaParola(absent) != "NO") {
        std::printf("FAILED: %s is in the dictionary\n", absent.c_str());
        return 1;
    }
    std::printf("scan of %d words of %d letters\n", dictionary.index().contaGruppo(length), length);

    std::vector<double> runs;
    for (int run = 0; run < 31; ++run) {
        const auto start = std::chrono::steady_clock::now();
        dictionary.verificaParola(absent);
        runs.push_back(bench::milliseconds(std::chrono::steady_clock::now() - start));
    }
    return bench::report(runs, 10.0);
} catch (const std::exception& error) {
    std::printf("FAILED: %s\n", error.what());
    return 1;
}
