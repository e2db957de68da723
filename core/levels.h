// The opponent's four levels and the four match lengths, in the order of their menu items.
#pragma once

#include "core/player_text.h"

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
    {1000, textMark("Options", "&Junior (Birillo)"), textMark("Options", "Junior (Birillo)"),
     "Birillo (CPU)"},
    {500, textMark("Options", "&Principiante (Tapo)"), textMark("Options", "Principiante (Tapo)"),
     "Tapo (CPU)"},
    {300, textMark("Options", "&Medio (Memo)"), textMark("Options", "Medio (Memo)"), "Memo (CPU)"},
    {100, textMark("Options", "&Esperto (Sapienzo)"), textMark("Options", "Esperto (Sapienzo)"),
     "Sapienzo (CPU)"},
}};
enum LevelIndex { Junior = 0, Principiante = 1, Medio = 2, Esperto = 3 };

struct MatchLengthInfo {
    int seconds;
    std::string_view caption;
};

inline constexpr std::array<MatchLengthInfo, 4> kMatchLengths = {{
    {60, textMark("Options", "&60 Secondi")},
    {90, textMark("Options", "&90 Secondi")},
    {120, textMark("Options", "&2 Minuti")},
    {300, textMark("Options", "&5 minuti")},
}};

struct LineWidthInfo {
    int spessore;
    std::string_view caption;
};

inline constexpr std::array<LineWidthInfo, 3> kLineWidths = {{
    {1, textMark("Options", "&Stretta")},
    {7, textMark("Options", "&Media")},
    {13, textMark("Options", "&Larga")},
}};

struct LanguageInfo {
    int numero;
    std::string_view caption;
    std::string_view nome;
};

inline constexpr std::array<LanguageInfo, 3> kLanguages = {{
    {1, textMark("Options", "&Italiano"), textMark("Options", "Italiano")},
    {2, textMark("Options", "&English"), textMark("Options", "English")},
    {3, textMark("Options", "&Latino"), textMark("Options", "Latino")},
}};

} // namespace griglione
