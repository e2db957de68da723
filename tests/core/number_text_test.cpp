// The old number forms: the sign place, halves to even, and the forgiving reading of a number.
#include "core/number_text.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace griglione;

TEST(NumberText, RoundsHalvesToEven) {
    const std::pair<double, int> cases[] = {{0.5, 0},   {1.5, 2},    {2.5, 2},    {-0.5, 0},
                                            {-1.5, -2}, {2.4999, 2}, {2.5001, 3}, {7, 7}};
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(roundHalfEven(value), expected) << value;
    EXPECT_FALSE(roundHalfEven(3e9));
    EXPECT_FALSE(roundHalfEven(std::numeric_limits<double>::infinity()));
}

TEST(NumberText, ReadsTheLeadingNumber) {
    const std::pair<const char*, double> cases[] = {
        {"", 0},    {"abc", 0},  {"  42", 42},   {"42abc", 42}, {"-3.5x", -3.5},
        {"+7", 7},  {".5", 0.5}, {"1.2.3", 1.2}, {"- 4", 0},    {"\t4", 0},
        {"1e5", 1}, {"0007", 7}, {" 1 2", 1},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_DOUBLE_EQ(leadingNumber(text), expected) << text;
}

TEST(NumberText, GroupsThousandsWithThePoint) {
    const std::tuple<std::int64_t, int, const char*> cases[] = {
        {1240, 5, "01.240"},  {0, 5, "00.000"},         {0, 0, ""},
        {999, 0, "999"},      {1000, 0, "1.000"},       {147805, 0, "147.805"},
        {-1240, 0, "-1.240"}, {1234567, 0, "1.234.567"}};
    for (const auto& [n, minDigits, text] : cases)
        EXPECT_EQ(groupedNumber(n, minDigits), text) << n << " " << minDigits;
}
