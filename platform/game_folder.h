// The folder the game works in: the program's own folder for a portable copy, the player's own
// data folder for an installed game (see chooseFileSearchOrder).
#pragma once

#include <QString>

namespace griglione {

// Decides where the game works, makes that folder the current directory and sets the order in
// which file names are resolved. The player's folder is the standard per-user data location
// ("~/.local/share/griglione"). False when it cannot be made the current directory.
bool settleGameFolder(const QString& programFolder);

} // namespace griglione
