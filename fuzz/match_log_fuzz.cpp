// Reads any bytes as a match log: every line taken as a match is written back as a line that
// reads as the same match, and no line is both kept and counted as skipped.
#include "records/match_log.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const griglione::LogContent log = griglione::parseLog(bytes);
    const auto lines = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1;
    if (log.entries.size() + static_cast<std::size_t>(log.skipped) > lines) std::abort();
    for (const griglione::MatchEntry& entry : log.entries) {
        griglione::MatchEntry again;
        if (!griglione::parseLogLine(griglione::logLine(entry), again) || !(again == entry))
            std::abort();
    }
    return 0;
}
