#include "core/file_names.h"

#include "core/ansi_text.h"

#include <chrono>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>

namespace griglione {
namespace {

FileSearchOrder g_order;

// A folder's names by their lower-case spelling, as last listed. A lookup that misses its exact
// spelling would otherwise list the whole folder, and the opponent looks up a missing personal
// vocabulary several times a tick in a data folder of hundreds of files.
struct Listing {
    std::filesystem::file_time_type changed;
    std::map<std::string, std::filesystem::path, std::less<>> byLowerName;
};

std::mutex g_listingsMutex;
std::map<std::filesystem::path, Listing> g_listings;

std::optional<std::filesystem::path> findIn(const std::filesystem::path& folder,
                                            std::string_view name) {
    const std::filesystem::path exact = folder / std::string(name);
    std::error_code error;
    if (std::filesystem::exists(exact, error)) return exact;
    // Adding, removing or renaming an entry moves the folder's time. A listing is trusted only
    // when that time is a few seconds old, so a file system that keeps coarse times cannot hide
    // a change made in the same tick as the listing.
    const auto changed = std::filesystem::last_write_time(folder, error);
    if (error) return std::nullopt;
    const bool settled =
        std::filesystem::file_time_type::clock::now() - changed > std::chrono::seconds(3);
    const std::lock_guard lock(g_listingsMutex);
    auto cached = g_listings.find(folder);
    if (cached == g_listings.end() || cached->second.changed != changed || !settled) {
        Listing listing{changed, {}};
        for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end;
             it.increment(error))
            listing.byLowerName.emplace(lowerAscii(it->path().filename().string()), it->path());
        if (error) return std::nullopt;
        cached = g_listings.insert_or_assign(folder, std::move(listing)).first;
    }
    const auto found = cached->second.byLowerName.find(lowerAscii(name));
    if (found == cached->second.byLowerName.end()) return std::nullopt;
    return found->second;
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
