#include "records/log_summary.h"

#include <algorithm>
#include <unordered_set>

namespace griglione {

LogSummary summarize(const std::vector<MatchEntry>& entries, int numDizionario, int tempoPartita) {
    LogSummary s;
    std::int64_t total = 0;
    std::vector<const MatchEntry*> chosen;
    std::unordered_set<std::string_view> seen;
    for (const MatchEntry& e : entries) {
        if (e.numDizionario != numDizionario || e.tempoPartita != tempoPartita) continue;
        chosen.push_back(&e);
        ++s.matches;
        LevelResults& results = s.perLevel[e.level >= 0 && e.level < 4 ? e.level : 4];
        if (e.punti > e.puntiCPU)
            ++results.wins;
        else if (e.punti < e.puntiCPU)
            ++results.losses;
        else
            ++results.draws;
        s.best = std::max(s.best, e.punti);
        total += e.punti;
        for (std::size_t i = 0; i < kWordLengths; ++i)
            s.wordsPerLength[i] += e.perLunghezza[i];
        if (!e.parolaPiuLunga.empty() && seen.insert(e.parolaPiuLunga).second)
            s.longestWords.push_back({e.parolaPiuLunga, e.when});
    }
    if (s.matches > 0) s.average = static_cast<double>(total) / s.matches;
    std::stable_sort(
        s.longestWords.begin(), s.longestWords.end(),
        [](const LongWord& a, const LongWord& b) { return a.word.size() > b.word.size(); });
    if (s.longestWords.size() > kLongestWordsShown) s.longestWords.resize(kLongestWordsShown);
    const std::size_t first = chosen.size() > kLatestScores ? chosen.size() - kLatestScores : 0;
    for (std::size_t i = first; i < chosen.size(); ++i)
        s.latest.push_back({chosen[i]->when, chosen[i]->punti, chosen[i]->puntiCPU});
    return s;
}

} // namespace griglione
