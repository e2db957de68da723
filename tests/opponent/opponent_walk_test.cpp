// The opponent's walk replayed with scripted random numbers: the directions and the neighbour test,
// the draw limit, lookups from 3 to 10 letters, words held by either player, the answers, and
// ticks that must not nest.
#include "opponent/opponent_walk.h"

#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <set>
#include <stdexcept>

namespace griglione {
namespace {

// Thrown when a walk asks for more numbers than scripted: it freezes the walk where the script
// ends and catches a walk that draws more than it should.
struct RanOut : std::runtime_error {
    RanOut() : std::runtime_error("scripted random numbers ran out") {}
};

struct QueuedRandom : Random {
    std::deque<double> numbers;
    std::vector<double> seeds;
    void reseed(double seconds) override { seeds.push_back(seconds); }
    double next() override {
        if (numbers.empty()) throw RanOut();
        const double r = numbers.front();
        numbers.pop_front();
        return r;
    }
    void add(double r, int times = 1) { numbers.insert(numbers.end(), times, r); }
};

// The number that draws die n first, and the one that draws direction d.
double die(int n) {
    return (n + 0.5) / 25;
}
double dir(int d) {
    return (d - 0.5) / 8;
}
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
    std::string lookup(const std::string& word) {
        lookups.push_back(word);
        if (lookupAction) lookupAction();
        if (!answers.empty()) {
            std::string answer = answers.front();
            answers.pop_front();
            return answer;
        }
        return words.count(word) ? "SI" : "NO";
    }
    // MAREA along the top row, then ZYXWV right to left along the second: ten letters.
    void scriptMareaWalk() {
        setBoard("MAREAVWXYZKLNOPQSTUBCDFGH");
        random.add(die(0));
        for (int d : {Right, Right, Right, Right, Down, Left, Left, Left, Left})
            random.add(dir(d));
    }

    GameState state;
    QueuedRandom random;
    testing::FixedClock clock;
    testing::FakeView view;
    std::set<std::string> words{"MARE", "MAREA"};
    std::deque<std::string> answers; // given before the word set is asked
    std::vector<std::string> lookups;
    std::function<void()> lookupAction;
    std::vector<std::int32_t> yieldScores;
    std::function<void()> yieldAction;
    OpponentWalk walk{state,
                      random,
                      clock,
                      [this](const std::string& w) { return lookup(w); },
                      [this] {
                          yieldScores.push_back(state.puntiCPU);
                          if (yieldAction) yieldAction();
                      },
                      view};
};

TEST_F(OpponentWalkTest, EachDirectionStepsToItsNeighbourAndNeverWrapsOrLeavesTheBoard) {
    const struct {
        int start, direction, reached; // -1: rejected, the walk draws again
    } cases[] = {
        {12, Left, 11},     {12, Right, 13},     {12, Up, 7},        {12, Down, 17},
        {12, DownLeft, 16}, {12, DownRight, 18}, {12, UpLeft, 6},    {12, UpRight, 8},
        {4, Right, -1},     {5, Left, -1},       {9, DownRight, -1}, {10, DownLeft, -1},
        {5, UpRight, 1},    {0, Up, -1},         {24, Down, -1},     {4, UpRight, -1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.start) + " direction " + std::to_string(c.direction));
        random.add(die(c.start));
        random.add(dir(c.direction));
        EXPECT_THROW(walk.tick(), RanOut);
        EXPECT_EQ(walk.cellaCPU(), c.reached < 0 ? c.start : c.reached);
        std::string word(1, char('A' + c.start));
        if (c.reached >= 0) word += char('A' + c.reached);
        EXPECT_EQ(walk.parolaCPU(), word);
        EXPECT_FALSE(walk.running());
    }
}

