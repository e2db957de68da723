// What the two vocabulary editors need from the program: the shared state, the dictionary and
// its open files, message boxes, and the program's folder. Fakes stand in for them in tests.
#pragma once

#include "core/game_state.h"
#include "core/ports.h"
#include "dictionary/dictionary.h"
#include "dictionary/open_file_table.h"

#include <filesystem>
#include <functional>
#include <string>

namespace griglione {

struct EditorContext {
    const GameState& state;
    Dictionary& dictionary;
    OpenFileTable& files;
    Alerts& alerts;
    // A message box with OK and Cancel; true for OK.
    std::function<bool(const std::string&)> ask;
    // Lets pending window events run.
    std::function<void()> yield;
    // Closes the message window when it is open.
    std::function<void()> closeMessages;
    // Ends the program at once, with nothing saved.
    std::function<void()> terminate;
    std::filesystem::path folder;
};

} // namespace griglione
