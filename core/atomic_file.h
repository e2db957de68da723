// Reading whole files, and rewriting them so that a failure never leaves half a file behind.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace griglione {

// The whole content of a file, or nothing when it cannot be read.
std::optional<std::string> readWholeFile(const std::filesystem::path& path);

// Writes `bytes` to a temporary file beside `path`, then renames it over `path`.
// False, with `path` untouched, when any step fails. Like appending, it writes a file of the
// read-only data folder into the player's folder instead (see writableFileName).
bool writeFileAtomically(const std::filesystem::path& path, std::string_view bytes);

// Adds `bytes` at the end of the file, creating it when missing.
bool appendToFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace griglione
