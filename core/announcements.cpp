// The texts and the timing of what the screen reader is given to say.
#include "core/announcements.h"

#include "core/player_text.h"

namespace griglione {
namespace {

std::string number(int n) {
    return std::to_string(n);
}

std::string points(int n) {
    return n == 1 ? playerText("Announcements", "1 punto")
                  : withArgs(playerText("Announcements", "%1 punti"), {number(n)});
}

} // namespace

std::string Announcements::playerNews(std::string text, std::int64_t nowMs) {
    m_lastPlayerMs = nowMs;
    return text;
}

std::string Announcements::word(const std::string& parola, std::int64_t nowMs) {
    return playerNews(parola.empty() ? playerText("Announcements", "Parola vuota") : parola, nowMs);
}

std::string Announcements::refusedLetter(char letter, std::int64_t nowMs) {
    return playerNews(
        withArgs(playerText("Announcements", "%1: nessun dado"), {std::string(1, letter)}), nowMs);
}

std::string Announcements::outcome(const std::string& heading, const std::string& parola,
                                   int playerScore, std::int64_t nowMs) {
    const int gained = playerScore - (playerScore < m_lastScore ? 0 : m_lastScore);
    m_lastScore = playerScore;
    if (gained <= 0) return playerNews(heading, nowMs);
    return playerNews(withArgs(playerText("Announcements", "%1: %2, in tutto %3"),
                               {parola, points(gained), number(playerScore)}),
                      nowMs);
}

std::string Announcements::secondsLeft(int tempoPartita, int secondiTrascorsi, std::int64_t nowMs) {
    const int left = tempoPartita - secondiTrascorsi;
    if (secondiTrascorsi <= 0 || (left != 30 && left != 10 && left != 5)) return {};
    return playerNews(withArgs(playerText("Announcements", "Mancano %1 secondi"), {number(left)}),
                      nowMs);
}

void Announcements::opponentFound(int count) {
    // A new deal empties the list: the count starts again.
    if (count < m_toldCount) m_toldCount = 0;
    m_pendingCount = count;
}

std::optional<std::string> Announcements::opponentNews(std::int64_t nowMs) {
    if (m_pendingCount == m_toldCount) return std::nullopt;
    if (m_lastOpponentMs && nowMs - *m_lastOpponentMs < kOpponentGapMs) return std::nullopt;
    if (m_lastPlayerMs && nowMs - *m_lastPlayerMs < kQuietAfterPlayerMs) return std::nullopt;
    m_lastOpponentMs = nowMs;
    m_toldCount = m_pendingCount;
    const std::string words = m_toldCount == 1 ? playerText("Announcements", "1 parola")
                                               : withArgs(playerText("Announcements", "%1 parole"),
                                                          {number(m_toldCount)});
    return withArgs(playerText("Announcements", "Tobia (CPU): %1"), {words});
}

std::string Announcements::endOfMatch(const std::string& result, const std::string& player,
                                      int playerScore, const std::string& opponent, int cpuScore) {
    return withArgs(playerText("Announcements", "%1 %2 %3, %4 %5."),
                    {result, player, points(playerScore), opponent, points(cpuScore)});
}

std::string Announcements::reviewFilter(char letter, int mine, int cpu, int missed) {
    const std::string counts =
        withArgs(playerText("Announcements", "%1 tue, %2 della CPU, %3 mancate"),
                 {number(mine), number(cpu), number(missed)});
    if (!letter) return withArgs(playerText("Announcements", "Tutte le parole: %1"), {counts});
    return withArgs(playerText("Announcements", "Dado %1: %2"), {std::string(1, letter), counts});
}

} // namespace griglione
