// The word rules REGPAROL.TXT: free text for the player, shown but never interpreted.
#pragma once

#include "core/player_text.h"
#include "core/ports.h"

#include <filesystem>
#include <optional>
#include <string>

namespace griglione {

//: The rules file in this language, beside the game's files; the Italian one when it is missing.
inline constexpr std::string_view kRulesFileName = textMark("RulesText", "REGPAROL.TXT");

// Every line of a rules file's bytes followed by `lineEnd`, as UTF-8.
std::string rulesTextFromBytes(std::string_view bytes, std::string_view lineEnd);

// Every line of the rules file in the player's language (the Italian one when that is missing)
// followed by `lineEnd`, as UTF-8; nothing when both are missing.
std::optional<std::string> readRulesText(const std::filesystem::path& folder,
                                         std::string_view lineEnd);

// The main window's copy of the rules: read on first use, kept afterwards; while it is empty
// the next use tries the file again.
class RulesText {
public:
    explicit RulesText(std::filesystem::path folder) : m_folder(std::move(folder)) {}
    const std::string& text(Alerts& alerts);

private:
    std::filesystem::path m_folder;
    std::string m_cached;
};

// The text of the confirmation window's rules field, read afresh every time.
std::string rulesForConfirmation(const std::filesystem::path& folder);

} // namespace griglione
