// The computer opponent: one random walk over the dice per tick of its timer, looking up every
// prefix of 3 to 10 letters and scoring the words that neither player holds yet.
#pragma once

#include "core/game_state.h"
#include "core/ports.h"
#include "core/random.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace griglione {

class OpponentWalk {
public:
    using Lookup = std::function<std::string(const std::string&)>;

    OpponentWalk(GameState& state, Random& random, const Clock& clock, Lookup cercaParola,
                 std::function<void()> yield, GameView& view);

    // One walk. Called again from inside one of its own yields, it returns at once: ticks of the
    // opponent's timer never nest.
    void tick();

    bool running() const { return m_running; }
    std::int16_t cellaCPU() const { return m_cellaCPU; }
    const std::string& parolaCPU() const { return m_parolaCPU; }
    // Board offset of direction d, 1 to 8: left, right, up, down, down-left, down-right,
    // up-left, up-right.
    std::int16_t direzioni(int d) const { return m_direzioni[static_cast<std::size_t>(d - 1)]; }

    static constexpr int kMaxLetters = 10;
    static constexpr int kDrawLimit = 26;

private:
    void walk();
    // floor(r × count), the generator's next number r scaled to 0 .. count − 1.
    int draw(int count);
    bool appendLetter(int cell);
    // False when the tick must end.
    bool judge(const std::string& answer);

    GameState& m_state;
    Random& m_random;
    const Clock& m_clock;
    Lookup m_cercaParola;
    std::function<void()> m_yield;
    GameView& m_view;

    std::array<std::int16_t, 8> m_direzioni{};
    std::int16_t m_cellaCPU = 0;
    std::string m_parolaCPU;
    bool m_running = false;
};

} // namespace griglione
