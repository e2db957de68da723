#include "dictionary/personal_vocabulary.h"

#include "core/ansi_text.h"
#include "core/atomic_file.h"
#include "core/player_text.h"

#include <algorithm>

namespace griglione {

std::string personalVocabularyFileName(int numDizionario) {
    return "ZarmPriv." + std::to_string(numDizionario);
}

std::vector<std::string> textLines(std::string_view bytes) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < bytes.size()) {
        std::size_t end = bytes.find_first_of("\r\n", start);
        if (end == std::string_view::npos) end = bytes.size();
        lines.emplace_back(bytes.substr(start, end - start));
        start = end;
        if (start < bytes.size() && bytes[start] == '\r') ++start;
        if (start < bytes.size() && bytes[start] == '\n') ++start;
    }
    return lines;
}

std::vector<std::string> personalVocabularyWords(std::string_view bytes) {
    std::vector<std::string> words;
    for (const std::string& line : textLines(bytes))
        words.push_back(upperAnsi(line));
    return words;
}

std::vector<std::string> readPersonalVocabulary(const std::filesystem::path& file) {
    const auto bytes = readWholeFile(file);
    return bytes ? personalVocabularyWords(*bytes) : std::vector<std::string>{};
}

bool personalVocabularyHas(const std::filesystem::path& file, std::string_view parola) {
    const auto words = readPersonalVocabulary(file);
    return std::find(words.begin(), words.end(), parola) != words.end();
}

bool appendToPersonalVocabulary(const std::filesystem::path& file, std::string_view parola) {
    std::string line;
    // A file whose last line has no line end (written by hand) must not glue the new word to it.
    if (const auto bytes = readWholeFile(file);
        bytes && !bytes->empty() && bytes->back() != '\n' && bytes->back() != '\r')
        line = "\r\n";
    line.append(parola).append("\r\n");
    return appendToFile(file, line);
}

std::string personalVocabularyWriteError(int numDizionario) {
    return withArgs(playerText("PersonalVocabulary",
                               "Errore 0003: impossibile scrivere il file del vocabolario "
                               "personale %1, la parola non è stata salvata"),
                    {personalVocabularyFileName(numDizionario)});
}

} // namespace griglione
