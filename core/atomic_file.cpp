// Reading whole files, and rewrites and appends that are whole and on the disk when they answer.
#include "core/atomic_file.h"

#include "core/file_names.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>

namespace griglione {
namespace {

namespace fs = std::filesystem;

std::optional<std::size_t> g_writeLimit;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File openFile(const fs::path& path, const char* mode) {
    return File(std::fopen(path.c_str(), mode));
}

bool fail(std::error_code* why, std::error_code reason) {
    if (why) *why = reason;
    return false;
}

std::error_code lastError(std::errc fallback = std::errc::io_error) {
    return errno != 0 ? std::error_code(errno, std::generic_category())
                      : std::make_error_code(fallback);
}

bool hasWriteBit(const fs::path& path) {
    std::error_code error;
    const fs::perms p = fs::status(path, error).permissions();
    if (error) return false;
    return (p & (fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write)) !=
           fs::perms::none;
}

fs::path folderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// Writes all of `bytes` and puts them on the disk, honouring the test write limit; false, with
// the reason, when anything is left unwritten.
bool writeAll(std::FILE* file, std::string_view bytes, std::error_code* why) {
    std::size_t count = bytes.size();
    bool cut = false;
    if (g_writeLimit) {
        cut = count > *g_writeLimit;
        if (cut) count = *g_writeLimit;
        *g_writeLimit -= count;
    }
    errno = 0;
    if (count > 0 && std::fwrite(bytes.data(), 1, count, file) != count)
        return fail(why, lastError());
    if (std::fflush(file) != 0) return fail(why, lastError());
    if (cut) return fail(why, std::make_error_code(std::errc::no_space_on_device));
    // Without it a power cut may keep the name of the file and lose what it holds.
    if (::fsync(::fileno(file)) != 0) return fail(why, lastError());
    return true;
}

bool writeAndClose(File file, std::string_view bytes, std::error_code* why) {
    const bool written = writeAll(file.get(), bytes, why);
    errno = 0;
    if (std::fclose(file.release()) != 0 && written) return fail(why, lastError());
    return written;
}

bool rewriteInPlace(const fs::path& path, std::string_view bytes, std::error_code* why) {
    errno = 0;
    File file = openFile(path, "wb");
    if (!file) return fail(why, lastError());
    return writeAndClose(std::move(file), bytes, why);
}

// A rename is on the disk once its folder is.
bool syncFolder(const fs::path& folder) {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return false;
    const bool synced = ::fsync(handle) == 0;
    ::close(handle);
    return synced;
}

} // namespace

std::optional<std::string> readWholeFile(const fs::path& path) {
    std::error_code error;
    // Checked first: a folder or a pipe opens "successfully" and then fails or blocks on reading.
    if (!fs::is_regular_file(path, error)) return std::nullopt;
    const std::uintmax_t size = fs::file_size(path, error);
    if (error || size > kLargestReadableFile) return std::nullopt;
    File file = openFile(path, "rb");
    if (!file) return std::nullopt;
    std::string bytes;
    char buffer[65536];
    std::size_t got = 0;
    while ((got = std::fread(buffer, 1, sizeof buffer, file.get())) > 0) {
        bytes.append(buffer, got);
        // The file may grow while it is read.
        if (bytes.size() > kLargestReadableFile) return std::nullopt;
    }
    if (std::ferror(file.get())) return std::nullopt;
    return bytes;
}

std::error_code writeRefusal(const fs::path& path) {
    const auto denied = std::make_error_code(std::errc::permission_denied);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        const fs::path folder = folderOf(path);
        if (!fs::is_directory(folder, error))
            return std::make_error_code(std::errc::not_a_directory);
        return hasWriteBit(folder) ? std::error_code() : denied;
    }
    if (error) return error;
    if (status.type() == fs::file_type::directory)
        return std::make_error_code(std::errc::is_a_directory);
    if (status.type() != fs::file_type::regular || !hasWriteBit(path)) return denied;
    // The bits decide for a superuser, whom the system lets write anything; opening the file to
    // add nothing decides for everybody else (the bits may belong to another owner).
    errno = 0;
    return openFile(path, "ab") ? std::error_code() : lastError(std::errc::permission_denied);
}

bool mayWrite(const fs::path& path) {
    return !writeRefusal(path);
}

bool writeFileAtomically(const fs::path& target, std::string_view bytes, std::error_code* why) {
    const fs::path path = writableFileName(target);
    std::error_code error;
    const bool exists = fs::exists(path, error);
    if (error) return fail(why, error);
    if (const std::error_code refusal = writeRefusal(path)) return fail(why, refusal);

    fs::path temporary = path;
    temporary += ".tmp";
    const fs::path folder = folderOf(path);
    errno = 0;
    File file = hasWriteBit(folder) ? openFile(temporary, "wb") : File();
    if (!file) {
        // The folder takes no new file (or a folder holds the temporary name); the file itself
        // may still be rewritten where it lies.
        if (!exists) return fail(why, lastError(std::errc::permission_denied));
        return rewriteInPlace(path, bytes, why);
    }
    if (!writeAndClose(std::move(file), bytes, why)) {
        fs::remove(temporary, error);
        return false;
    }
    return renameDurably(temporary, path, why);
}

bool renameDurably(const fs::path& from, const fs::path& to, std::error_code* why) {
    std::error_code error;
    fs::rename(from, to, error);
    if (error) {
        std::error_code ignored;
        fs::remove(from, ignored);
        return fail(why, error);
    }
    // The new file is whole already; a folder that cannot be flushed (some network file
    // systems) only leaves the rename to the system's own pace.
    syncFolder(folderOf(to));
    return true;
}

bool appendToFile(const fs::path& source, std::string_view bytes, std::error_code* why) {
    const fs::path path = writableFileName(source);
    std::error_code error;
    if (path != source) {
        // The player's copy starts as the shipped file, so appending adds to what was read.
        fs::copy_file(source, path, fs::copy_options::skip_existing, error);
        error.clear();
    }
    if (const std::error_code refusal = writeRefusal(path)) return fail(why, refusal);
    const bool existed = fs::exists(path, error);
    const std::uintmax_t oldSize = existed ? fs::file_size(path, error) : 0;
    if (error) return fail(why, error);
    errno = 0;
    File file = openFile(path, "ab");
    if (!file) return fail(why, lastError(std::errc::permission_denied));
    if (writeAndClose(std::move(file), bytes, why)) {
        // A file just made is in its folder only once the folder is on the disk.
        if (!existed) syncFolder(folderOf(path));
        return true;
    }
    if (existed)
        fs::resize_file(path, oldSize, error);
    else
        fs::remove(path, error);
    return false;
}

void setWriteLimitForTesting(std::optional<std::size_t> limit) {
    g_writeLimit = limit;
}

} // namespace griglione
