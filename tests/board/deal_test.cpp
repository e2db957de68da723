// The deal: vowels on the even cells, each language's pools, the blank board, the frames.
#include "board/board_game.h"
#include "board/board_layout.h"
#include "core/mixing_random.h"
#include "tests/support/board_parts.h"

#include <gtest/gtest.h>

#include <set>

namespace griglione {
namespace {

using namespace testing;

struct DealTest : ::testing::Test, BoardParts<MixingRandom> {};

TEST_F(DealTest, VowelsOnEvenCellsConsonantsOnOddOnesForEveryLanguage) {
    for (int language : {1, 2, 3}) {
        state.numDizionario = static_cast<std::int16_t>(language);
        const LetterPools pools = letterPools(language);
        for (int deal = 0; deal < 200; ++deal) {
            board.lanciaDadi(true);
            for (int n = 0; n < kCells; ++n) {
                const char letter = letteraCella(state, n);
                const std::string_view pool = n % 2 == 0 ? pools.vocali : pools.consonanti;
                ASSERT_NE(pool.find(letter), std::string_view::npos) << language << " " << n;
                ASSERT_GE(facciaCella(state, n), 1);
                ASSERT_LE(facciaCella(state, n), 4);
                const std::string_view never = language == 1 ? "JKWXY" : n % 2 == 0 ? "JKWX" : "";
                ASSERT_EQ(never.find(letter), std::string_view::npos) << language << " " << n;
            }
        }
    }
}

TEST_F(DealTest, PoolsWeighTheLetters) {
    EXPECT_EQ(letterPools(1).vocali, "AAAEEIIOOU");
    EXPECT_EQ(letterPools(1).consonanti.size(), 37u);
    EXPECT_EQ(letterPools(2).vocali, "AAAEEIIOOUY");
    EXPECT_EQ(letterPools(2).consonanti.size(), 42u);
    EXPECT_EQ(letterPools(3).consonanti, letterPools(2).consonanti);
}

TEST_F(DealTest, OneClockReadingStillGivesVariedBoards) {
    board.lanciaDadi(true);
    std::set<char> letters;
    for (int n = 0; n < kCells; ++n)
        letters.insert(letteraCella(state, n));
    EXPECT_GT(letters.size(), 6u);
}

TEST_F(DealTest, BlankDealAndTheResetsOfEveryDeal) {
    board.lanciaDadi(true);
    state.paroleGiocatore = {"casa", "mare"};
    state.paroleCPU = {"rete"};
    state.puntiGiocatore = 500;
    state.puntiCPU = 320;
    board.press(0, kLeftButton, true);
    board.lanciaDadi(false);
    for (const std::string& cell : state.immagineCella)
        EXPECT_EQ(cell, "zarMolo.gif");
    EXPECT_TRUE(tavolaVuota(state));
    EXPECT_TRUE(state.paroleGiocatore.empty());
    EXPECT_TRUE(state.paroleCPU.empty());
    EXPECT_EQ(state.puntiGiocatore, 0);
    EXPECT_EQ(state.puntiCPU, 0);
    EXPECT_EQ(state.parolaComposta, "");
    EXPECT_EQ(state.ultimaCella, -1);
    EXPECT_TRUE(board.path().marks(0).line1.hidden());
}

TEST_F(DealTest, LanguageZeroDealsItalianAndBecomesOne) {
    state.numDizionario = 0;
    board.lanciaDadi(true);
    EXPECT_EQ(state.numDizionario, 1);
}

TEST_F(DealTest, ThreePassesReseedBeforeEveryCellAndDrawTheFaceFirst) {
    const struct {
        double r;
        const char* even;
        const char* odd;
    } cases[] = {{0.99, "zarMmgU4.gif", "zarMmgZ4.gif"}, {0.0, "zarMmgA1.gif", "zarMmgB1.gif"}};
    for (const auto& c : cases) {
        ScriptedRandom scripted;
        scripted.last = c.r;
        GameState fresh;
        Dealer(scripted, clock).deal(fresh, true);
        EXPECT_EQ(scripted.reseeds, 75);
        for (int n = 0; n < kCells; ++n)
            EXPECT_EQ(fresh.immagineCella[n], n % 2 == 0 ? c.even : c.odd) << n;
    }
}

TEST(BoardFrames, FrameEnclosesTheBlockAndTheShadowIsShifted) {
    const auto frames = boardFrames({120, 120, 960, 960});
    EXPECT_EQ(frames[0], (Rect{116, 116, 4808, 4808}));
    EXPECT_EQ(frames[1], (Rect{138, 138, 4808, 4808}));
}

} // namespace
} // namespace griglione
