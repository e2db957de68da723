// The message window's headline: which letter changes at each step and to which colours.
#include "core/letter_flash.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace griglione;

TEST(LetterFlash, StepsThroughLettersAndColours) {
    const std::tuple<int, int, int, int> expected[] = {
        {1, 0, 1, 14},  {2, 1, 2, 13},  {5, 4, 5, 10},  {6, 0, 6, 9},
        {15, 4, 15, 0}, {16, 0, 1, 14}, {20, 4, 5, 10},
    };
    LetterFlash flash;
    int step = 0;
    for (const auto& [at, letter, foreground, background] : expected) {
        FlashStep s{};
        for (; step < at; ++step)
            s = flash.step();
        EXPECT_EQ(std::tie(s.letter, s.foreground, s.background),
                  std::tie(letter, foreground, background))
            << at;
    }
}
