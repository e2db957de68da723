// The sound switch: effects reach the player only while "Suono" is checked; the beep always does.
#pragma once

#include "core/ports.h"

#include <functional>

namespace griglione {

class SwitchedSounds final : public Sounds {
public:
    SwitchedSounds(Sounds& player, std::function<bool()> enabled)
        : m_player(player), m_enabled(std::move(enabled)) {}

    void suona(std::string_view nomeFile) override {
        if (m_enabled()) m_player.suona(nomeFile);
    }
    void beep() override { m_player.beep(); }

private:
    Sounds& m_player;
    std::function<bool()> m_enabled;
};

} // namespace griglione
