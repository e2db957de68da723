// The deal: the order of the draws, vowels on the even cells, each language's pools, and what
// every deal resets.
#include "board/board_game.h"
#include "board/board_layout.h"
#include "tests/support/board_parts.h"

#include <gmock/gmock.h>

namespace griglione {
namespace {

using namespace testing;

struct DealTest : ::testing::Test, BoardParts<> {};

TEST_F(DealTest, EachCellDrawsItsFaceThenItsLetterFromItsLanguagesPool) {
    // Every cell draws 0.3 (face 2) then 0.999 (the pool's last letter); the last of the three
    // passes puts vowels on the even cells.
    const struct {
        int language, languageAfter;
        const char *even, *odd;
    } cases[] = {{1, 1, "zarMmgU2.gif", "zarMmgZ2.gif"},
                 {2, 2, "zarMmgY2.gif", "zarMmgY2.gif"},
                 {3, 3, "zarMmgY2.gif", "zarMmgY2.gif"},
                 {0, 1, "zarMmgU2.gif", "zarMmgZ2.gif"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.language);
        ScriptedRandom scripted;
        for (int draw = 0; draw < 75; ++draw)
            scripted.numbers.insert(scripted.numbers.end(), {0.3, 0.999});
        GameState fresh;
        fresh.numDizionario = static_cast<std::int16_t>(c.language);
        Dealer(scripted, clock).deal(fresh, true);
        EXPECT_EQ(scripted.reseeds, 75);
        EXPECT_TRUE(scripted.numbers.empty());
        EXPECT_EQ(fresh.numDizionario, c.languageAfter);
        for (int n = 0; n < kCells; ++n)
            EXPECT_EQ(fresh.immagineCella[n], n % 2 == 0 ? c.even : c.odd) << n;
    }
}

TEST_F(DealTest, BlankDealAndTheResetsOfEveryDeal) {
    board.lanciaDadi(true);
    state.paroleGiocatore = {"casa", "mare"};
    state.puntiGiocatore = 500;
    board.press(0, kLeftButton, true);
    board.lanciaDadi(false);
    EXPECT_THAT(state.immagineCella, ::testing::Each(std::string("zarMolo.gif")));
    EXPECT_TRUE(state.paroleGiocatore.empty());
    EXPECT_EQ(state.puntiGiocatore, 0);
    EXPECT_EQ(state.parolaComposta, "");
    EXPECT_EQ(state.ultimaCella, -1);
    EXPECT_TRUE(board.path().marks(0).line1.hidden());
}

} // namespace
} // namespace griglione
