// The end-of-match window's reckoning: who won, the history of the run's matches and the count
// of matches won, lost and drawn. It lives as long as the program; nothing is written to a file.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace griglione {

// Everything the window shows after one match, ready to put into its labels.
struct EndOfMatchTexts {
    std::string result;     // Label1
    std::string sound;      // the wave file that announces the result
    std::string humanName;  // Label3(0)
    std::string cpuName;    // Label3(1)
    std::string humanScore; // Label4(0), plain decimal
    std::string cpuScore;   // Label4(1), plain decimal
    std::string historyLine;
    std::string humanWins; // Label9
    std::string cpuWins;   // Label10
    std::string draws;     // Label11
    bool operator==(const EndOfMatchTexts&) const = default;
};

class MatchStatistics {
public:
    // One ended match. `levelsChecked` are the level menu items in kLevels order; with none
    // checked the computer keeps the name it had ("(Computer)" at first).
    //
    // Scores stay 32-bit past 32767: the winner is decided on the true values, and a history
    // score longer than its five places is shown whole rather than cut.
    EndOfMatchTexts record(const std::string& humanName, const std::array<bool, 4>& levelsChecked,
                           std::int32_t humanScore, std::int32_t cpuScore);

    // The history lines, oldest first.
    const std::vector<std::string>& history() const { return m_history; }
    std::int32_t matches() const { return m_matches; }
    std::int32_t humanWins() const { return m_humanWins; }
    std::int32_t cpuWins() const { return m_cpuWins; }
    std::int32_t draws() const { return m_draws; }

private:
    std::string m_cpuName = "(Computer)";
    std::vector<std::string> m_history;
    std::int32_t m_matches = 0;
    std::int32_t m_humanWins = 0;
    std::int32_t m_cpuWins = 0;
    std::int32_t m_draws = 0;
};

} // namespace griglione
