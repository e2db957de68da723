// Reads any bytes as zarMolo.HIS, enters a score and writes the table back: the rewrite is always
// fifty lines, the list always the header and fifty places, and the best record read is kept.
#include "records/record_table.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    griglione::RecordTable table = griglione::RecordTable::read(in);
    // The first of the best records read; slot 51, where the new score goes, does not count.
    griglione::RecordEntry best = table.slot(1);
    for (int i = 2; i <= griglione::kRecordSlots; ++i)
        if (i != griglione::kRecordPlaces + 1 && table.slot(i).score > best.score)
            best = table.slot(i);
    table.enter("BRIVO", 1240);
    const std::string bytes = table.fileBytes();
    if (std::count(bytes.begin(), bytes.end(), '\n') != griglione::kRecordPlaces) std::abort();
    if (table.listLines().size() != griglione::kRecordPlaces + 1) std::abort();
    // It heads the table, or comes second below a better new score.
    const griglione::RecordEntry& expected = best.score < 1240 ? table.slot(2) : table.slot(1);
    if (expected != best) std::abort();
    return 0;
}
