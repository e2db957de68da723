#include "board/board_argument.h"

#include "core/ansi_text.h"

namespace griglione {

std::optional<std::string> boardArgument(const std::vector<std::string>& arguments) {
    static const std::string kOption = "--tabellone";
    static const std::string kScheme = "griglione:";
    std::optional<std::string> asked;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == kOption)
            asked = i + 1 < arguments.size() ? arguments[++i] : std::string();
        else if (argument.starts_with(kOption + "="))
            asked = argument.substr(kOption.size() + 1);
        else if (lowerAscii(argument.substr(0, kScheme.size())) == kScheme)
            asked = argument;
    }
    return asked;
}

} // namespace griglione
