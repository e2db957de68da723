// Puts the windows, menus and messages into the player's language: Italian, the language the
// program is written in, or English from the translation file shipped beside the game's files.
#pragma once

#include "core/interface_language.h"

#include <filesystem>

namespace griglione {

// The compiled English translation, found by bare name like every other file of the game.
inline constexpr const char* kEnglishTranslationFile = "griglione_en.qm";

// The language the system prefers (LANGUAGE, then LC_ALL, LC_MESSAGES or LANG on Linux).
InterfaceLanguage systemInterfaceLanguage();

// Makes `language` the one every text is shown in from now on, the logic's included. English
// needs its translation file in `folder`; false, and the Italian texts, when it cannot be read.
bool useInterfaceLanguage(InterfaceLanguage language, const std::filesystem::path& folder);

} // namespace griglione
