// Reading whole files, and rewriting them so that a failure never leaves half a file behind.
// None of these functions throws: a file that is missing, a folder, unreadable, or too big to be
// one of the game's files reads as nothing, and a write that cannot be done returns false.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace griglione {

// Larger files are none of the game's and read as nothing, so a stray huge file cannot exhaust
// memory; the biggest the game uses are its dictionaries, a few megabytes.
inline constexpr std::uintmax_t kLargestReadableFile = 64u << 20;

// The whole content of a regular file, or nothing when it cannot be read.
std::optional<std::string> readWholeFile(const std::filesystem::path& path);

// True when the file may be written: its write permission bits allow it (also for a superuser,
// who would otherwise overwrite a write-protected file) and it is not a folder. A missing file
// is writable when its folder is.
bool mayWrite(const std::filesystem::path& path);

// Why `path` may not be written (a folder in its place, no permission); empty when it may.
std::error_code writeRefusal(const std::filesystem::path& path);

// Writes `bytes` to a temporary file beside `path`, flushes it to the disk, renames it over
// `path` and flushes the folder, so that a power cut leaves the old file or the new one, never an
// empty one. When the folder refuses the temporary file but `path` itself may be written, it is
// rewritten in place. False, with `path` untouched and the system's reason in `why`, when any
// step fails (or when `path` is write-protected). Like appending, it writes a file of the
// read-only data folder into the player's folder instead (see writableFileName).
bool writeFileAtomically(const std::filesystem::path& path, std::string_view bytes,
                         std::error_code* why = nullptr);

// Renames `from` over `to` and flushes their folder; false, with the reason in `why`, on failure.
bool renameDurably(const std::filesystem::path& from, const std::filesystem::path& to,
                   std::error_code* why = nullptr);

// Adds `bytes` at the end of the file, creating it when missing, and flushes it to the disk
// before it answers. On failure the file is cut back to its old length, so it never keeps half a
// line. False, with the system's reason in `why`, when it could not.
bool appendToFile(const std::filesystem::path& path, std::string_view bytes,
                  std::error_code* why = nullptr);

// Test seam for a disk that fills up: while set, every write made by writeFileAtomically and
// appendToFile stores at most this many bytes in total and then fails, as a full disk would.
// Only tests set it (tests/support/fakes.h has a scoped `WriteLimit` for that); the program never
// does. Writers of other files (records, a rebuilt dictionary) get it for free by going through
// these two functions.
void setWriteLimitForTesting(std::optional<std::size_t> limit);

} // namespace griglione
