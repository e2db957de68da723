// The match log: one tab-separated line for every match that ran out of time, appended to a
// file a spreadsheet opens as it is, and read back with damaged or foreign lines skipped.
#pragma once

#include "core/game_state.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace griglione {

inline constexpr std::string_view kMatchLogFileName = "zarMolo.tsv";

// The player's words are counted by length, from the shortest a word may have to the longest the
// submission keeps.
inline constexpr int kShortestWord = 3;
inline constexpr int kLongestWord = 10;
inline constexpr std::size_t kWordLengths = kLongestWord - kShortestWord + 1;

// The first line of the file, naming the columns (ASCII, like every line of the log).
inline constexpr std::string_view kMatchLogHeader =
    "data\tlingua\tsecondi\tavversario\ttabellone\tpunti\tpunti_cpu\tparole\tparole_cpu\t"
    "parola_piu_lunga\tparole_3\tparole_4\tparole_5\tparole_6\tparole_7\tparole_8\tparole_9\t"
    "parole_10\r\n";

// The computer's names as the log writes them, in the order of kLevels.
inline constexpr std::array<std::string_view, 4> kLevelLogNames = {"Birillo", "Tapo", "Memo",
                                                                   "Sapienzo"};

struct MatchEntry {
    std::string when;       // local date and time, "2026-11-24 21:05:09"
    int numDizionario = 1;  // 1 Italian, 2 English, 3 Latin
    int tempoPartita = 120; // seconds
    int level = -1;         // index into kLevels; -1 when no level was chosen
    std::string boardCode;  // printable ASCII, at most 128 characters; empty for a dealt board
    std::int32_t punti = 0;
    std::int32_t puntiCPU = 0;
    std::int32_t parole = 0;
    std::int32_t paroleCPU = 0;
    std::string parolaPiuLunga; // lower case; the first found of the longest; empty without words
    std::array<std::int32_t, kWordLengths> perLunghezza{}; // the player's words of 3 to 10 letters
    bool operator==(const MatchEntry&) const = default;
};

// The match just ended, as the state holds it. `levelChecked` are the level items in kLevels
// order; the one the end-of-match window names wins when several are.
MatchEntry matchEntry(const GameState& state, const std::array<bool, 4>& levelChecked,
                      std::string boardCode, std::string when);

// One line of the log, CR LF included.
std::string logLine(const MatchEntry& entry);

// The entry a line holds (its line end already taken off, or not); false for a damaged or
// foreign line.
bool parseLogLine(std::string_view line, MatchEntry& entry);

struct LogContent {
    std::vector<MatchEntry> entries; // in the order of the file, oldest first
    int skipped = 0;                 // lines neither blank, nor the header, nor a match
};

LogContent parseLog(std::string_view bytes);

// The log at `path`; a missing or unreadable file, or a folder in its place, reads as empty.
LogContent readLog(const std::filesystem::path& path);

// Appends the entry and puts it on the disk before answering; a new or empty file gets the
// header first, and a last line left without its end (the program killed while writing it) is
// ended first, so that it stays one damaged line rather than spoil the new one. False, with the
// system's reason, when the line could not be written; the file then keeps what it held.
bool appendMatch(const std::filesystem::path& path, const MatchEntry& entry,
                 std::error_code* why = nullptr);

// Leaves the header alone in the file, in one durable rewrite.
bool emptyLog(const std::filesystem::path& path, std::error_code* why = nullptr);

} // namespace griglione
