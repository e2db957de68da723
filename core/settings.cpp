#include "core/settings.h"

#include "core/ansi_text.h"
#include "core/levels.h"
#include "core/number_text.h"

#include <optional>

namespace griglione {
namespace {

enum class Key { Suono, Livello, SpessoreLinea, Dizionario, Tempo, Giocatore1 };

// The order matters: a line is classified by the first key found anywhere in it, so a player
// line whose name holds "Tempo=" is read as a time line.
constexpr std::array<std::pair<std::string_view, Key>, 6> kKeys = {{
    {"Suono=", Key::Suono},
    {"Livello=", Key::Livello},
    {"SpessoreLinea=", Key::SpessoreLinea},
    {"Dizionario=", Key::Dizionario},
    {"Tempo=", Key::Tempo},
    {"Giocatore1=", Key::Giocatore1},
}};

std::optional<Key> classify(std::string_view line) {
    for (const auto& [text, key] : kKeys)
        if (line.find(text) != std::string_view::npos) return key;
    return std::nullopt;
}

std::string_view withoutLeadingBlanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    return text;
}

std::optional<int> roundedValue(std::string_view value) {
    return roundHalfEven(leadingNumber(value));
}

void applyLine(std::string_view line, Settings& s) {
    const auto key = classify(line);
    if (!key) return;
    const std::string_view value = line.substr(line.find('=') + 1);
    switch (*key) {
    case Key::Suono:
        s.sound = withoutLeadingBlanks(upperAnsi(value)) == "SI";
        break;
    case Key::Livello: {
        const auto interval = roundedValue(value);
        std::size_t level = Principiante; // any other interval means the beginner at 500 ms
        for (std::size_t i = 0; i < kLevels.size(); ++i)
            if (interval && *interval == kLevels[i].interval) level = i;
        s.levelChecked[level] = true;
        s.timer2Interval = kLevels[level].interval;
        break;
    }
    case Key::SpessoreLinea: {
        // A width that does not fit its field is no width: the start-up check makes it 7.
        s.spessoreLinea = roundedValue(value).value_or(7);
        break;
    }
    case Key::Dizionario: {
        // Only 1, 2 and 3 name a dictionary; anything else would stop the game at the next
        // dictionary load, so it falls back to Italian.
        const auto n = roundedValue(value);
        s.numDizionario = (n && *n >= 1 && *n <= 3) ? *n : 1;
        break;
    }
    case Key::Tempo: {
        const std::string code(withoutLeadingBlanks(upperAnsi(value)));
        std::size_t item = 1; // every other code, 60 included, means 90 seconds
        if (code == "30") item = 0;
        if (code == "90") item = 2;
        if (code == "270") item = 3;
        s.timeChecked = {};
        s.timeChecked[item] = true;
        s.tempoPartita = kMatchLengths[item].seconds;
        break;
    }
    case Key::Giocatore1:
        s.playerName = fromAnsi(upperAnsi(value));
        break;
    }
}

} // namespace

void applySettingsFile(std::string_view fileBytes, Settings& settings) {
    std::size_t start = 0;
    while (start < fileBytes.size()) {
        std::size_t end = fileBytes.find_first_of("\r\n", start);
        if (end == std::string_view::npos) end = fileBytes.size();
        applyLine(fileBytes.substr(start, end - start), settings);
        start = end;
        if (start < fileBytes.size() && fileBytes[start] == '\r') ++start;
        if (start < fileBytes.size() && fileBytes[start] == '\n') ++start;
    }
}

std::string settingsFileBytes(const Settings& s) {
    std::string out;
    const auto line = [&out](std::string_view key, const std::string& value) {
        out.append(key).append(value).append("\r\n");
    };
    line("Livello=", std::to_string(s.timer2Interval));
    line("Suono=", s.sound ? "SI" : "NO");
    line("Tempo=", std::to_string(s.tempoPartita - 30));
    line("Giocatore1=", toAnsi(s.playerName));
    line("SpessoreLinea=", numberField(s.spessoreLinea));
    line("Dizionario=", numberField(s.numDizionario));
    return out;
}

} // namespace griglione
