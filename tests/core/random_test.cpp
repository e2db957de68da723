// The generator's re-seed mixes the clock into its state: the same clock reading twice must not
// repeat the draws, and the numbers stay in [0, 1) and spread over it.
#include "core/mixing_random.h"

#include <gtest/gtest.h>

#include <set>

using namespace griglione;

TEST(MixingRandom, DrawsSpreadOverZeroToOneAndTheSameClockReadingDoesNotRepeatThem) {
    MixingRandom random(42);
    std::array<int, 10> buckets{};
    for (int i = 0; i < 10000; ++i) {
        const double r = random.next();
        ASSERT_TRUE(r >= 0.0 && r < 1.0) << r;
        ++buckets[static_cast<std::size_t>(r * 10)];
    }
    for (int count : buckets)
        EXPECT_NEAR(count, 1000, 150);
    std::set<double> draws;
    for (int i = 0; i < 25; ++i) {
        random.reseed(43200.25);
        draws.insert(random.next());
    }
    EXPECT_EQ(draws.size(), 25u);
}
