// The opponent's walk replayed with scripted random numbers: the neighbour test at the edges, the
// draw limit, lookups from 3 to 10 letters, words held by either player, "BUSY" from a real
// dictionary whose files are closed during a lookup, and ticks that must not nest.
#include "opponent/opponent_walk.h"

#include "dictionary/dictionary.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace griglione {
namespace {

using testing::FakeView;
using testing::FixedClock;

// Thrown when a walk asks for more numbers than the test scripted: it freezes the walk where the
// script ends and catches a walk that draws more than it should.
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

// The number that draws die n first, and the one that draws direction d (1 left, 2 right, 3 up,
// 4 down, 5 down-left, 6 down-right, 7 up-left, 8 up-right).
double die(int n) {
    return (n + 0.5) / 25;
}
double dir(int d) {
    return (d - 0.5) / 8;
}
enum { Left = 1, Right, Up, Down, DownLeft, DownRight, UpLeft, UpRight };

// Die n of "ABCDE/FGHIJ/..." shows the letter 'A' + n.
constexpr const char* kAlphabetBoard = "ABCDEFGHIJKLMNOPQRSTUVWXY";
// MAREA along the top row, then ZYXWV right to left along the second.
constexpr const char* kMareaBoard = "MAREAVWXYZKLNOPQSTUBCDFGH";

class OpponentWalkTest : public ::testing::Test {
protected:
    OpponentWalkTest()
        : walk(
              state, random, clock, [this](const std::string& w) { return lookup(w); },
              [this] { onYield(); }, view) {
        clock.seconds = 1234.5;
        setBoard(kAlphabetBoard);
    }

