// The opponent's walk replayed with scripted random numbers: the directions and the neighbour test,
// the draw limit, lookups from 3 to 10 letters, words held by either player, the answers, and
// ticks that must not nest.
#include "opponent/opponent_walk.h"

#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <deque>
#include <set>
#include <stdexcept>
#include <tuple>

namespace griglione {
namespace {

using Words = std::vector<std::string>;

// Throws RanOut when a walk asks for more numbers than scripted: it freezes the walk where the
// script ends and catches a walk that draws more than it should.
using RanOut = std::length_error;
struct QueuedRandom : Random {
    std::deque<double> numbers;
    std::vector<double> seeds;
    void reseed(double seconds) override { seeds.push_back(seconds); }
    double next() override {
        if (numbers.empty()) throw RanOut("script ran out");
        const double r = numbers.front();
        numbers.pop_front();
        return r;
    }
    void add(double r, int times = 1) { numbers.insert(numbers.end(), times, r); }
};

// The number that draws die n first, and the one that draws direction d.
constexpr auto die = [](int n) { return (n + 0.5) / 25; };
constexpr auto dir = [](int d) { return (d - 0.5) / 8; };
enum { Left = 1, Right, Up, Down, DownLeft, DownRight, UpLeft, UpRight };

class OpponentWalkTest : public ::testing::Test {
protected:
    OpponentWalkTest() {
        clock.seconds = 1234.5;
        setBoard("ABCDEFGHIJKLMNOPQRSTUVWXY"); // die n shows 'A' + n
    }
    void setBoard(const char* letters) {
        for (int n = 0; n < kCells; ++n)
            state.immagineCella[n] = std::string("zarMmg") + letters[n] + "2.gif";
    }
    // Answers queued in `answers` come before the word set is asked.
    std::string lookup(const std::string& word) {
        lookups.push_back(word);
        if (nestTicks) walk.tick();
        if (answers.empty()) return words.count(word) ? "SI" : "NO";
        const std::string answer = answers.front();
        answers.pop_front();
        return answer;
    }
    // MAREA along the top row, then ZYXWV right to left along the second: ten letters.
    void scriptMareaWalk() {
        setBoard("MAREAVWXYZKLNOPQSTUBCDFGH");
        random.numbers = {die(0)};
        for (int d : {Right, Right, Right, Right, Down, Left, Left, Left, Left})
            random.add(dir(d));
    }

