// What the statistics window shows of the match log for one language and match length: results
// against each opponent level, best and average score, the longest words found, the latest
// scores and the player's words by length.
#pragma once

#include "records/match_log.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace griglione {

inline constexpr std::size_t kLatestScores = 100;
inline constexpr std::size_t kLongestWordsShown = 10;

struct LevelResults {
    std::int32_t wins = 0;
    std::int32_t draws = 0;
    std::int32_t losses = 0;
    std::int32_t matches() const { return wins + draws + losses; }
};

struct LongWord {
    std::string word; // lower case
    std::string when; // the first match that found it
};

struct ScorePair {
    std::string when;
    std::int32_t punti = 0;
    std::int32_t puntiCPU = 0;
};

struct LogSummary {
    std::int32_t matches = 0;
    // In kLevels order, then the matches played with no level chosen.
    std::array<LevelResults, 5> perLevel{};
    std::int32_t best = 0;
    double average = 0;
    // Longest first; of equal length, the one found first. Each word once.
    std::vector<LongWord> longestWords;
    // The last kLatestScores matches, oldest first.
    std::vector<ScorePair> latest;
    // The player's words of 3 to 10 letters over all the matches.
    std::array<std::int64_t, kWordLengths> wordsPerLength{};
};

LogSummary summarize(const std::vector<MatchEntry>& entries, int numDizionario, int tempoPartita);

} // namespace griglione
