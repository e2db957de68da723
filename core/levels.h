// The opponent's four levels and the four match lengths, in the order of their menu items.
#pragma once

#include <array>
#include <string_view>

namespace griglione {

struct LevelInfo {
    int interval;             // milliseconds between two walks of the opponent
    std::string_view caption; // menu item
    std::string_view name;    // as the start message names it
    std::string_view cpuName; // as the end-of-match window names the opponent
};

inline constexpr std::array<LevelInfo, 4> kLevels = {{
    {1000, "&Junior (Birillo)", "Junior (Birillo)", "Birillo (CPU)"},
    {500, "&Principiante (Tapo)", "Principiante (Tapo)", "Tapo (CPU)"},
    {300, "&Medio (Memo)", "Medio (Memo)", "Memo (CPU)"},
    {100, "&Esperto (Sapienzo)", "Esperto (Sapienzo)", "Sapienzo (CPU)"},
}};
enum LevelIndex { Junior = 0, Principiante = 1, Medio = 2, Esperto = 3 };

struct MatchLengthInfo {
    int seconds;
    std::string_view caption;
};

inline constexpr std::array<MatchLengthInfo, 4> kMatchLengths = {{
    {60, "&60 Secondi"},
    {90, "&90 Secondi"},
    {120, "&2 Minuti"},
    {300, "&5 minuti"},
}};

struct LineWidthInfo {
    int spessore;
    std::string_view caption;
};

inline constexpr std::array<LineWidthInfo, 3> kLineWidths = {{
    {1, "&Stretta"},
    {7, "&Media"},
    {13, "&Larga"},
}};

struct LanguageInfo {
    int numero;
    std::string_view caption;
    std::string_view nome;
};

inline constexpr std::array<LanguageInfo, 3> kLanguages = {{
    {1, "&Italiano", "Italiano"},
    {2, "&English", "English"},
    {3, "&Latino", "Latino"},
}};

} // namespace griglione
