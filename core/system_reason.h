// Why the system refused a file operation, in the player's words and language. The C library's
// own messages follow the system's locale, which on many machines is neither the game's
// language nor installed at all.
#pragma once

#include <string>
#include <system_error>

namespace griglione {

// A short reason for the failures a player can do something about (no room, no permission, a
// read-only disk, a folder in the way); the system's own message for any other.
std::string systemReason(std::error_code error);

} // namespace griglione
