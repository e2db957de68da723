// Tracing: the path's connection table, turning a die, refused presses, blinking and the clear.
#include "board/board_game.h"
#include "board/board_layout.h"
#include "tests/support/board_parts.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

using namespace testing;

TEST(PathConnections, EachStepMeetsAtTheCommonEdgeOrCorner) {
    for (int d : {-1, +1, -5, +5, +4, +6, -6, -4}) {
        const auto ends = connection(d);
        ASSERT_TRUE(ends) << d;
        // Both ends are the same point of the board: p's end shifted by one die is n's end.
        const auto [x1, y1] = anchorPoint(ends->first);
        const auto [x2, y2] = anchorPoint(ends->second);
        const int dx = (d + 7) % 5 - 2, dy = (d - dx) / 5;
        EXPECT_DOUBLE_EQ(x1 + dx, x2) << d;
        EXPECT_DOUBLE_EQ(y1 + dy, y2) << d;
    }
    EXPECT_FALSE(connection(2));
    EXPECT_FALSE(connection(0));
}

struct TracingTest : ::testing::Test, BoardParts<> {
    TracingTest() {
        for (int n = 0; n < kCells; ++n)
            state.immagineCella[n] = dieName(static_cast<char>('A' + n), 1);
    }
};

// With no match running a press starts one and selects nothing. The right button turns the face,
// even of a used die, and leaves the word and the path as they were.
TEST_F(TracingTest, SelectingDrawsADotThenSegmentsMeetingAtTheEdgeAndTurningKeepsThem) {
    EXPECT_EQ(board.press(3, kRightButton, false), PressResult::StartMatch);
    EXPECT_EQ(board.press(3, kLeftButton, false), PressResult::StartMatch);
    EXPECT_EQ(board.press(0, kLeftButton, true), PressResult::Selected);
    EXPECT_EQ(board.path().marks(0).line1, (Segment{Anchor::Centre, Anchor::Centre}));
    EXPECT_EQ(board.press(6, kMiddleButton, true), PressResult::Selected);
    EXPECT_EQ(sounds.played, (std::vector<std::string>{"SND0002.wav", "SND0002.wav"}));
    for (const char* face : {"zarMmgG2.gif", "zarMmgG3.gif", "zarMmgG4.gif", "zarMmgG1.gif"}) {
        EXPECT_EQ(board.press(6, kRightButton, true), PressResult::Turned);
        EXPECT_EQ(state.immagineCella[6], face);
    }
    EXPECT_EQ(sounds.played.back(), "SND0230.wav");
    EXPECT_EQ(board.path().marks(0).line2, (Segment{Anchor::Centre, Anchor::BottomRight}));
    EXPECT_EQ(board.path().marks(6).line1, (Segment{Anchor::Centre, Anchor::TopLeft}));
    EXPECT_EQ(state.parolaComposta, "AG");
    EXPECT_EQ(state.ultimaCella, 6);
}

TEST_F(TracingTest, RefusedPressesKeepTheWordAndTheLastDie) {
    board.press(4, kLeftButton, true);
    sounds.played.clear();
    EXPECT_EQ(board.press(5, kLeftButton, true), PressResult::NotAdjacent);
    EXPECT_EQ(sounds.played, (std::vector<std::string>{"SND0002.wav", "beep"}));
    EXPECT_EQ(messages.shown, (std::vector<Messaggio>{{"OOPS!", "Lettera non adiacente",
                                                       "Attenzione : La lettera deve essere "
                                                       "adiacente a quella cliccata in precedenza! "
                                                       "Per scrivere una nuova parola cliccare il "
                                                       "pulsante <Azzera>"}}));
    EXPECT_EQ(messages.modal, std::vector<bool>{false});
    EXPECT_FALSE(state.cellaUsata[5]);
    for (int far : {14, 2}) // two rows down, two columns left
        EXPECT_EQ(board.press(far, kLeftButton, true), PressResult::NotAdjacent) << far;
    EXPECT_EQ(board.press(4, kLeftButton, true), PressResult::Refused);
    EXPECT_EQ(sounds.played.back(), "beep");
    EXPECT_EQ(board.press(9, kLeftButton, true), PressResult::Selected); // judged against 4
    EXPECT_EQ(state.parolaComposta, "EJ");
}

TEST_F(TracingTest, BlinkTogglesTheNewestDieAndAddingADieShowsThePreviousAgain) {
    board.press(12, kLeftButton, true);
    board.blink();
    EXPECT_FALSE(board.path().marks(12).line1Visible);
    board.press(13, kLeftButton, true);
    EXPECT_TRUE(board.path().marks(12).line1Visible);
    for (int i = 0; i < 3; ++i)
        board.blink();
    EXPECT_FALSE(board.path().marks(13).line1Visible);
    board.azzera();
    EXPECT_EQ(sounds.played.back(), "COLLAPSE.WAV");
    EXPECT_FALSE(board.path().marks(13).line1Visible); // the clear leaves the flag
    EXPECT_TRUE(board.path().marks(13).line1.hidden());
    EXPECT_EQ(state.parolaComposta, "");
    EXPECT_EQ(state.ultimaCella, -1);
    EXPECT_FALSE(state.cellaUsata[12]);
}

TEST_F(TracingTest, AWordCanRunThroughAllTwentyFiveDice) {
    const int snake[] = {0,  1,  2,  3,  4,  9,  8,  7,  6,  5,  10, 11, 12,
                         13, 14, 19, 18, 17, 16, 15, 20, 21, 22, 23, 24};
    for (int n : snake)
        ASSERT_EQ(board.press(n, kLeftButton, true), PressResult::Selected) << n;
    EXPECT_EQ(state.parolaComposta.size(), 25u);
}

} // namespace
} // namespace griglione
