// The message window's headline: which letter changes at each step and to which colours.
#include "core/letter_flash.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

TEST(LetterFlash, StepsThroughLettersAndColours) {
    LetterFlash flash;
    const struct {
        int step, letter, foreground, background;
    } expected[] = {
        {1, 0, 1, 14},  {2, 1, 2, 13},  {5, 4, 5, 10},  {6, 0, 6, 9},
        {15, 4, 15, 0}, {16, 0, 1, 14}, {20, 4, 5, 10},
    };
    int step = 0;
    for (const auto& e : expected) {
        FlashStep s{};
        while (step < e.step) {
            s = flash.step();
            ++step;
        }
        EXPECT_EQ(s.letter, e.letter) << e.step;
        EXPECT_EQ(s.foreground, e.foreground) << e.step;
        EXPECT_EQ(s.background, e.background) << e.step;
    }
}

} // namespace
} // namespace griglione
