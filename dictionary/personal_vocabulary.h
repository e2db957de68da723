// The personal vocabulary ZarmPriv.<n>: one word per line, CR LF, upper case as written by the
// game (lines in lower case are read as upper case).
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

// "ZarmPriv.1" for Italian.
std::string personalVocabularyFileName(int numDizionario);

// The lines of a text file's bytes, split at CR LF, CR or LF.
std::vector<std::string> textLines(std::string_view bytes);

// The words of a file's bytes in upper case, in file order.
std::vector<std::string> personalVocabularyWords(std::string_view bytes);

// The words of the file in upper case, in file order; none when the file cannot be read.
std::vector<std::string> readPersonalVocabulary(const std::filesystem::path& file);

// True when some line of the file, in upper case, equals `parola`.
bool personalVocabularyHas(const std::filesystem::path& file, std::string_view parola);

// Adds `parola` as a line at the end of the file, creating the file when missing.
bool appendToPersonalVocabulary(const std::filesystem::path& file, std::string_view parola);

// The message box text for a personal vocabulary that could not be written.
std::string personalVocabularyWriteError(int numDizionario);

} // namespace griglione
