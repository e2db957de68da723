// The result line, the history line and the statistics of the end-of-match window.
#include "core/end_of_match.h"

#include "core/levels.h"
#include "core/number_text.h"
#include "core/player_text.h"

namespace griglione {
namespace {

// A score in the history: right-aligned in five places, with the sign place dropped when the
// digits need it.
std::string scoreField(std::int32_t score) {
    std::string text = numberText(score);
    if (text.size() > 5 && text.front() == ' ') text.erase(0, 1);
    return text.size() >= 5 ? text : rightAligned(text, 5);
}

} // namespace

EndOfMatchTexts MatchStatistics::record(const std::string& humanName,
                                        const std::array<bool, 4>& levelsChecked,
                                        std::int32_t humanScore, std::int32_t cpuScore) {
    ++m_matches;

    // The menu items are tested in this order, so the last checked one names the computer.
    for (const LevelIndex level : {Junior, Principiante, Esperto, Medio})
        if (levelsChecked[level]) m_cpuName = kLevels[level].cpuName;

    EndOfMatchTexts texts;
    texts.humanName = humanName;
    texts.cpuName = m_cpuName;
    texts.humanScore = std::to_string(humanScore);
    texts.cpuScore = std::to_string(cpuScore);

    if (humanScore < cpuScore) {
        texts.result = withArgs(playerText("EndOfMatch", "Ha vinto %1"), {m_cpuName});
        texts.sound = "explode2.wav";
        ++m_cpuWins;
    } else if (humanScore > cpuScore) {
        texts.result = withArgs(playerText("EndOfMatch", "Ha vinto %1!"), {humanName});
        texts.sound = "collapse.wav";
        ++m_humanWins;
    } else {
        texts.result = playerText("EndOfMatch", "Partita PARI!");
        texts.sound = "SND0012.WAV";
        ++m_draws;
    }

    texts.historyLine = rightAligned(" " + numberText(m_matches), 3) + ") " + humanName +
                        scoreField(humanScore) + "   Computer" + scoreField(cpuScore);
    m_history.push_back(texts.historyLine);

    texts.humanWins = numberText(m_humanWins);
    texts.cpuWins = numberText(m_cpuWins);
    texts.draws = numberText(m_draws);
    return texts;
}

} // namespace griglione