    void setBoard(const std::string& letters) {
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
    void onYield() {
        yieldScores.push_back(state.puntiCPU);
        if (yieldAction) yieldAction();
    }

    // MAREA along the top row, then down and left along the second row: ten letters.
    void scriptMareaWalk() {
        setBoard(kMareaBoard);
        random.add(die(0));
        for (int d : {Right, Right, Right, Right, Down, Left, Left, Left, Left})
            random.add(dir(d));
    }

    GameState state;
    QueuedRandom random;
    FixedClock clock;
    FakeView view;
    std::set<std::string> words;
    std::deque<std::string> answers; // scripted answers, given before the word list is asked
    std::vector<std::string> lookups;
    std::function<void()> lookupAction;
    std::vector<std::int32_t> yieldScores;
    std::function<void()> yieldAction;
    OpponentWalk walk;
};

TEST_F(OpponentWalkTest, NeighboursAtTheEdgesRejectWrappingAndOffBoardDirections) {
    struct Case {
        int start;
        std::vector<int> neighbours; // the cell each direction 1..8 reaches, -1 when rejected
    };
    const std::vector<Case> cases = {
        {0, {-1, 1, -1, 5, -1, 6, -1, -1}},     {4, {3, -1, -1, 9, 8, -1, -1, -1}},
        {20, {-1, 21, 15, -1, -1, -1, -1, 16}}, {24, {23, -1, 19, -1, -1, -1, 18, -1}},
        {5, {-1, 6, 0, 10, -1, 11, -1, 1}},     {9, {8, -1, 4, 14, 13, -1, 3, -1}},
        {12, {11, 13, 7, 17, 16, 18, 6, 8}},
    };
    for (const Case& c : cases) {
        for (int d = 1; d <= 8; ++d) {
            SCOPED_TRACE("start " + std::to_string(c.start) + ", direction " + std::to_string(d));
            random.add(die(c.start));
            random.add(dir(d));
            EXPECT_THROW(walk.tick(), RanOut); // stops at the next draw
            const int expected = c.neighbours[d - 1];
            if (expected < 0) {
                EXPECT_EQ(walk.cellaCPU(), c.start);
                EXPECT_EQ(walk.parolaCPU(), std::string(1, 'A' + c.start));
            } else {
                EXPECT_EQ(walk.cellaCPU(), expected);
                EXPECT_EQ(walk.parolaCPU(),
                          (std::string{char('A' + c.start), char('A' + expected)}));
            }
            EXPECT_FALSE(walk.running());
        }
    }
    EXPECT_TRUE(lookups.empty());
}

TEST_F(OpponentWalkTest, ACornerStartRedrawsItsFiveRejectedDirectionsAndWalksOn) {
    answers = {"BUSY"};
    random.add(die(0));
    for (int d : {Left, Up, DownLeft, UpLeft, UpRight, DownRight, Right})
        random.add(dir(d));
    walk.tick();
    EXPECT_EQ(lookups, std::vector<std::string>{"AGH"});
    EXPECT_TRUE(random.numbers.empty());
    EXPECT_EQ(random.seeds, std::vector<double>{1234.5});
}

TEST_F(OpponentWalkTest, TheDrawLimitEndsTheTickOnlyWhenADrawPastTheTwentySixthLandsOnANeighbour) {
    // The walk goes A → B (die 1); for the third letter, left is the used die A, up is off the
    // board and down is the free die G.
    struct Draws {
        int used;
        int offBoard;
    };
    struct Case {
        const char* name;
        int offBoardForSecondLetter;
        std::vector<Draws> thirdLetter; // then one draw down
        bool accepted;
    };
    const std::vector<Case> cases = {
        {"25 on a used die, then the free one", 0, {{25, 0}}, true},
        {"26 on a used die, then the free one", 0, {{26, 0}}, false},
        {"25 off the board, then the free one", 0, {{0, 25}}, true},
        {"26 off the board, then the free one", 0, {{0, 26}}, false},
        {"mixed, 26th draw free", 0, {{10, 5}, {3, 7}}, true},
        {"mixed, 27th draw free", 0, {{10, 5}, {3, 8}}, false},
        {"the counter restarts for every letter", 20, {{25, 0}}, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        lookups.clear();
        answers = {"BUSY"};
        random.add(die(0));
        random.add(dir(Up), c.offBoardForSecondLetter);
        random.add(dir(Right));
        for (const Draws& d : c.thirdLetter) {
            random.add(dir(Left), d.used);
            random.add(dir(Up), d.offBoard);
        }
        random.add(dir(Down));
        walk.tick();
        EXPECT_TRUE(random.numbers.empty());
        if (c.accepted) {
            EXPECT_EQ(lookups, std::vector<std::string>{"ABG"});
        } else {
            EXPECT_TRUE(lookups.empty());
            EXPECT_EQ(walk.parolaCPU(), "AB");
        }
    }
}

TEST_F(OpponentWalkTest, OffBoardDrawsCountButNeverEndTheTickByThemselves) {
    // A hundred draws off the board: the next draw that lands on a neighbour ends the tick.
    random.add(die(0));
    random.add(dir(Up), 100);
    random.add(dir(Right));
    walk.tick();
    EXPECT_TRUE(random.numbers.empty());
    EXPECT_EQ(walk.parolaCPU(), "A");

    // A generator that only ever points off the board gives up instead of hanging the window.
    random.add(die(0));
    random.add(dir(Up), 10'000);
    walk.tick();
    EXPECT_TRUE(random.numbers.empty());
    EXPECT_EQ(walk.parolaCPU(), "A");
}

TEST_F(OpponentWalkTest, MareThenMareaScoreInOneTickAndTheWalkStopsAtTenLetters) {
    words = {"MARE", "MAREA"};
    scriptMareaWalk();
    walk.tick(); // an eleventh letter would ask for a number the script does not have

    EXPECT_EQ(lookups, (std::vector<std::string>{"MAR", "MARE", "MAREA", "MAREAZ", "MAREAZY",
                                                 "MAREAZYX", "MAREAZYXW", "MAREAZYXWV"}));
    EXPECT_EQ(state.paroleCPU, (std::vector<std::string>{"mare", "marea"}));
    EXPECT_EQ(state.puntiCPU, 820);
    // The window shows each word before the yield, and the points after it.
    EXPECT_EQ(yieldScores, (std::vector<std::int32_t>{0, 320}));
    EXPECT_EQ(
        view.changes,
        (std::vector<Aspect>{Aspect::CpuAttempt, Aspect::CpuWords, Aspect::Scores, Aspect::CpuWords,
                             Aspect::Scores, Aspect::CpuAttempt, Aspect::CpuAttempt,
                             Aspect::CpuAttempt, Aspect::CpuAttempt, Aspect::CpuAttempt}));
    EXPECT_EQ(state.ricercheFallite, 6);
    EXPECT_EQ(state.ultimoTentativoCPU, " 6 MAREAZYXWV");
}

TEST_F(OpponentWalkTest, AWordEitherPlayerHoldsEndsTheWholeTick) {
    struct Case {
        const char* name;
        std::vector<std::string> human;
        std::vector<std::string> computer;
        std::vector<std::string> expectedLookups;
        std::vector<std::string> expectedComputer;
        std::int32_t expectedPoints;
    };
    const std::vector<Case> cases = {
        {"human has mare", {"mare"}, {}, {"MAR", "MARE"}, {}, 0},
        {"computer has mare", {}, {"mare"}, {"MAR", "MARE"}, {"mare"}, 0},
        {"human has marea", {"marea"}, {}, {"MAR", "MARE", "MAREA"}, {"mare"}, 320},
        {"the check is exact",
         {"MARE", "mare "},
         {"marea."},
         {"MAR", "MARE", "MAREA", "MAREAZ", "MAREAZY", "MAREAZYX", "MAREAZYXW", "MAREAZYXWV"},
         {"marea.", "mare", "marea"},
         820},
    };
    words = {"MARE", "MAREA"};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        state.paroleGiocatore = c.human;
        state.paroleCPU = c.computer;
        state.puntiCPU = 0;
        lookups.clear();
        random.numbers.clear();
        scriptMareaWalk();
        walk.tick();
        EXPECT_EQ(lookups, c.expectedLookups);
        EXPECT_EQ(state.paroleCPU, c.expectedComputer);
        EXPECT_EQ(state.puntiCPU, c.expectedPoints);
        EXPECT_EQ(state.paroleGiocatore, c.human);
    }
}

TEST_F(OpponentWalkTest, EveryAnswerButSiAndBusyIsAnUnsuccessfulLookup) {
    struct Case {
        const char* answer;
        std::int32_t before;
        const char* label; // empty: the tick ended and left the count and the label alone
    };
    const std::vector<Case> cases = {
        {"NO", 0, " 1 ABC"},          {"NO2", 9, " 10 ABC"}, {"", 41, " 42 ABC"},
        {"si", 99999, " 100000 ABC"}, {"BUSY", 7, ""},
    };
    for (const Case& c : cases) {
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
        const std::vector<std::string> expected =
            counted ? std::vector<std::string>{"ABC", "ABCD"} : std::vector<std::string>{"ABC"};
        EXPECT_EQ(lookups, expected);
        EXPECT_EQ(state.ricercheFallite, c.before + (counted ? 1 : 0));
        EXPECT_EQ(state.ultimoTentativoCPU, c.label);
        EXPECT_TRUE(state.paroleCPU.empty());
    }
}

TEST_F(OpponentWalkTest, ATickCalledFromInsideATickReturnsAtOnce) {
    words = {"MARE", "MAREA"};
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
    EXPECT_FALSE(walk.running());

    yieldAction = nullptr;
    lookupAction = nullptr;
    answers = {"BUSY"};
    random.add(die(0));
    random.add(dir(Right), 2);
    walk.tick();
    EXPECT_EQ(random.seeds.size(), 2u);
}

TEST_F(OpponentWalkTest, ABoardBlankedDuringTheYieldEndsTheWalkWithoutReadingPastANameEnd) {
    words = {"MARE", "MAREA"};
    yieldAction = [&] {
        // A new match: the lists and scores start again and the pictures are not loaded yet.
        state.paroleCPU.clear();
        state.puntiCPU = 0;
        state.immagineCella.fill("");
        state.immagineCella[4] = "zarMo";
    };
    scriptMareaWalk();
    random.numbers.resize(5); // die 0, then four steps right
    walk.tick();
    EXPECT_EQ(lookups, (std::vector<std::string>{"MAR", "MARE"}));
    EXPECT_EQ(walk.parolaCPU(), "MARE");
    EXPECT_EQ(state.puntiCPU, 320); // the points of "mare" land after the yield, as always
    EXPECT_TRUE(random.numbers.empty());
}

// The walk against a real dictionary file, with a submission closing every file while the
// opponent's lookup yields.
TEST(OpponentWalkWithDictionaryTest, ClosingTheFilesDuringALookupMakesItBusyAndEndsTheTick) {
    testing::TempFolder folder;
    WordLists lists;
    lists[1] = {"CASA", "MARE", "MOLO"};
    lists[2] = {"MAREA"};
    folder.write("SLESSICO.1", buildDictionaryFile("test", lists));

    for (bool closeDuringMare : {false, true}) {
        SCOPED_TRACE(closeDuringMare ? "closed during MARE" : "undisturbed");
        GameState state;
        OpenFileTable files;
        testing::FakeAlerts alerts;
        std::string current;
        Dictionary dictionary(
            state, files, alerts,
            [&] {
                if (closeDuringMare && current == "MARE") files.closeAll();
            },
            folder.path());
        dictionary.prendidiz();
        QueuedRandom random;
        FixedClock clock;
        FakeView view;
        OpponentWalk walk(
            state, random, clock,
            [&](const std::string& w) {
                current = w;
                return dictionary.cercaParola(w);
            },
            [] {}, view);
        for (int n = 0; n < kCells; ++n)
            state.immagineCella[n] = std::string("zarMmg") + kMareaBoard[n] + "1.gif";
        random.add(die(0));
        for (int d : {Right, Right, Right, Right, Down, Left, Left, Left, Left})
            random.add(dir(d));

        walk.tick();
        if (closeDuringMare) {
            EXPECT_TRUE(state.paroleCPU.empty());
            EXPECT_EQ(state.puntiCPU, 0);
            EXPECT_EQ(state.ricercheFallite, 1); // MAR only: the dropped MARE is not counted
            EXPECT_EQ(state.ultimoTentativoCPU, " 1 MAR");
            EXPECT_EQ(random.numbers.size(), 6u);
        } else {
            EXPECT_EQ(state.paroleCPU, (std::vector<std::string>{"mare", "marea"}));
            EXPECT_EQ(state.puntiCPU, 820);
            EXPECT_EQ(state.ricercheFallite, 6);
            EXPECT_TRUE(random.numbers.empty());
        }
        EXPECT_FALSE(files.isOpen(FileSlot::Opponent));
        EXPECT_TRUE(alerts.shown.empty());
    }
}

} // namespace
} // namespace griglione
