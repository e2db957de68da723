// The settings file: the reading traps (key anywhere in the line, case-sensitive keys tested in a
// fixed order, the value after the first "=", old-style numbers) and the exact bytes written.
#include "core/settings.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

Settings read(std::string_view file) {
    Settings s;
    applySettingsFile(file, s);
    return s;
}

TEST(SettingsFile, TimesAndLevelsCheckTheirItemOrTheSecondOne) {
    const struct {
        const char* line;
        int value; // tempoPartita, or the interval of Timer2
        int item;
    } cases[] = {
        {"Tempo=30", 60, 0},       {"Tempo=60", 90, 1},
        {"Tempo=90", 120, 2},      {"Tempo=270", 300, 3},
        {"Tempo=90 ", 90, 1},      {"Tempo=  270", 300, 3},
        {"Tempo=120", 90, 1},      {"Tempo=", 90, 1},
        {"Tempo=abc", 90, 1},      {"Tempo=090", 90, 1},
        {"xxTempo=30yy", 90, 1},   {"Giocatore1=Tempo=30", 90, 1},
        {"Livello=100", 100, 3},   {"Livello=300", 300, 2},
        {"Livello=1000", 1000, 0}, {"Livello=750", 500, 1},
        {"Livello=", 500, 1},      {"Livello= 300", 300, 2},
        {"Livello=99.5", 100, 3},  {"Livello=1000abc", 1000, 0},
        {"Livello=1e99", 500, 1},  {"Livello=99999999999999", 500, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.line);
        const Settings s = read(c.line);
        const bool time = std::string_view(c.line).find("Tempo") != std::string_view::npos;
        std::array<bool, 4> checked{};
        checked[c.item] = true;
        EXPECT_EQ(time ? s.tempoPartita : s.timer2Interval, c.value);
        EXPECT_EQ(time ? s.timeChecked : s.levelChecked, checked);
    }
    // Earlier level checks stay checked and the last interval wins.
    const Settings two = read("Livello=100\r\nLivello=1000\r\n");
    EXPECT_EQ(two.timer2Interval, 1000);
    EXPECT_EQ(two.levelChecked, (std::array<bool, 4>{true, false, false, true}));
}

TEST(SettingsFile, KeysAreCaseSensitiveAndFoundAnywhere) {
    const struct {
        const char* file;
        bool sound;
        std::string name;
        int spessore, dizionario;
    } cases[] = {
        {"Suono=si", true, "BRIVO", 7, 1},
        {"Suono=NO", false, "BRIVO", 7, 1},
        {"Suono=SI ", false, "BRIVO", 7, 1},
        {"SUONO=NO", true, "BRIVO", 7, 1},
        {"Giocatore1=tempo=30", true, "TEMPO=30", 7, 1},
        {"Giocatore1= mario rossi ", true, " MARIO ROSSI ", 7, 1},
        {"Giocatore1=niccol\xF2", true, "NICCOLÒ", 7, 1},
        {"SpessoreLinea= 13 ", true, "BRIVO", 13, 1},
        {"SpessoreLinea=0.5", true, "BRIVO", 0, 1},
        {"SpessoreLinea=1.5", true, "BRIVO", 2, 1},
        {"SpessoreLinea=99999999999", true, "BRIVO", 7, 1},
        {"Dizionario= 2 ", true, "BRIVO", 7, 2},
        {"Dizionario=7", true, "BRIVO", 7, 1},
        {"Suono=NO\nDizionario=2\rGiocatore1=ugo", false, "UGO", 7, 2},
        {"garbage line\r\n\r\n=\r\n", true, "BRIVO", 7, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.file);
        const Settings s = read(c.file);
        EXPECT_EQ(s.sound, c.sound);
        EXPECT_EQ(s.playerName, c.name);
        EXPECT_EQ(s.spessoreLinea, c.spessore);
        EXPECT_EQ(s.numDizionario, c.dizionario);
    }
}

TEST(SettingsFile, WritesSixLinesInTheirOrderAndFormInWindows1252) {
    const Settings s{.sound = false,
                     .tempoPartita = 300,
                     .playerName = "NICCOLÒ",
                     .spessoreLinea = 13,
                     .numDizionario = 3};
    EXPECT_EQ(settingsFileBytes(s), "Livello=200\r\nSuono=NO\r\nTempo=270\r\nGiocatore1=NICCOL\xD2"
                                    "\r\nSpessoreLinea= 13 \r\nDizionario= 3 \r\n");
}

} // namespace
} // namespace griglione
