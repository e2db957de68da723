#include "core/file_names.h"

#include <algorithm>
#include <cctype>
#include <system_error>

namespace griglione {
namespace {

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

} // namespace

std::filesystem::path resolveFileName(const std::filesystem::path& folder, std::string_view name) {
    const std::filesystem::path exact = folder / std::string(name);
    std::error_code error;
    if (std::filesystem::exists(exact, error)) return exact;
    for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end;
         it.increment(error)) {
        const std::string candidate = it->path().filename().string();
        if (equalIgnoringCase(candidate, name)) return it->path();
    }
    return exact;
}

std::filesystem::path resolveFileName(std::string_view name) {
    return resolveFileName(std::filesystem::path("."), name).lexically_normal();
}

} // namespace griglione