    GameState state;
    QueuedRandom random;
    testing::FixedClock clock;
    testing::FakeView view;
    std::set<std::string> words{"MARE", "MAREA"};
    std::deque<std::string> answers;
    Words lookups;
    bool nestTicks = false; // a tick from inside every lookup and yield
    std::vector<std::int32_t> yieldScores;
    void yielded() {
        yieldScores.push_back(state.puntiCPU);
        if (nestTicks) walk.tick();
    }
    OpponentWalk walk{state,
                      random,
                      clock,
                      [this](const std::string& w) { return lookup(w); },
                      [this] { yielded(); },
                      view};
};

TEST_F(OpponentWalkTest, EachDirectionStepsToItsNeighbourAndNeverWrapsOrLeavesTheBoard) {
    // start, direction, reached (-1: rejected, the walk draws again)
    const std::tuple<int, int, int> cases[] = {
        {12, Left, 11},     {12, Right, 13},     {12, Up, 7},        {12, Down, 17},
        {12, DownLeft, 16}, {12, DownRight, 18}, {12, UpLeft, 6},    {12, UpRight, 8},
        {4, Right, -1},     {5, Left, -1},       {9, DownRight, -1}, {10, DownLeft, -1},
        {5, UpRight, 1},    {0, Up, -1},         {24, Down, -1},     {4, UpRight, -1},
    };
    for (const auto& [start, direction, reached] : cases) {
        SCOPED_TRACE(std::to_string(start) + " direction " + std::to_string(direction));
        random.numbers = {die(start), dir(direction)};
        EXPECT_THROW(walk.tick(), RanOut);
        EXPECT_EQ(walk.cellaCPU(), reached < 0 ? start : reached);
        std::string word(1, char('A' + start));
        if (reached >= 0) word += char('A' + reached);
        EXPECT_EQ(walk.parolaCPU(), word);
    }
}

TEST_F(OpponentWalkTest, ADrawPastTheTwentySixthForOneLetterEndsTheTickWhenItLandsOnANeighbour) {
    // A → B; for the third letter left is the used A, up is off the board, down the free G.
    const std::tuple<const char*, int, int, int, bool> cases[] = {
        {"25 on a used die, then the free one", 0, 25, 0, true},
        {"26 on a used die, then the free one", 0, 26, 0, false},
        {"27 off the board count too but end nothing", 0, 0, 27, false},
        {"the count restarts for every letter", 20, 25, 0, true},
    };
    for (const auto& [name, offBoardBeforeB, usedDraws, offBoardDraws, accepted] : cases) {
        SCOPED_TRACE(name);
        lookups.clear();
        answers = {"BUSY"};
        random.numbers = {die(0)};
        random.add(dir(Up), offBoardBeforeB);
        random.add(dir(Right));
        random.add(dir(Left), usedDraws);
        random.add(dir(Up), offBoardDraws);
        random.add(dir(Down));
        walk.tick();
        EXPECT_TRUE(random.numbers.empty());
        EXPECT_EQ(lookups, accepted ? Words{"ABG"} : Words{});
    }
}

// The first walk scores MARE then MAREA in one tick and stops at ten letters (an eleventh would
// ask for a number the script does not have); a word either player holds ends the whole tick.
// Ticks called from inside the lookup and the yield return at once: no re-seed, no draw.
TEST_F(OpponentWalkTest, MareThenMareaScoreInOneTickUnlessEitherPlayerHoldsAWord) {
    // human, computer, lookedUp (the first prefixes of MAREAZYXWV from three letters on), the
    // computer's words after, its points.
    const std::tuple<Words, Words, std::size_t, Words, std::int32_t> cases[] = {
        {{}, {}, 8, {"mare", "marea"}, 820},
        {{"mare"}, {}, 2, {}, 0},
        {{}, {"mare"}, 2, {"mare"}, 0},
        {{"marea"}, {}, 3, {"mare"}, 320},
    };
    nestTicks = true;
    for (const auto& c : cases) {
        const auto& [human, computer, lookedUp, computerAfter, points] = c;
        state.paroleGiocatore = human;
        state.paroleCPU = computer;
        state.puntiCPU = 0;
        lookups.clear();
        scriptMareaWalk();
        walk.tick();
        Words prefixes;
        for (std::size_t n = 3; n < 3 + lookedUp; ++n)
            prefixes.push_back(std::string("MAREAZYXWV", n));
        EXPECT_EQ(lookups, prefixes);
        EXPECT_EQ(state.paroleCPU, computerAfter);
        EXPECT_EQ(state.puntiCPU, points);
        if (&c != cases) continue;
        EXPECT_EQ(random.seeds, std::vector<double>{1234.5});
        EXPECT_EQ(yieldScores, (std::vector<std::int32_t>{0, 320})); // points come after the yield
        EXPECT_EQ(state.ricercheFallite, 6);
        EXPECT_EQ(state.ultimoTentativoCPU, " 6 MAREAZYXWV");
    }
}

TEST_F(OpponentWalkTest, EveryAnswerButSiAndBusyIsCountedAsUnsuccessful) {
    // answer, count before, label (empty: the tick ended and left the count and the label alone)
    const std::tuple<const char*, std::int32_t, const char*> cases[] = {
        {"NO", 0, " 1 ABC"}, {"", 41, " 42 ABC"}, {"si", 99999, " 100000 ABC"}, {"BUSY", 7, ""}};
    for (const auto& [answer, before, label] : cases) {
        SCOPED_TRACE(std::string("answer \"") + answer + "\"");
        state.ricercheFallite = before;
        state.ultimoTentativoCPU = "";
        lookups.clear();
        answers = {answer, "BUSY"};
        random.numbers = {die(0)};
        random.add(dir(Right), 3);
        walk.tick();
        const bool counted = *label != '\0';
        EXPECT_EQ(lookups.size(), counted ? 2u : 1u);
        EXPECT_EQ(state.ricercheFallite, before + (counted ? 1 : 0));
        EXPECT_EQ(state.ultimoTentativoCPU, label);
        EXPECT_TRUE(state.paroleCPU.empty());
    }
}

} // namespace
} // namespace griglione
