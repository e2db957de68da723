#include "board/day_board.h"

#include "board/dealer.h"

#include <cstdint>

namespace griglione {

namespace {

// SplitMix64 (Steele, Lea, Flood): simple enough to write again in any language from its
// description, which is what lets the records service draw the same board.
class SplitMix64 {
public:
    explicit SplitMix64(std::uint64_t seed) : m_state(seed) {}
    std::uint64_t next() {
        std::uint64_t z = (m_state += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    // An index below `count`, from the top 53 bits, in integers so no rounding can differ.
    std::size_t below(std::size_t count) { return ((next() >> 11) * count) >> 53; }

private:
    std::uint64_t m_state;
};

} // namespace

SharedBoard dayBoard(const CivilDate& date, int language) {
    const auto seed =
        static_cast<std::uint64_t>(date.year * 10000 + date.month * 100 + date.day) * 16 +
        static_cast<std::uint64_t>(language);
    SplitMix64 random(seed);
    const LetterPools pools = letterPools(language);
    SharedBoard board;
    board.language = language;
    for (int n = 0; n < kCells; ++n) {
        const std::string_view pool = n % 2 == 0 ? pools.vocali : pools.consonanti;
        board.faces[n] = static_cast<int>(random.below(4)) + 1;
        board.letters[n] = pool[random.below(pool.size())];
    }
    return board;
}

} // namespace griglione
