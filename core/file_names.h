// Finding the program's files by bare name, whatever the letter case of the name on disk, since
// the same file is called "COLLAPSE.WAV" in one place and "collapse.wav" in another; and, for an
// installed game, in the player's own folder first and in the shared data folder after it.
#pragma once

#include <filesystem>
#include <string_view>

namespace griglione {

// Where the game works. Portable: the program's folder, with no data folder. Installed: the
// player's own folder, where every file is written and first looked for, and the read-only
// folder of the shipped files, looked in when the player's folder lacks a name.
struct FileSearchOrder {
    std::filesystem::path playerFolder;
    std::filesystem::path dataFolder; // empty when portable
};

// The decision made at start-up. `installedData` is the data folder of an installed game,
// relative to the program's folder. The game is installed when its folder cannot be written, or
// when the installed data folder lies beside it (root can write anywhere, and must still not
// leave settings in the system's program folder).
FileSearchOrder chooseFileSearchOrder(const std::filesystem::path& programFolder,
                                      bool programFolderWritable,
                                      const std::filesystem::path& installedData,
                                      const std::filesystem::path& playerFolder);

// The order every resolution below follows; portable (nothing set) until start-up sets it.
void setFileSearchOrder(FileSearchOrder order);
const FileSearchOrder& fileSearchOrder();

// The existing file in `folder` whose name equals `name` ignoring letter case, preferring the
// exact spelling; failing that the same in the data folder; `folder / name` itself when no such
// file exists.
std::filesystem::path resolveFileName(const std::filesystem::path& folder, std::string_view name);

// The same in the current directory, where the program's files lie.
std::filesystem::path resolveFileName(std::string_view name);

// Where a file about to be written goes: a name resolved into the read-only data folder is
// written under the same name in the player's folder instead; any other path is kept.
std::filesystem::path writableFileName(const std::filesystem::path& path);

} // namespace griglione
