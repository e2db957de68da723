// The program's random generator: a 64-bit mixing generator whose re-seed folds the clock into
// the current state, so two re-seeds with the same clock reading still draw differently.
#pragma once

#include "core/random.h"

#include <cstdint>

namespace griglione {

class MixingRandom final : public Random {
public:
    explicit MixingRandom(std::uint64_t state = 0x9E3779B97F4A7C15ull) : m_state(state) {}
    void reseed(double seconds) override;
    double next() override;

private:
    std::uint64_t m_state;
};

} // namespace griglione
