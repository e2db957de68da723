// Finding the program's files by bare name, whatever the letter case of the name on disk, since
// the same file is called "COLLAPSE.WAV" in one place and "collapse.wav" in another.
#pragma once

#include <filesystem>
#include <string_view>

namespace griglione {

// The existing file in `folder` whose name equals `name` ignoring letter case, preferring the
// exact spelling; `folder / name` itself when no such file exists.
std::filesystem::path resolveFileName(const std::filesystem::path& folder, std::string_view name);

// The same in the current directory, where the program's files lie.
std::filesystem::path resolveFileName(std::string_view name);

} // namespace griglione
