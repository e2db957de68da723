// Adds each match that ran out of time to the match log, before its result is shown; a log that
// cannot be written is reported once a run, and the game goes on.
#pragma once

#include "core/game_state.h"
#include "core/ports.h"

#include <array>
#include <filesystem>
#include <string>

namespace griglione {

class MatchLogWriter {
public:
    MatchLogWriter(Alerts& alerts, std::filesystem::path folder)
        : m_alerts(alerts), m_folder(std::move(folder)) {}

    // `boardCode` names a board played from a code, empty for a dealt one.
    void matchEnded(const GameState& state, const std::array<bool, 4>& levelChecked,
                    const std::string& boardCode);

private:
    Alerts& m_alerts;
    std::filesystem::path m_folder;
    bool m_reported = false;
};

} // namespace griglione