TEST_F(OpponentWalkTest, ADrawPastTheTwentySixthForOneLetterEndsTheTickWhenItLandsOnANeighbour) {
    // A → B; for the third letter left is the used A, up is off the board, down the free G.
    const struct {
        const char* name;
        int offBoardBeforeB, usedDraws, offBoardDraws;
        bool accepted;
    } cases[] = {
        {"25 on a used die, then the free one", 0, 25, 0, true},
        {"26 on a used die, then the free one", 0, 26, 0, false},
        {"27 off the board count too but end nothing", 0, 0, 27, false},
        {"the count restarts for every letter", 20, 25, 0, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        lookups.clear();
        answers = {"BUSY"};
        random.add(die(0));
        random.add(dir(Up), c.offBoardBeforeB);
        random.add(dir(Right));
        random.add(dir(Left), c.usedDraws);
        random.add(dir(Up), c.offBoardDraws);
        random.add(dir(Down));
        walk.tick();
        EXPECT_TRUE(random.numbers.empty());
        EXPECT_EQ(lookups,
                  c.accepted ? std::vector<std::string>{"ABG"} : std::vector<std::string>{});
    }
}

TEST_F(OpponentWalkTest, MareThenMareaScoreInOneTickAndTheWalkStopsAtTenLetters) {
    scriptMareaWalk();
    walk.tick(); // an eleventh letter would ask for a number the script does not have
    EXPECT_EQ(random.seeds, std::vector<double>{1234.5});
    EXPECT_EQ(lookups, (std::vector<std::string>{"MAR", "MARE", "MAREA", "MAREAZ", "MAREAZY",
                                                 "MAREAZYX", "MAREAZYXW", "MAREAZYXWV"}));
    EXPECT_EQ(state.paroleCPU, (std::vector<std::string>{"mare", "marea"}));
    EXPECT_EQ(state.puntiCPU, 820);
    EXPECT_EQ(yieldScores, (std::vector<std::int32_t>{0, 320})); // the points come after the yield
    EXPECT_EQ(state.ricercheFallite, 6);
    EXPECT_EQ(state.ultimoTentativoCPU, " 6 MAREAZYXWV");
}

TEST_F(OpponentWalkTest, AWordEitherPlayerHoldsEndsTheWholeTick) {
    const struct {
        std::vector<std::string> human, computer, lookups, computerAfter;
        std::int32_t points;
    } cases[] = {
        {{"mare"}, {}, {"MAR", "MARE"}, {}, 0},
        {{}, {"mare"}, {"MAR", "MARE"}, {"mare"}, 0},
        {{"marea"}, {}, {"MAR", "MARE", "MAREA"}, {"mare"}, 320},
    };
    for (const auto& c : cases) {
        state.paroleGiocatore = c.human;
        state.paroleCPU = c.computer;
        state.puntiCPU = 0;
        lookups.clear();
        random.numbers.clear();
        scriptMareaWalk();
        walk.tick();
        EXPECT_EQ(lookups, c.lookups);
        EXPECT_EQ(state.paroleCPU, c.computerAfter);
        EXPECT_EQ(state.puntiCPU, c.points);
    }
}

TEST_F(OpponentWalkTest, EveryAnswerButSiAndBusyIsCountedAsUnsuccessful) {
    const struct {
        const char* answer;
        std::int32_t before;
        const char* label; // empty: the tick ended and left the count and the label alone
    } cases[] = {
        {"NO", 0, " 1 ABC"}, {"", 41, " 42 ABC"}, {"si", 99999, " 100000 ABC"}, {"BUSY", 7, ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string("answer \"") + c.answer + "\"");
        state.ricercheFallite = c.before;
        state.ultimoTentativoCPU = "";
        lookups.clear();
        answers = {c.answer, "BUSY"};
        random.numbers.clear();
        random.add(die(0));
        random.add(dir(Right), 3);
        walk.tick();
        const bool counted = *c.label != '\0';
        EXPECT_EQ(lookups.size(), counted ? 2u : 1u);
        EXPECT_EQ(state.ricercheFallite, c.before + (counted ? 1 : 0));
        EXPECT_EQ(state.ultimoTentativoCPU, c.label);
        EXPECT_TRUE(state.paroleCPU.empty());
    }
}

TEST_F(OpponentWalkTest, ATickCalledFromInsideATickReturnsAtOnce) {
    int inner = 0;
    yieldAction = [&] {
        ++inner;
        walk.tick();
    };
    lookupAction = [&] { walk.tick(); };
    scriptMareaWalk();
    walk.tick();
    EXPECT_EQ(inner, 2);
    EXPECT_EQ(random.seeds.size(), 1u); // the nested calls neither re-seeded nor drew
    EXPECT_EQ(state.puntiCPU, 820);
    EXPECT_EQ(lookups.size(), 8u);
}

} // namespace
} // namespace griglione
