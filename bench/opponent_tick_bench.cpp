// Times one tick of the computer opponent on dealt Italian boards against the Italian
// dictionary, yields included; every hundred ticks a new board starts a new match.
#include "bench/bench_support.h"
#include "board/dealer.h"
#include "core/mixing_random.h"
#include "dictionary/dictionary.h"
#include "opponent/opponent_walk.h"

#include <cmath>
#include <cstdio>
#include <exception>

using namespace griglione;

namespace {

struct WallClock : Clock {
    double secondsSinceMidnight() const override {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        return std::fmod(std::chrono::duration<double>(now).count(), 86400.0);
    }
};

struct NoView : GameView {
    void changed(Aspect) override {}
    void setBusy(bool) override {}
};

} // namespace

int main(int argc, char** argv) try {
    bench::ShippedDictionary shipped(argc, argv);
    GameState& state = shipped.state;
    MixingRandom random;
    WallClock clock;
    NoView view;
    Dealer dealer(random, clock);
    OpponentWalk walk(
        state, random, clock,
        [&](const std::string& w) { return shipped.dictionary.cercaParola(w); },
        shipped.loop.yield(), view);

    std::vector<double> runs;
    std::size_t found = 0;
    for (int match = 0; match < 30; ++match) {
        dealer.deal(state, true);
        state.paroleCPU.clear();
        state.puntiCPU = 0;
        for (int tick = 0; tick < 100; ++tick) {
            const auto start = std::chrono::steady_clock::now();
            walk.tick();
            runs.push_back(bench::milliseconds(std::chrono::steady_clock::now() - start));
        }
        found += state.paroleCPU.size();
    }
    std::printf("%zu words found, %d unsuccessful lookups\n", found, state.ricercheFallite);
    return bench::report(runs, 1.0);
} catch (const std::exception& error) {
    std::printf("FAILED: %s\n", error.what());
    return 1;
}
