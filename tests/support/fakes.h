// Small fakes of the game's ports: they record what the logic asked for and give scripted
// answers.
#pragma once

#include "core/atomic_file.h"
#include "core/ports.h"
#include "core/random.h"

#include <unistd.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace griglione::testing {

// Thrown where the program would end.
struct ProgramEnded : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct FakeAlerts : Alerts {
    std::vector<std::string> shown;
    void avviso(const std::string& testo) override { shown.push_back(testo); }
    void fatale(const std::string& testo) override {
        shown.push_back(testo);
        throw ProgramEnded(testo);
    }
};

struct FakeSounds : Sounds {
    std::vector<std::string> played; // "beep" for the system beep
    void suona(std::string_view nomeFile) override { played.emplace_back(nomeFile); }
    void beep() override { played.emplace_back("beep"); }
};

struct FakeOutside : Outside {
    std::vector<std::string> opened;
    void apri(const std::string& target) override { opened.push_back(target); }
};

struct FakeMessages : Messages {
    std::vector<Messaggio> shown;
    std::vector<bool> modal;
    void mostraMessaggio(const Messaggio& messaggio, bool isModal) override {
        shown.push_back(messaggio);
        modal.push_back(isModal);
    }
};

struct FakeView : GameView {
    std::vector<Aspect> changes;
    std::vector<bool> busy;
    void changed(Aspect aspect) override { changes.push_back(aspect); }
    void setBusy(bool b) override { busy.push_back(b); }
};

struct FixedClock : Clock {
    double seconds = 43200.0;
    double secondsSinceMidnight() const override { return seconds; }
};

// Gives the numbers it was handed, then keeps giving the last one.
struct ScriptedRandom : Random {
    std::deque<double> numbers;
    double last = 0.0;
    int reseeds = 0;
    void reseed(double) override { ++reseeds; }
    double next() override {
        if (!numbers.empty()) {
            last = numbers.front();
            numbers.pop_front();
        }
        return last;
    }
};

// A fresh empty folder, removed with its content at the end of the test.
class TempFolder {
public:
    TempFolder() {
        static int counter = 0;
        m_path = std::filesystem::temp_directory_path() /
                 ("griglione-test-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    const std::filesystem::path& path() const { return m_path; }
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(m_path / name, std::ios::binary) << bytes;
    }
    std::string read(const std::string& name) const {
        return readWholeFile(m_path / name).value_or("");
    }
    bool exists(const std::string& name) const { return std::filesystem::exists(m_path / name); }

private:
    std::filesystem::path m_path;
};

// A disk that fills up: while it lives, the writes of core/atomic_file store `bytes` more bytes
// and then fail.
struct WriteLimit {
    explicit WriteLimit(std::size_t bytes) { setWriteLimitForTesting(bytes); }
    ~WriteLimit() { setWriteLimitForTesting(std::nullopt); }
    WriteLimit(const WriteLimit&) = delete;
    WriteLimit& operator=(const WriteLimit&) = delete;
};

} // namespace griglione::testing
