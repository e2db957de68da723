// The language of the windows, menus and messages, chosen from the system's preferred interface
// languages. The dictionary's language is a separate choice of the Options menu.
#pragma once

#include <string>
#include <vector>

namespace griglione {

enum class InterfaceLanguage { Italian, English };

// The first of Italian and English that `preferred` names ("it", "it-IT", "it_CH.UTF-8", "en",
// "en-GB", ...), in its order; English when it names neither, as no other language is offered.
InterfaceLanguage chooseInterfaceLanguage(const std::vector<std::string>& preferred);

} // namespace griglione
