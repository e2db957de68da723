#include "board/dealer.h"

#include "board/board_layout.h"

namespace griglione {

LetterPools letterPools(int numDizionario) {
    if (numDizionario == 2 || numDizionario == 3)
        return {"AAAEEIIOOUY", "BBBCCCDDDFFGGHLLLMMMNNNPPQRRRSSSTTVVZJKWXY"};
    return {"AAAEEIIOOU", "BBBCCCDDDFFGGHLLLMMMNNNPPQRRRSSSTTVVZ"};
}

void Dealer::deal(GameState& state, bool conLettere) {
    if (state.numDizionario == 0) state.numDizionario = 1;
    const LetterPools pools = letterPools(state.numDizionario);
    int turnoVocale = 1;
    const int passes = conLettere ? 3 : 1;
    for (int pass = 0; pass < passes; ++pass) {
        for (int n = 0; n < kCells; ++n) {
            turnoVocale = -turnoVocale;
            const std::string_view pool = turnoVocale == -1 ? pools.vocali : pools.consonanti;
            if (!conLettere) {
                state.immagineCella[n] = kBlankDie;
                continue;
            }
            m_random.reseed(m_clock.secondsSinceMidnight());
            const int face = static_cast<int>(m_random.next() * 4) + 1;
            const auto pos = static_cast<std::size_t>(m_random.next() * pool.size());
            state.immagineCella[n] = dieName(pool[pos], face);
        }
    }
}

} // namespace griglione
