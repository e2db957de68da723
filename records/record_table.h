// The high-score table: fifty places, a slot for the new score and one for an over-long file's
// 52nd line; its file form, its list lines and the search for the player's place.
#pragma once

#include "core/player_text.h"

#include <array>
#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

inline constexpr std::string_view kRecordsFileName = "zarMolo.HIS";
inline constexpr int kRecordPlaces = 50;
inline constexpr int kRecordSlots = 52;
inline constexpr std::string_view kRecordsHeader =
    textMark("RecordTable", " N. - Giocatore    -  Punti");

struct RecordEntry {
    std::string name; // Windows-1252 bytes, as in the file
    std::int32_t score = 0;
    bool operator==(const RecordEntry&) const = default;
};

class RecordTable {
public:
    // Reads up to 52 entries, one a line. Blank lines are skipped rather than taken as empty
    // places, and an overlong line keeps only its start, so a stray file never costs memory
    // or pushes real records off the table.
    static RecordTable read(std::istream& in);

    // Slot 1 to 52.
    const RecordEntry& slot(int i) const { return m_slots[static_cast<std::size_t>(i - 1)]; }

    // The name as a line of the file can hold it: the first comma ends a name, so a name read
    // from a hand-edited settings file loses its commas here.
    static std::string keptName(std::string_view name);

    // Puts the new score into slot 51 and sorts: an equal score already held stays above it.
    void enter(std::string name, std::int32_t score);

    // The fifty places as the file holds them: name, comma, score in number form, CR LF.
    std::string fileBytes() const;

    // The header, then one line per place (" 01 - BRIVO        -  01.240"), in Windows-1252.
    std::vector<std::string> listLines() const;

    // The last place (1 to 50) that holds exactly this name and score.
    std::optional<int> placeOf(std::string_view name, std::int32_t score) const;

private:
    std::array<RecordEntry, kRecordSlots> m_slots{};
};

} // namespace griglione
