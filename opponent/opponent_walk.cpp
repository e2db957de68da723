// The opponent's walk, drawn afresh at every tick from a generator re-seeded by the clock.
#include "opponent/opponent_walk.h"

#include "core/ansi_text.h"
#include "core/number_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace griglione {
namespace {

// Where a die's letter sits in its picture name "zarMmg" + letter + face + ".gif".
constexpr std::size_t kLetterIndex = 6;

// A draw off the board is counted but never ends the walk by itself; a generator stuck on one such
// direction would hang the window for ever, so past this many draws for one letter it gives up.
// A uniform generator reaches it with a probability far below one in 10^200.
constexpr int kRunawayDraws = 10'000;

bool isNeighbour(int from, int to) {
    return to >= 0 && to < kCells && celleAdiacenti(from, to);
}

bool contains(const std::vector<std::string>& words, const std::string& word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

} // namespace

OpponentWalk::OpponentWalk(GameState& state, Random& random, const Clock& clock, Lookup cercaParola,
                           std::function<void()> yield, GameView& view)
    : m_state(state), m_random(random), m_clock(clock), m_cercaParola(std::move(cercaParola)),
      m_yield(std::move(yield)), m_view(view) {}

void OpponentWalk::tick() {
    if (m_running) return;
    struct Guard {
        bool& flag;
        explicit Guard(bool& f) : flag(f) { flag = true; }
        ~Guard() { flag = false; }
    } guard(m_running);
    walk();
}

void OpponentWalk::walk() {
    m_direzioni = {-1, +1, -5, +5, +4, +6, -6, -4};
    m_random.reseed(m_clock.secondsSinceMidnight());

    m_cellaCPU = static_cast<std::int16_t>(draw(kCells));
    m_parolaCPU.clear();
    std::array<bool, kCells> used{};
    if (!appendLetter(m_cellaCPU)) return;
    used[static_cast<std::size_t>(m_cellaCPU)] = true;

    for (int k = 2; k <= kMaxLetters; ++k) {
        int draws = 0;
        int j = 0;
        for (;;) {
            j = m_cellaCPU + direzioni(draw(8) + 1);
            ++draws;
            if (!isNeighbour(m_cellaCPU, j)) {
                if (draws >= kRunawayDraws) return;
                continue;
            }
            if (draws > kDrawLimit) return;
            if (!used[static_cast<std::size_t>(j)]) break;
        }
        used[static_cast<std::size_t>(j)] = true;
        if (!appendLetter(j)) return;
        m_cellaCPU = static_cast<std::int16_t>(j);
        if (k < 3) continue;
        if (!judge(m_cercaParola(m_parolaCPU))) return;
    }
}

int OpponentWalk::draw(int count) {
    // Kept in range even for a generator that returns 1: an index past the table would crash.
    const int drawn = static_cast<int>(std::floor(m_random.next() * count));
    return std::clamp(drawn, 0, count - 1);
}

bool OpponentWalk::appendLetter(int cell) {
    // The board may have been dealt again, or blanked, during a yield; a picture name too short
    // to hold a letter ends the walk rather than reading past it.
    const std::string& picture = m_state.immagineCella[static_cast<std::size_t>(cell)];
    if (picture.size() <= kLetterIndex) return false;
    m_parolaCPU += picture[kLetterIndex];
    return true;
}

bool OpponentWalk::judge(const std::string& answer) {
    if (answer == "SI") {
        const std::string word = lowerAscii(m_parolaCPU);
        if (contains(m_state.paroleGiocatore, word) || contains(m_state.paroleCPU, word))
            return false;
        m_state.paroleCPU.push_back(word);
        m_view.changed(Aspect::CpuWords);
        m_yield();
        m_state.puntiCPU += punteggioParola(word.size());
        m_view.changed(Aspect::Scores);
        return true;
    }
    if (answer == "BUSY") return false;
    // Never reset during a run; stop at the top rather than wrap to a negative count.
    if (m_state.ricercheFallite < std::numeric_limits<std::int32_t>::max())
        ++m_state.ricercheFallite;
    m_state.ultimoTentativoCPU = numberText(m_state.ricercheFallite) + " " + m_parolaCPU;
    m_view.changed(Aspect::CpuAttempt);
    return true;
}

} // namespace griglione
