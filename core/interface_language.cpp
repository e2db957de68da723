// Choosing the interface language from a list of language tags or locale names.
#include "core/interface_language.h"

#include <cctype>

namespace griglione {
namespace {

// The language part of "it-IT", "it_IT.UTF-8", "it@euro" or "IT", in lower case.
std::string primaryLanguage(const std::string& tag) {
    std::string language;
    for (const char c : tag) {
        if (c == '-' || c == '_' || c == '.' || c == '@') break;
        language.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    }
    return language;
}

} // namespace

InterfaceLanguage chooseInterfaceLanguage(const std::vector<std::string>& preferred) {
    for (const std::string& tag : preferred) {
        const std::string language = primaryLanguage(tag);
        if (language == "it") return InterfaceLanguage::Italian;
        if (language == "en") return InterfaceLanguage::English;
    }
    return InterfaceLanguage::English;
}

} // namespace griglione
