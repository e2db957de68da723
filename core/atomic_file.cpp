#include "core/atomic_file.h"

#include "core/file_names.h"

#include <cstdio>
#include <memory>
#include <system_error>

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

bool hasWriteBit(const fs::path& path) {
    std::error_code error;
    const fs::perms p = fs::status(path, error).permissions();
    if (error) return false;
    return (p & (fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write)) !=
           fs::perms::none;
}

// Writes all of `bytes`, honouring the test write limit; false when anything is left unwritten.
bool writeAll(std::FILE* file, std::string_view bytes) {
    std::size_t count = bytes.size();
    bool cut = false;
    if (g_writeLimit) {
        cut = count > *g_writeLimit;
        if (cut) count = *g_writeLimit;
        *g_writeLimit -= count;
    }
    if (count > 0 && std::fwrite(bytes.data(), 1, count, file) != count) return false;
    return std::fflush(file) == 0 && !cut;
}

bool writeAndClose(File file, std::string_view bytes) {
    const bool written = writeAll(file.get(), bytes);
    return std::fclose(file.release()) == 0 && written;
}

bool rewriteInPlace(const fs::path& path, std::string_view bytes) {
    File file = openFile(path, "wb");
    return file && writeAndClose(std::move(file), bytes);
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

bool mayWrite(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
        return fs::is_directory(folder, error) && hasWriteBit(folder);
    }
    // The bits decide for a superuser, whom the system lets write anything; opening the file to
    // add nothing decides for everybody else (the bits may belong to another owner).
    return !error && status.type() == fs::file_type::regular && hasWriteBit(path) &&
           openFile(path, "ab") != nullptr;
}

bool writeFileAtomically(const fs::path& target, std::string_view bytes) {
    const fs::path path = writableFileName(target);
    std::error_code error;
    const bool exists = fs::exists(path, error);
    if (error || !mayWrite(path)) return false;

    fs::path temporary = path;
    temporary += ".tmp";
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    File file = hasWriteBit(folder) ? openFile(temporary, "wb") : File();
    if (!file) {
        // The folder takes no new file (or a folder holds the temporary name); the file itself
        // may still be rewritten where it lies.
        return exists && rewriteInPlace(path, bytes);
    }
    if (!writeAndClose(std::move(file), bytes)) {
        fs::remove(temporary, error);
        return false;
    }
    fs::rename(temporary, path, error);
    if (error) {
        fs::remove(temporary, error);
        return false;
    }
    return true;
}

bool appendToFile(const fs::path& source, std::string_view bytes) {
    const fs::path path = writableFileName(source);
    std::error_code error;
    if (path != source) {
        // The player's copy starts as the shipped file, so appending adds to what was read.
        fs::copy_file(source, path, fs::copy_options::skip_existing, error);
        error.clear();
    }
    if (!mayWrite(path)) return false;
    const bool existed = fs::exists(path, error);
    const std::uintmax_t oldSize = existed ? fs::file_size(path, error) : 0;
    if (error) return false;
    File file = openFile(path, "ab");
    if (!file) return false;
    if (writeAndClose(std::move(file), bytes)) return true;
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
