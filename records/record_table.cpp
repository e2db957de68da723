#include "records/record_table.h"

#include "core/number_text.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace griglione {
namespace {

// No name is longer than this; what lies beyond on a line is not a record.
constexpr std::size_t kLineLimit = 4096;

// One line without its end, at most kLineLimit bytes of it; false at the end of the input.
bool readLine(std::istream& in, std::string& line) {
    std::array<char, kLineLimit + 1> buffer{};
    in.getline(buffer.data(), buffer.size());
    const auto got = static_cast<std::size_t>(in.gcount());
    if (in.fail() && !in.bad() && got == kLineLimit) {
        in.clear(); // the rest of an overlong line is dropped
        in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
        line.assign(buffer.data(), got);
    } else if (got == 0) {
        return false;
    } else {
        line.assign(buffer.data(), in.eof() ? got : got - 1);
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return true;
}

std::int32_t scoreOf(std::string_view text) {
    const double value = leadingNumber(text);
    // A number too big for a score still ranks the entry where the file meant it.
    if (value >= std::numeric_limits<std::int32_t>::max())
        return std::numeric_limits<std::int32_t>::max();
    if (value <= std::numeric_limits<std::int32_t>::min())
        return std::numeric_limits<std::int32_t>::min();
    return roundHalfEven(value).value_or(0);
}

RecordEntry entryOf(std::string_view line) {
    const std::size_t start = std::min(line.find_first_not_of(' '), line.size());
    const std::size_t comma = line.find(',', start);
    if (comma == std::string_view::npos) return {std::string(line.substr(start)), 0};
    return {std::string(line.substr(start, comma - start)), scoreOf(line.substr(comma + 1))};
}

std::string twoDigits(int n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

} // namespace

RecordTable RecordTable::read(std::istream& in) {
    RecordTable table;
    std::string line;
    std::size_t filled = 0;
    while (filled < table.m_slots.size() && readLine(in, line)) {
        if (line.find_first_not_of(' ') == std::string::npos) continue;
        table.m_slots[filled++] = entryOf(line);
    }
    return table;
}

std::string RecordTable::keptName(std::string_view name) {
    std::string kept(name);
    std::erase(kept, ',');
    return kept;
}

void RecordTable::enter(std::string name, std::int32_t score) {
    m_slots[kRecordSlots - 2] = {std::move(name), score};
    // Exchanges of neighbours, each pass ending where the previous one last swapped; only a
    // strictly lower score above a higher one is swapped, so equal scores keep their order.
    std::size_t end = m_slots.size() - 1;
    while (end > 0) {
        std::size_t lastSwap = 0;
        for (std::size_t i = 0; i < end; ++i)
            if (m_slots[i].score < m_slots[i + 1].score) {
                std::swap(m_slots[i], m_slots[i + 1]);
                lastSwap = i;
            }
        end = lastSwap;
    }
}

std::string RecordTable::fileBytes() const {
    std::string bytes;
    for (int i = 0; i < kRecordPlaces; ++i)
        bytes += m_slots[i].name + "," + numberField(m_slots[i].score) + "\r\n";
    return bytes;
}

std::vector<std::string> RecordTable::listLines() const {
    std::vector<std::string> lines{playerText("RecordTable", kRecordsHeader)};
    for (int i = 1; i <= kRecordPlaces; ++i) {
        std::string name = slot(i).name.substr(0, 12);
        name.resize(12, ' ');
        lines.push_back(" " + twoDigits(i) + " - " + name + " - " + " " +
                        groupedNumber(slot(i).score, 5));
    }
    return lines;
}

std::optional<int> RecordTable::placeOf(std::string_view name, std::int32_t score) const {
    std::optional<int> place;
    for (int i = 1; i <= kRecordPlaces; ++i)
        if (slot(i).name == name && slot(i).score == score) place = i;
    return place;
}

} // namespace griglione
