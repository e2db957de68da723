#include "core/ansi_text.h"
#include "core/atomic_file.h"
#include "core/end_of_match.h"
#include "core/file_names.h"
#include "core/interface_language.h"
#include "core/letter_flash.h"
#include "core/match_clock.h"
#include "core/mixing_random.h"
#include "core/number_text.h"
#include "core/player_text.h"
#include "core/settings.h"
#include "core/switched_sounds.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace griglione {
namespace {

// The Windows-1252 boundary: accented letters and the typographic block 0x80–0x9F both ways,
// characters outside the code page, and the case changes.

TEST(AnsiText, ConvertsBothWaysAndChangesCase) {
    const std::pair<std::string, std::string> cases[] = {
        {"città", "citt\xE0"}, {"è", "\xE8"},      {"€", "\x80"}, {"œ", "\x9C"},
        {"“x”", "\x93x\x94"},  {"plain", "plain"}, {"ÿ", "\xFF"}, {"\r\n", "\r\n"},
    };
    for (const auto& [utf8, ansi] : cases) {
        EXPECT_EQ(toAnsi(utf8), ansi) << utf8;
        EXPECT_EQ(fromAnsi(ansi), utf8) << utf8;
    }
    // Outside the code page, bytes that are not UTF-8 at all, and a cut sequence.
    EXPECT_EQ(toAnsi("Ω∑|\xFF|b|a\xC3"), "??|?|b|a?");
    EXPECT_EQ(upperAnsi("brivo \xE0\xE8\xF2\xF7\xFF\x9C"), "BRIVO \xC0\xC8\xD2\xF7\x9F\x8C");
    EXPECT_EQ(lowerAscii("CASA1"), "casa1");
    EXPECT_EQ(upperAscii("casa\xE0"), "CASA\xE0");
}

// The end-of-match reckoning: result lines and sounds, the history line's fixed columns, the
// statistics, and which level names the computer.

// The level items checked: Junior, Principiante, Medio, Esperto.
constexpr std::array<bool, 4> kNone{}, kMedio{false, false, true, false},
    kMedioEsperto{false, false, true, true}, kJuniorTapo{true, true, false, false},
    kEsperto{false, false, false, true};

// Every text of the window for one match, joined with '|' so that a run of matches reads as a
// table.
std::string joined(const EndOfMatchTexts& t) {
    std::string line;
    for (const std::string* s : {&t.result, &t.sound, &t.humanName, &t.cpuName, &t.humanScore,
                                 &t.cpuScore, &t.historyLine, &t.humanWins, &t.cpuWins, &t.draws})
        line += *s + "|";
    return line;
}

TEST(EndOfMatchTest, ARunOfMatchesShowsEveryTextOfTheWindow) {
    const struct {
        const char* name;
        std::array<bool, 4> levels;
        std::int32_t human, cpu;
        const char* texts;
    } run[] = {
        {"BRIVO", kNone, 0, 180,
         "Ha vinto (Computer)|explode2.wav|BRIVO|(Computer)|0|180|"
         "  1) BRIVO    0   Computer  180| 0| 1| 0|"},
        {"BRIVO", kMedio, 1240, 980,
         "Ha vinto BRIVO!|collapse.wav|BRIVO|Memo (CPU)|1240|980|"
         "  2) BRIVO 1240   Computer  980| 1| 1| 0|"},
        {"BRIVO", kNone, 0, 0, // no level checked: the computer keeps its last name
         "Partita PARI!|SND0012.WAV|BRIVO|Memo (CPU)|0|0|"
         "  3) BRIVO    0   Computer    0| 1| 1| 1|"},
        // Medio is tested after Esperto; scores past 16 bits are compared and shown whole.
        {"Anna Maria", kMedioEsperto, 180, 12400,
         "Ha vinto Memo (CPU)|explode2.wav|Anna Maria|Memo (CPU)|180|12400|"
         "  4) Anna Maria  180   Computer12400| 1| 2| 1|"},
        {"", kJuniorTapo, 2000, 2000,
         "Partita PARI!|SND0012.WAV||Tapo (CPU)|2000|2000|"
         "  5)  2000   Computer 2000| 1| 2| 2|"},
        {"BO", kEsperto, 40000, 32768,
         "Ha vinto BO!|collapse.wav|BO|Sapienzo (CPU)|40000|32768|"
         "  6) BO40000   Computer32768| 2| 2| 2|"},
    };
    MatchStatistics statistics;
    std::vector<std::string> lines;
    for (const auto& m : run) {
        const EndOfMatchTexts texts = statistics.record(m.name, m.levels, m.human, m.cpu);
        EXPECT_EQ(joined(texts), m.texts);
        lines.push_back(texts.historyLine);
    }
    EXPECT_EQ(statistics.history(), lines);
}

// Where an installed game reads and writes: the choice of folder, the search through the
// player's folder and the shipped data, and writes that never land among the shipped files.

namespace fs = std::filesystem;

class FileSearchTest : public ::testing::Test {
protected:
    griglione::testing::TempFolder tree;
    fs::path program = tree.path() / "games", data = tree.path() / "share/games/griglione",
             player = tree.path() / "home/griglione";

