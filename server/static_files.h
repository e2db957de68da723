// The help page and its pictures, read once from a folder and served as they are.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace griglione {

struct StaticFile {
    std::string contentType;
    std::string bytes;
};

class StaticFiles {
public:
    StaticFiles() = default;
    // Takes every .htm, .png and .gif file of `folder` up to 1 MB with a plain name; a missing
    // folder gives none.
    explicit StaticFiles(const std::filesystem::path& folder);

    // The file called exactly `name` (no folders), if it was taken.
    const StaticFile* find(const std::string& name) const;
    std::size_t size() const { return m_files.size(); }

private:
    std::map<std::string, StaticFile> m_files;
};

} // namespace griglione
