#include "records/match_log.h"

#include "core/atomic_file.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <limits>

namespace griglione {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 3> kLanguageCodes = {"it", "en", "la"};
constexpr std::size_t kFields = 10 + kWordLengths;
constexpr std::size_t kLongestBoardCode = 128;

bool isLowerWord(std::string_view word) {
    return std::all_of(word.begin(), word.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

bool validBoardCode(std::string_view code) {
    return code.size() <= kLongestBoardCode &&
           std::all_of(code.begin(), code.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// Plain digits only: a sign, a blank or a decimal point is somebody else's number.
bool readNumber(std::string_view text, std::int32_t& value, std::int32_t lowest = 0,
                std::int32_t highest = std::numeric_limits<std::int32_t>::max()) {
    if (text.empty() || text.size() > 10 ||
        !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return false;
    std::int64_t n = 0;
    std::from_chars(text.data(), text.data() + text.size(), n);
    if (n < lowest || n > highest) return false;
    value = static_cast<std::int32_t>(n);
    return true;
}

// "2026-11-24 21:05:09", each part within its range.
bool validWhen(std::string_view when) {
    if (when.size() != 19 || when[4] != '-' || when[7] != '-' || when[10] != ' ' ||
        when[13] != ':' || when[16] != ':')
        return false;
    const struct {
        std::size_t at, length;
        std::int32_t lowest, highest;
    } parts[] = {{0, 4, 0, 9999}, {5, 2, 1, 12},  {8, 2, 1, 31},
                 {11, 2, 0, 23},  {14, 2, 0, 59}, {17, 2, 0, 60}};
    std::int32_t ignored = 0;
    for (const auto& p : parts)
        if (!readNumber(when.substr(p.at, p.length), ignored, p.lowest, p.highest)) return false;
    return true;
}

std::string_view withoutLineEnd(std::string_view line) {
    if (!line.empty() && line.back() == '\n') line.remove_suffix(1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

bool endsWithLineEnd(const fs::path& path, std::uintmax_t size) {
    std::ifstream in(path, std::ios::binary);
    in.seekg(static_cast<std::streamoff>(size) - 1);
    return in.get() == '\n';
}

} // namespace

MatchEntry matchEntry(const GameState& state, const std::array<bool, 4>& levelChecked,
                      std::string boardCode, std::string when) {
    MatchEntry e;
    e.when = std::move(when);
    e.numDizionario = state.numDizionario;
    e.tempoPartita = state.tempoPartita;
    // The order in which the end-of-match window tests the items: the last checked one names it.
    for (const int level : {0, 1, 3, 2})
        if (levelChecked[static_cast<std::size_t>(level)]) e.level = level;
    if (validBoardCode(boardCode)) e.boardCode = std::move(boardCode);
    e.punti = state.puntiGiocatore;
    e.puntiCPU = state.puntiCPU;
    e.parole = static_cast<std::int32_t>(state.paroleGiocatore.size());
    e.paroleCPU = static_cast<std::int32_t>(state.paroleCPU.size());
    for (const std::string& word : state.paroleGiocatore) {
        const auto length = static_cast<int>(word.size());
        if (length < kShortestWord || length > kLongestWord) continue;
        ++e.perLunghezza[static_cast<std::size_t>(length - kShortestWord)];
        if (word.size() > e.parolaPiuLunga.size() && isLowerWord(word)) e.parolaPiuLunga = word;
    }
    return e;
}

std::string logLine(const MatchEntry& e) {
    const bool known = e.numDizionario >= 1 && e.numDizionario <= 3;
    std::string line = e.when;
    line += '\t';
    line += known ? kLanguageCodes[static_cast<std::size_t>(e.numDizionario - 1)] : "";
    line += '\t' + std::to_string(e.tempoPartita) + '\t';
    if (e.level >= 0 && e.level < 4) line += kLevelLogNames[static_cast<std::size_t>(e.level)];
    line += '\t' + e.boardCode;
    for (const std::int32_t n : {e.punti, e.puntiCPU, e.parole, e.paroleCPU})
        line += '\t' + std::to_string(n);
    line += '\t' + e.parolaPiuLunga;
    for (const std::int32_t n : e.perLunghezza)
        line += '\t' + std::to_string(n);
    return line + "\r\n";
}

bool parseLogLine(std::string_view line, MatchEntry& entry) {
    line = withoutLineEnd(line);
    std::array<std::string_view, kFields> f;
    std::size_t count = 0;
    for (std::size_t start = 0;; ++count) {
        const std::size_t tab = line.find('\t', start);
        if (count == kFields) return false;
        f[count] = line.substr(start, tab == std::string_view::npos ? tab : tab - start);
        if (tab == std::string_view::npos) break;
        start = tab + 1;
    }
    if (count + 1 != kFields) return false;

    MatchEntry e;
    if (!validWhen(f[0])) return false;
    e.when = f[0];
    const auto language = std::find(kLanguageCodes.begin(), kLanguageCodes.end(), f[1]);
    if (language == kLanguageCodes.end()) return false;
    e.numDizionario = static_cast<int>(language - kLanguageCodes.begin()) + 1;
    std::int32_t seconds = 0;
    if (!readNumber(f[2], seconds, 1, std::numeric_limits<std::int16_t>::max())) return false;
    e.tempoPartita = seconds;
    if (!f[3].empty()) {
        const auto level = std::find(kLevelLogNames.begin(), kLevelLogNames.end(), f[3]);
        if (level == kLevelLogNames.end()) return false;
        e.level = static_cast<int>(level - kLevelLogNames.begin());
    }
    if (!validBoardCode(f[4])) return false;
    e.boardCode = f[4];
    if (!readNumber(f[5], e.punti) || !readNumber(f[6], e.puntiCPU) ||
        !readNumber(f[7], e.parole) || !readNumber(f[8], e.paroleCPU))
        return false;
    const std::string_view word = f[9];
    if (!isLowerWord(word) ||
        (!word.empty() && (word.size() < kShortestWord || word.size() > kLongestWord)))
        return false;
    e.parolaPiuLunga = word;
    std::int64_t counted = 0;
    for (std::size_t i = 0; i < kWordLengths; ++i) {
        if (!readNumber(f[10 + i], e.perLunghezza[i])) return false;
        counted += e.perLunghezza[i];
    }
    // The lengths counted are the player's words; a longest word needs a word of its length.
    if (counted > e.parole) return false;
    if (!word.empty() && e.perLunghezza[word.size() - kShortestWord] == 0) return false;
    entry = std::move(e);
    return true;
}

LogContent parseLog(std::string_view bytes) {
    // A spreadsheet that saved the file as UTF-8 may have put its mark in front.
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    LogContent content;
    MatchEntry entry;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        const std::string_view line =
            withoutLineEnd(bytes.substr(0, end == std::string_view::npos ? end : end + 1));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
        if (line.find_first_not_of(" \t") == std::string_view::npos ||
            line == withoutLineEnd(kMatchLogHeader))
            continue;
        if (parseLogLine(line, entry))
            content.entries.push_back(std::move(entry));
        else
            ++content.skipped;
    }
    return content;
}

LogContent readLog(const fs::path& path) {
    const std::optional<std::string> bytes = readWholeFile(path);
    return bytes ? parseLog(*bytes) : LogContent{};
}

bool appendMatch(const fs::path& path, const MatchEntry& entry, std::error_code* why) {
    std::error_code error;
    const std::uintmax_t size = fs::is_regular_file(path, error) ? fs::file_size(path, error) : 0;
    std::string bytes;
    if (size == 0)
        bytes = kMatchLogHeader;
    else if (!endsWithLineEnd(path, size))
        bytes = "\r\n";
    return appendToFile(path, bytes + logLine(entry), why);
}

bool emptyLog(const fs::path& path, std::error_code* why) {
    return writeFileAtomically(path, kMatchLogHeader, why);
}

} // namespace griglione
