// Reads any bytes as zarMolo.HIS, enters a score and writes the table back: the rewrite is always
// fifty lines, the list always the header and fifty places, and the table sorted with nothing lost.
#include "records/record_table.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    griglione::RecordTable table = griglione::RecordTable::read(in);
    // What the table must hold after the entry: every slot read, the new score in slot 51.
    std::vector<griglione::RecordEntry> expected;
    for (int i = 1; i <= griglione::kRecordSlots; ++i)
        expected.push_back(table.slot(i));
    expected[griglione::kRecordPlaces] = {"BRIVO", 1240};
    table.enter("BRIVO", 1240);
    const std::string bytes = table.fileBytes();
    if (std::count(bytes.begin(), bytes.end(), '\n') != griglione::kRecordPlaces) std::abort();
    if (table.listLines().size() != griglione::kRecordPlaces + 1) std::abort();
    // Sorted best first, and nothing lost or made up.
    std::vector<griglione::RecordEntry> held;
    for (int i = 1; i <= griglione::kRecordSlots; ++i) {
        held.push_back(table.slot(i));
        if (i > 1 && table.slot(i).score > table.slot(i - 1).score) std::abort();
    }
    const auto byScoreAndName = [](const auto& a, const auto& b) {
        return std::tie(a.score, a.name) < std::tie(b.score, b.name);
    };
    std::sort(expected.begin(), expected.end(), byScoreAndName);
    std::sort(held.begin(), held.end(), byScoreAndName);
    if (held != expected) std::abort();
    return 0;
}
