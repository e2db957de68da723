// The translator hook of the logic's texts and the filling of their placeholders.
#include "core/player_text.h"

namespace griglione {
namespace {

TextTranslator& translator() {
    static TextTranslator installed;
    return installed;
}

} // namespace

void setTextTranslator(TextTranslator installed) {
    translator() = std::move(installed);
}

std::string playerText(const char* context, std::string_view source) {
    if (!translator()) return std::string(source);
    return translator()(context, std::string(source).c_str());
}

std::string withArgs(std::string_view pattern, std::initializer_list<std::string_view> args) {
    std::string out;
    out.reserve(pattern.size());
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        const auto n = static_cast<std::size_t>(next - '1');
        if (pattern[i] == '%' && next >= '1' && next <= '9' && n < args.size()) {
            out.append(args.begin()[n]);
            ++i;
        } else {
            out.push_back(pattern[i]);
        }
    }
    return out;
}

} // namespace griglione
