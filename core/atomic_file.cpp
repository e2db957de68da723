#include "core/atomic_file.h"

#include "core/file_names.h"

#include <exception>
#include <fstream>
#include <iterator>
#include <system_error>

namespace griglione {

std::optional<std::string> readWholeFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    try {
        std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (in.bad()) return std::nullopt;
        return bytes;
    } catch (const std::exception&) {
        return std::nullopt; // a folder opens like a file, then fails on the first read
    }
}

bool writeFileAtomically(const std::filesystem::path& target, std::string_view bytes) {
    const std::filesystem::path path = writableFileName(target);
    std::filesystem::path temporary = path;
    temporary += ".tmp";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out) return false;
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        out.flush();
        if (!out) {
            std::error_code ignored;
            std::filesystem::remove(temporary, ignored);
            return false;
        }
    }
    std::error_code error;
    std::filesystem::rename(temporary, path, error);
    if (error) {
        std::filesystem::remove(temporary, error);
        return false;
    }
    return true;
}

bool appendToFile(const std::filesystem::path& path, std::string_view bytes) {
    const std::filesystem::path target = writableFileName(path);
    if (target != path) {
        // The player's copy starts as the shipped file, so appending adds to what was read.
        std::error_code ignored;
        std::filesystem::copy_file(path, target, std::filesystem::copy_options::skip_existing,
                                   ignored);
    }
    std::ofstream out(target, std::ios::binary | std::ios::app);
    if (!out) return false;
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(out.flush());
}

} // namespace griglione
