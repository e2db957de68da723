#include "core/file_names.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <system_error>
#include <utility>

namespace griglione {
namespace {

FileSearchOrder g_order;

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

std::optional<std::filesystem::path> findIn(const std::filesystem::path& folder,
                                            std::string_view name) {
    const std::filesystem::path exact = folder / std::string(name);
    std::error_code error;
    if (std::filesystem::exists(exact, error)) return exact;
    for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end;
         it.increment(error)) {
        const std::string candidate = it->path().filename().string();
        if (equalIgnoringCase(candidate, name)) return it->path();
    }
    return std::nullopt;
}

} // namespace

FileSearchOrder chooseFileSearchOrder(const std::filesystem::path& programFolder,
                                      bool programFolderWritable,
                                      const std::filesystem::path& installedData,
                                      const std::filesystem::path& playerFolder) {
    const std::filesystem::path data = (programFolder / installedData).lexically_normal();
    std::error_code error;
    const bool dataBeside = std::filesystem::is_directory(data, error);
    if (programFolderWritable && !dataBeside) return {programFolder, {}};
    // A read-only portable copy (on a disc, say) still reads its own files.
    return {playerFolder, dataBeside ? data : programFolder};
}

void setFileSearchOrder(FileSearchOrder order) {
    g_order = std::move(order);
}

const FileSearchOrder& fileSearchOrder() {
    return g_order;
}

std::filesystem::path resolveFileName(const std::filesystem::path& folder, std::string_view name) {
    if (auto found = findIn(folder, name)) return *found;
    if (!g_order.dataFolder.empty())
        if (auto found = findIn(g_order.dataFolder, name)) return *found;
    return folder / std::string(name);
}

std::filesystem::path resolveFileName(std::string_view name) {
    return resolveFileName(std::filesystem::path("."), name).lexically_normal();
}

std::filesystem::path writableFileName(const std::filesystem::path& path) {
    if (g_order.dataFolder.empty() || !path.has_parent_path()) return path;
    std::error_code error;
    if (!std::filesystem::equivalent(path.parent_path(), g_order.dataFolder, error)) return path;
    return g_order.playerFolder / path.filename();
}

} // namespace griglione