    void SetUp() override {
        for (const fs::path& folder : {program, player, data})
            fs::create_directories(folder);
        setFileSearchOrder({player, data});
    }
    void TearDown() override { setFileSearchOrder({}); }
    static void put(const fs::path& file, const std::string& bytes) {
        std::ofstream(file, std::ios::binary) << bytes;
    }
};

TEST_F(FileSearchTest, ChoosesTheFolderFromWritabilityAndTheDataBesideTheProgram) {
    const struct {
        bool writable, dataBeside;
        fs::path working, shipped;
    } cases[] = {
        {true, false, program, {}},      // portable: as ever, everything beside the program
        {false, true, player, data},     // installed, for an ordinary user
        {true, true, player, data},      // installed, started by root who can write anywhere
        {false, false, player, program}, // a read-only portable copy still reads its own files
    };
    for (const auto& c : cases) {
        fs::remove_all(tree.path() / "share");
        if (c.dataBeside) fs::create_directories(data);
        const auto order =
            chooseFileSearchOrder(program, c.writable, "../share/games/griglione", player);
        EXPECT_EQ(std::pair(order.playerFolder, order.dataFolder), std::pair(c.working, c.shipped))
            << c.writable << c.dataBeside;
    }
}

TEST_F(FileSearchTest, ReadsFromThePlayerThenTheDataAndWritesOnlyIntoThePlayersFolder) {
    put(player / "zarmolo.ini", "own");
    put(data / "ZARMOLO.INI", "shipped");
    put(data / "SLESSICO.1", "shipped");
    put(data / "zarMolo.HIS", "A, 1 \r\n");
    EXPECT_EQ(resolveFileName(player, "ZARMOLO.INI"), player / "zarmolo.ini"); // any case
    EXPECT_EQ(resolveFileName(player, "slessico.1"), data / "SLESSICO.1");
    EXPECT_EQ(resolveFileName(player, "ZarmPriv.1"), player / "ZarmPriv.1"); // to be written
    EXPECT_TRUE(writeFileAtomically(resolveFileName(player, "SLESSICO.1"), "rebuilt"));
    EXPECT_TRUE(appendToFile(resolveFileName(player, "zarMolo.HIS"), "B, 2 \r\n"));

    EXPECT_EQ(readWholeFile(player / "SLESSICO.1"), "rebuilt");
    EXPECT_EQ(readWholeFile(player / "zarMolo.HIS"), "A, 1 \r\nB, 2 \r\n");
    EXPECT_EQ(readWholeFile(data / "SLESSICO.1"), "shipped");
    EXPECT_EQ(readWholeFile(data / "zarMolo.HIS"), "A, 1 \r\n");
}

// A folder listed while a name was missing is listed again once the folder changes, even when
// its last listing is old enough to be trusted.
TEST_F(FileSearchTest, FindsAFileMadeAfterTheFolderWasListed) {
    setFileSearchOrder({});
    for (const char* made : {"zarmpriv.1", "ZARMPRIV.1"}) {
        fs::remove(player / "zarmpriv.1");
        fs::last_write_time(player, fs::file_time_type::clock::now() - std::chrono::hours(1));
        EXPECT_EQ(resolveFileName(player, "ZarmPriv.1"), player / "ZarmPriv.1");
        put(player / made, "CANE\r\n");
        EXPECT_EQ(resolveFileName(player, "ZarmPriv.1"), player / made);
    }
}

// The interface language: the first of Italian and English in the system's order of preference,
// whatever the region and encoding; English for any other language and for none at all.

TEST(InterfaceLanguage, FollowsTheFirstOfItalianAndEnglishThatTheSystemNames) {
    using enum InterfaceLanguage;
    const std::pair<std::vector<std::string>, InterfaceLanguage> cases[] = {
        {{"it_CH.UTF-8"}, Italian},    {{"en-GB", "it-IT"}, English}, {{"it", "en-US"}, Italian},
        {{"de-DE", "de"}, English},    {{"de", "it@euro"}, Italian},  {{}, English},
        {{"iu", "itx", "en"}, English}};
    for (const auto& [preferred, language] : cases)
        EXPECT_EQ(chooseInterfaceLanguage(preferred), language)
            << ::testing::PrintToString(preferred);
}

// A translated pattern takes its arguments in one pass: an argument is never read as a
// placeholder, and what is not a placeholder of a given argument stays as written.
TEST(PlayerText, FillsPlaceholdersOnceAndLeavesTheRest) {
    EXPECT_EQ(withArgs("%2 e %1: %1", {"a%2", "b"}), "b e a%2: a%2");
    EXPECT_EQ(withArgs("100% %3 %0 %", {"x"}), "100% %3 %0 %");
}

// The message window's headline: which letter changes at each step and to which colours.

TEST(LetterFlash, StepsThroughLettersAndColours) {
    const std::tuple<int, int, int, int> expected[] = {
        {1, 0, 1, 14},  {2, 1, 2, 13},  {5, 4, 5, 10},  {6, 0, 6, 9},
        {15, 4, 15, 0}, {16, 0, 1, 14}, {20, 4, 5, 10},
    };
    LetterFlash flash;
    int step = 0;
    for (const auto& [at, letter, foreground, background] : expected) {
        FlashStep s{};
        for (; step < at; ++step)
            s = flash.step();
        EXPECT_EQ(std::tie(s.letter, s.foreground, s.background),
                  std::tie(letter, foreground, background))
            << at;
    }
}

// The match clock: the end on the tick after the match length, the bar and label on the way,
// and the start message's four lines.

// The bar grows in proportion and halves to even.
TEST(MatchClock, ASixtySecondMatchEndsOnItsSixtyFirstTickWithTheBarFull) {
    GameState state;
    state.tempoPartita = 60;
    for (int tick = 1; tick <= 60; ++tick) {
        ASSERT_FALSE(countSecond(state)) << tick;
        EXPECT_EQ(secondsLabel(state.secondiTrascorsi), std::to_string(tick) + "s");
    }
    EXPECT_TRUE(countSecond(state));
    const std::array<int, 4> bars[] = {{107, 60, 60, 107}, {100, 60, 3, 5},  {105, 60, 2, 4},
                                       {105, 60, 6, 10},   {100, 300, 4, 1}, {100, 0, 5, 0}};
    for (const auto& [inner, tempo, seconds, width] : bars)
        EXPECT_EQ(timeBarWidth(inner, tempo, seconds), width)
            << inner << "/" << tempo << "*" << seconds;
}

TEST(MatchClock, StartMessageNamesLengthLanguageAndTheLastCheckedLevelInItsOrder) {
    GameState state;
    state.tempoPartita = 120;
    state.nomeDizionario = "Italiano";
    const struct {
        std::array<bool, 4> checks;
        const char* level;
    } cases[] = {{{1, 0, 0, 0}, "Junior (Birillo)"},
                 {{0, 0, 0, 0}, ""},
                 {{0, 0, 1, 1}, "Medio (Memo)"},
                 {{1, 1, 0, 0}, "Principiante (Tapo)"}};
    for (const auto& c : cases)
        EXPECT_EQ(startMessage(state, c.checks),
                  (Messaggio{"START", "Inizio partita",
                             std::string("Si inizia una nuova partita di 120 secondi.\r\n"
                                         "Il dizionario usato è : Italiano\r\n"
                                         "Il livello dell'avversario è : ") +
                                 c.level + "\r\nCliccare il pulsante <OK> per giocare."}));
}

// The old number forms: the sign place, halves to even, and the forgiving reading of a number.

TEST(NumberText, RoundsHalvesToEven) {
    const std::pair<double, int> cases[] = {{0.5, 0},   {1.5, 2},    {2.5, 2},    {-0.5, 0},
                                            {-1.5, -2}, {2.4999, 2}, {2.5001, 3}, {7, 7}};
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(roundHalfEven(value), expected) << value;
    EXPECT_FALSE(roundHalfEven(3e9));
    EXPECT_FALSE(roundHalfEven(std::numeric_limits<double>::infinity()));
}

TEST(NumberText, ReadsTheLeadingNumber) {
    const std::pair<const char*, double> cases[] = {
        {"", 0},    {"abc", 0},  {"  42", 42},   {"42abc", 42}, {"-3.5x", -3.5},
        {"+7", 7},  {".5", 0.5}, {"1.2.3", 1.2}, {"- 4", 0},    {"\t4", 0},
        {"1e5", 1}, {"0007", 7}, {" 1 2", 1},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_DOUBLE_EQ(leadingNumber(text), expected) << text;
}

TEST(NumberText, GroupsThousandsWithThePoint) {
    const std::tuple<std::int64_t, int, const char*> cases[] = {
        {1240, 5, "01.240"},  {0, 5, "00.000"},         {0, 0, ""},
        {999, 0, "999"},      {1000, 0, "1.000"},       {147805, 0, "147.805"},
        {-1240, 0, "-1.240"}, {1234567, 0, "1.234.567"}};
    for (const auto& [n, minDigits, text] : cases)
        EXPECT_EQ(groupedNumber(n, minDigits), text) << n << " " << minDigits;
}

// The generator's re-seed mixes the clock into its state: the same clock reading twice must not
// repeat the draws, and the numbers stay in [0, 1) and spread over it.

TEST(MixingRandom, DrawsSpreadOverZeroToOneAndTheSameClockReadingDoesNotRepeatThem) {
    MixingRandom random(42);
    std::array<int, 10> buckets{};
    for (int i = 0; i < 10000; ++i) {
        const double r = random.next();
        ASSERT_TRUE(r >= 0.0 && r < 1.0) << r;
        ++buckets[static_cast<std::size_t>(r * 10)];
    }
    for (int count : buckets)
        EXPECT_NEAR(count, 1000, 150);
    std::set<double> draws;
    for (int i = 0; i < 25; ++i) {
        random.reseed(43200.25);
        draws.insert(random.next());
    }
    EXPECT_EQ(draws.size(), 25u);
}

// The settings file: the reading traps (key anywhere in the line, case-sensitive keys tested in a
// fixed order, the value after the first "=", old-style numbers) and the exact bytes written.

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

// The sound switch is read at every effect; the beep ignores it.

TEST(SwitchedSounds, EffectsFollowTheSwitchFromTheNextCallOn) {
    griglione::testing::FakeSounds player;
    bool on = false;
    SwitchedSounds sounds(player, [&on] { return on; });
    sounds.suona("vinci.wav");
    sounds.beep();
    EXPECT_EQ(player.played, std::vector<std::string>{"beep"});
    on = true;
    sounds.suona("vinci.wav");
    EXPECT_EQ(player.played, (std::vector<std::string>{"beep", "vinci.wav"}));
}

} // namespace
} // namespace griglione
