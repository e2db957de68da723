// The settings file ZARMOLO.INI: six "key=value" lines kept between runs.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace griglione {

inline constexpr std::string_view kSettingsFileName = "ZARMOLO.INI";

// What the settings file decides. The level and time check marks are kept as they are on the
// menu: reading may leave several level items checked, and a first run leaves none checked.
struct Settings {
    int timer2Interval = 200;
    std::array<bool, 4> levelChecked{}; // in the order of kLevels
    bool sound = true;
    int tempoPartita = 120;
    std::array<bool, 4> timeChecked{}; // in the order of kMatchLengths
    std::string playerName = "BRIVO";  // UTF-8
    int spessoreLinea = 7;
    int numDizionario = 1;
};

// Applies the lines of a settings file (Windows-1252 bytes) to `settings`, in file order.
void applySettingsFile(std::string_view fileBytes, Settings& settings);

// The whole file, byte for byte, as it is written after every change.
std::string settingsFileBytes(const Settings& settings);

} // namespace griglione
