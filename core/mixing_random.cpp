#include "core/mixing_random.h"

#include <bit>

namespace griglione {
namespace {

std::uint64_t splitMix(std::uint64_t& state) {
    std::uint64_t z = (state += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

} // namespace

void MixingRandom::reseed(double seconds) {
    std::uint64_t clockBits = std::bit_cast<std::uint64_t>(seconds);
    m_state ^= splitMix(clockBits);
    splitMix(m_state);
}

double MixingRandom::next() {
    // The top 53 bits make a double in [0, 1) with every value equally likely.
    return static_cast<double>(splitMix(m_state) >> 11) * 0x1.0p-53;
}

} // namespace griglione
