#include "dictionary/rules_text.h"

#include "core/ansi_text.h"
#include "core/atomic_file.h"
#include "core/file_names.h"
#include "core/player_text.h"
#include "dictionary/personal_vocabulary.h"

namespace griglione {

std::optional<std::string> readRulesText(const std::filesystem::path& folder,
                                         std::string_view lineEnd) {
    for (const std::string& name :
         {playerText("RulesText", kRulesFileName), std::string(kRulesFileName)})
        if (const auto bytes = readWholeFile(resolveFileName(folder, name)))
            return rulesTextFromBytes(*bytes, lineEnd);
    return std::nullopt;
}

std::string rulesTextFromBytes(std::string_view bytes, std::string_view lineEnd) {
    std::string text;
    for (const std::string& line : textLines(bytes))
        text.append(fromAnsi(line)).append(lineEnd);
    return text;
}

const std::string& RulesText::text(Alerts& alerts) {
    if (m_cached.empty()) {
        if (auto text = readRulesText(m_folder, "\r\n"))
            m_cached = std::move(*text);
        else
            alerts.avviso(withArgs(playerText("RulesText", "ERRORE 0001: File contenente le "
                                                           "regole sulle parole non trovato: %1"),
                                   {kRulesFileName}));
    }
    return m_cached;
}

std::string rulesForConfirmation(const std::filesystem::path& folder) {
    return readRulesText(folder, "\r\n")
        .value_or(playerText("RulesText", "File REGPAROL.txt non trovato"));
}

} // namespace griglione
