// The rules of what the screen reader is told: the exact texts, the seconds that are told, and
// when the opponent's count may speak.
#include "core/announcements.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace griglione {
namespace {

TEST(Announcements, TellsTheWordTheRefusedLetterAndTheOutcome) {
    Announcements news;
    EXPECT_EQ(news.word("CAS", 0), "CAS");
    EXPECT_EQ(news.word("", 0), "Parola vuota");
    EXPECT_EQ(news.refusedLetter('H', 0), "H: nessun dado");
    // The heading alone while the score stays; the points and the total once it grows.
    EXPECT_EQ(news.outcome("Parola troppo corta!", "CA", 0, 0), "Parola troppo corta!");
    EXPECT_EQ(news.outcome("Complimenti, parola accettata!", "CASA", 320, 0),
              "CASA: 320 punti, in tutto 320");
    EXPECT_EQ(news.outcome("Complimenti, parola accettata!", "ORO", 500, 0),
              "ORO: 180 punti, in tutto 500");
    // A refused word after an accepted one gains nothing: its heading only.
    EXPECT_EQ(news.outcome("Parola già inserita da te!", "ORO", 500, 0),
              "Parola già inserita da te!");
    // A new deal zeroed the score: the next word counts from 0.
    EXPECT_EQ(news.outcome("Complimenti, parola accettata!", "ODI", 180, 0),
              "ODI: 180 punti, in tutto 180");
}

TEST(Announcements, TellsTheSecondsLeftAtThirtyTenAndFiveOnly) {
    const struct {
        int length, elapsed;
        std::string said;
    } cases[] = {
        {60, 30, "Mancano 30 secondi"},
        {60, 50, "Mancano 10 secondi"},
        {60, 55, "Mancano 5 secondi"},
        {60, 29, ""},
        {60, 56, ""},
        {60, 60, ""},
        {60, 61, ""},
        {30, 0, ""}, // a 30-second match does not start with it
        {30, 20, "Mancano 10 secondi"},
        {5, 0, ""},
    };
    Announcements news;
    for (const auto& c : cases)
        EXPECT_EQ(news.secondsLeft(c.length, c.elapsed, 0), c.said) << c.length << " " << c.elapsed;
}

TEST(Announcements, TellsTheOpponentsCountAtMostEveryFewSecondsAndNeverOverThePlayer) {
    Announcements news;
    constexpr auto gap = Announcements::kOpponentGapMs;
    constexpr auto quiet = Announcements::kQuietAfterPlayerMs;
    EXPECT_EQ(news.opponentNews(0), std::nullopt); // nothing found yet
    news.opponentFound(1);
    EXPECT_EQ(news.opponentNews(100), "Tobia (CPU): 1 parola");
    EXPECT_EQ(news.opponentNews(200), std::nullopt); // told already
    news.opponentFound(2);
    news.opponentFound(3);
    EXPECT_EQ(news.opponentNews(100 + gap - 1), std::nullopt);
    EXPECT_EQ(news.opponentNews(100 + gap), "Tobia (CPU): 3 parole"); // the latest count only
    // The player's own news, and the seconds left, hold the count back for a moment, then it
    // comes: a second notice at once would make the reader drop the first.
    news.opponentFound(4);
    (void)news.word("CA", 100 + 2 * gap - quiet);
    (void)news.secondsLeft(60, 50, 100 + 2 * gap);
    EXPECT_EQ(news.opponentNews(100 + 2 * gap + quiet - 1), std::nullopt);
    EXPECT_EQ(news.opponentNews(100 + 2 * gap + quiet), "Tobia (CPU): 4 parole");
    // A new deal empties the list; its first word is news again, at the usual pace.
    news.opponentFound(0);
    news.opponentFound(1);
    EXPECT_EQ(news.opponentNews(100 + 3 * gap + quiet), "Tobia (CPU): 1 parola");
}

TEST(Announcements, TellsTheEndWithBothScoresAndTheReviewsFilter) {
    EXPECT_EQ(Announcements::endOfMatch("Ha vinto BRIVO!", "BRIVO", 820, "Memo (CPU)", 1),
              "Ha vinto BRIVO! BRIVO 820 punti, Memo (CPU) 1 punto.");
    EXPECT_EQ(Announcements::reviewFilter('R', 2, 0, 12), "Dado R: 2 tue, 0 della CPU, 12 mancate");
    EXPECT_EQ(Announcements::reviewFilter('\0', 3, 5, 20),
              "Tutte le parole: 3 tue, 5 della CPU, 20 mancate");
}

} // namespace
} // namespace griglione
