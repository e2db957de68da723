// Any bytes as SLESSICO.1 on disk (after two bytes that choose the word's length and the
// moment its file is closed), with the three lookups run on it: the scan, the opponent's
// binary search (whose file is closed under it at a point the input chooses, as a submission
// does) and the submission's check. The words looked up are taken from the file's own blocks,
// so the searches reach its records.
#include "core/game_state.h"
#include "core/ports.h"
#include "dictionary/dictionary.h"

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

struct QuietAlerts : griglione::Alerts {
    void avviso(const std::string&) override {}
    void fatale(const std::string&) override {}
};

const std::filesystem::path& folder() {
    static const std::filesystem::path path = [] {
        auto p = std::filesystem::temp_directory_path() /
                 ("griglione-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(p);
        return p;
    }();
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const int closeAfter = data[0] % 8;  // the yield that closes every file; 0: none does
    const int length = 2 + data[1] % 10; // the length of the word looked up, 2 to 11
    const std::string file(reinterpret_cast<const char*>(data) + 2, size - 2);
    std::ofstream(folder() / "SLESSICO.1", std::ios::binary | std::ios::trunc) << file;

    griglione::GameState state;
    state.numDizionario = 1;
    griglione::OpenFileTable files;
    QuietAlerts alerts;
    int yields = 0;
    griglione::Dictionary dictionary(
        state, files, alerts,
        [&] {
            if (++yields == closeAfter) files.closeAll();
        },
        folder());
    dictionary.prendidiz();

    std::string word(static_cast<std::size_t>(length), 'A');
    if (length >= griglione::kMinWordLength) {
        const std::int64_t at = dictionary.index().inizioGruppo(length) - 1;
        if (at >= 0 && static_cast<std::size_t>(at + length) <= file.size())
            word = file.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(length));
    }
    dictionary.cercaParola(word);
    yields = 0;
    dictionary.verificaParola(word);
    return 0;
}
