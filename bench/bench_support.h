// What the timing harnesses share: the yield they pass to the lookups, the dictionary they time
// (the shipped one, or a synthetic one of similar size while it is missing), medians and budgets.
#pragma once

#include "core/ports.h"
#include "dictionary/dictionary_format.h"

#ifdef GRIGLIONE_BENCH_WITH_QT
#include "platform/event_yield.h"

#include <QCoreApplication>
#endif

#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <random>
#include <set>
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
        return "yields run QCoreApplication::processEvents";
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

// The folder holding SLESSICO.1: the shipped data folder, or a temporary one with a synthetic
// dictionary of about the shipped one's size, removed again at the end.
class DictionaryFolder {
public:
    explicit DictionaryFolder(const std::filesystem::path& data) {
        if (std::filesystem::exists(data / dictionaryFileName(1))) {
            m_path = data;
            std::printf("dictionary: %s\n", (data / dictionaryFileName(1)).c_str());
            return;
        }
        m_path = std::filesystem::temp_directory_path() /
                 ("griglione-bench-" + std::to_string(::getpid()));
        m_temporary = true;
        std::filesystem::create_directories(m_path);
        std::ofstream(m_path / dictionaryFileName(1), std::ios::binary)
            << buildDictionaryFile("synthetic", syntheticWords());
        std::printf("dictionary: %s not found, using a synthetic one of the same shape\n",
                    (data / dictionaryFileName(1)).c_str());
    }
    ~DictionaryFolder() {
        std::error_code ignored;
        if (m_temporary) std::filesystem::remove_all(m_path, ignored);
    }
    DictionaryFolder(const DictionaryFolder&) = delete;
    DictionaryFolder& operator=(const DictionaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    // Random words in the board's letter mix; the nine-letter block is the largest, 25,000 words.
    static WordLists syntheticWords() {
        const std::array<int, 8> counts = {900, 4000, 9000, 16000, 21000, 24000, 25000, 20000};
        const std::string letters = "AAAEEIIOOUBBBCCCDDDFFGGHLLLMMMNNNPPQRRRSSSTTVVZ";
        std::mt19937 generator(20240611);
        std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
        WordLists lists;
        for (std::size_t i = 0; i < counts.size(); ++i) {
            const std::size_t length = i + kMinWordLength;
            std::set<std::string> words;
            while (words.size() < static_cast<std::size_t>(counts[i])) {
                std::string word(length, ' ');
                for (char& c : word)
                    c = letters[pick(generator)];
                words.insert(word);
            }
            lists[i].assign(words.begin(), words.end());
        }
        return lists;
    }

    std::filesystem::path m_path;
    bool m_temporary = false;
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
