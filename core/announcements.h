// What a player who cannot see the board is told, and when: the word as it grows, a refused
// letter, a word's outcome, the seconds running low, the opponent's count, the final result.
// The window only hands the texts to the screen reader.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace griglione {

class Announcements {
public:
    // The opponent's count is told at most this often, and never this soon after the player's
    // own news, which it would cut short.
    static constexpr std::int64_t kOpponentGapMs = 10000;
    static constexpr std::int64_t kQuietAfterPlayerMs = 2000;

    // The word as it stands after a typed, pressed or taken-back letter: "CAS".
    std::string word(const std::string& parola, std::int64_t nowMs);
    // A typed letter that no die can take: "H: nessun dado".
    std::string refusedLetter(char letter, std::int64_t nowMs);
    // The outcome of a word from its message's heading: an accepted word (the player's score
    // grew since the last outcome, or since 0 when a new deal zeroed it) is told with its
    // points and the new total instead.
    std::string outcome(const std::string& heading, const std::string& parola, int playerScore,
                        std::int64_t nowMs);
    // Once a second: "Mancano 30 secondi" at 30, 10 and 5 seconds left, nothing otherwise.
    std::string secondsLeft(int tempoPartita, int secondiTrascorsi, std::int64_t nowMs);

    // The opponent's list has grown to `count` words; told later by opponentNews.
    void opponentFound(int count);
    // The opponent's count when it is due: "Tobia (CPU): 3 parole".
    std::optional<std::string> opponentNews(std::int64_t nowMs);

    // "Ha vinto BRIVO! BRIVO 820 punti, Memo (CPU) 640 punti."
    static std::string endOfMatch(const std::string& result, const std::string& player,
                                  int playerScore, const std::string& opponent, int cpuScore);

    // A die chosen in the review (`letter`, or '\0' for all the words again) and the words of
    // each list left: "Dado R: 2 tue, 5 della CPU, 12 mancate".
    static std::string reviewFilter(char letter, int mine, int cpu, int missed);

private:
    std::string playerNews(std::string text, std::int64_t nowMs);

    int m_lastScore = 0;
    int m_toldCount = 0;
    int m_pendingCount = 0;
    std::optional<std::int64_t> m_lastOpponentMs;
    std::optional<std::int64_t> m_lastPlayerMs;
};

} // namespace griglione
