// The board a command line asks for: "--tabellone CODE", "--tabellone=CODE", or a bare
// "griglione:CODE" as the desktop hands over a link of the game's own scheme.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace griglione {

// The text naming the board (a code or a link, still to be decoded), empty when
// "--tabellone" ends the line; nothing when the line asks for no board. The last request wins.
std::optional<std::string> boardArgument(const std::vector<std::string>& arguments);

} // namespace griglione
