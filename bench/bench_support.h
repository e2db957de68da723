// What the timing harnesses share: the yield they pass to the lookups, the shipped dictionary
// they time, medians and budgets.
#pragma once

#include "core/ports.h"
#include "dictionary/dictionary.h"

#ifdef GRIGLIONE_BENCH_WITH_QT
#include "platform/event_yield.h"

#include <QCoreApplication>
#endif

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace griglione::bench {

// The event loop the yields run, when the program's windows are built.
class EventLoop {
public:
    EventLoop(int& argc, char** argv) {
#ifdef GRIGLIONE_BENCH_WITH_QT
        m_application = std::make_unique<QCoreApplication>(argc, argv);
#else
        (void)argc;
        (void)argv;
#endif
    }
    std::function<void()> yield() const {
#ifdef GRIGLIONE_BENCH_WITH_QT
        return yieldToWindow;
#else
        return [] {};
#endif
    }
    static const char* description() {
#ifdef GRIGLIONE_BENCH_WITH_QT
        return "yields run the program's yieldToWindow";
#else
        return "yields do nothing (built without Qt)";
#endif
    }

private:
#ifdef GRIGLIONE_BENCH_WITH_QT
    std::unique_ptr<QCoreApplication> m_application;
#endif
};

// A missing dictionary is a broken benchmark, not something to carry on from.
struct BenchAlerts : Alerts {
    void avviso(const std::string& testo) override { std::fprintf(stderr, "%s\n", testo.c_str()); }
    void fatale(const std::string& testo) override { throw std::runtime_error(testo); }
};

// The shipped Italian dictionary, its index loaded, its lookups yielding to the event loop.
struct ShippedDictionary {
    ShippedDictionary(int& argc, char** argv)
        : loop(argc, argv),
          dictionary(state, files, alerts, loop.yield(), argc > 1 ? argv[1] : "data") {
        std::printf("%s\n", EventLoop::description());
        dictionary.prendidiz();
    }

    EventLoop loop;
    GameState state;
    OpenFileTable files;
    BenchAlerts alerts;
    Dictionary dictionary;
};

inline double milliseconds(std::chrono::steady_clock::duration d) {
    return std::chrono::duration<double, std::milli>(d).count();
}

inline double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

// Prints the result; fails only past four times the target, so that a loaded machine does not
// make the check flaky while a real regression still shows.
inline int report(const std::vector<double>& runs, double targetMs) {
    const double m = median(runs);
    std::printf("median %.4f ms (target %g ms) over %zu runs\n", m, targetMs, runs.size());
    if (m > 4 * targetMs) {
        std::printf("FAILED: more than four times the target\n");
        return 1;
    }
    return 0;
}

} // namespace griglione::bench
