// Loading the help page and its pictures once, by plain file name.
#include "server/static_files.h"

#include <fstream>
#include <iterator>

namespace griglione {
namespace {

constexpr std::uintmax_t kMaxBytes = 1 << 20;

const char* contentTypeOf(const std::string& extension) {
    if (extension == ".htm") return "text/html; charset=utf-8";
    if (extension == ".css") return "text/css; charset=utf-8";
    if (extension == ".png") return "image/png";
    if (extension == ".gif") return "image/gif";
    return nullptr;
}

bool plainName(const std::string& name) {
    if (name.empty() || name.front() == '.') return false;
    for (const char c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '.' && c != '-' && c != '_')
            return false;
    return true;
}

} // namespace

StaticFiles::StaticFiles(const std::filesystem::path& folder) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const std::string name = entry.path().filename().string();
        const char* type = contentTypeOf(entry.path().extension().string());
        if (!type || !plainName(name) || !entry.is_regular_file(error) ||
            entry.file_size(error) > kMaxBytes)
            continue;
        std::ifstream in(entry.path(), std::ios::binary);
        std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (in.bad()) continue;
        m_files[name] = {type, std::move(bytes)};
    }
}

const StaticFile* StaticFiles::find(const std::string& name) const {
    const auto it = m_files.find(name);
    return it == m_files.end() ? nullptr : &it->second;
}

} // namespace griglione
