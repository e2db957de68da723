// Reads any bytes as ZARMOLO.INI and writes the result back: the rewrite must stay six lines,
// whatever the player's name read from the file holds.
#include "core/settings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    griglione::Settings settings;
    griglione::applySettingsFile({reinterpret_cast<const char*>(data), size}, settings);
    const std::string bytes = griglione::settingsFileBytes(settings);
    if (std::count(bytes.begin(), bytes.end(), '\n') != 6 ||
        std::count(bytes.begin(), bytes.end(), '\r') != 6)
        std::abort();
    return 0;
}
