// The main dictionary editor's file work: reading every word of a length for its lists, and the
// rebuild that writes the whole file anew and puts it in place of the old one.
#pragma once

#include "dictionary/dictionary_format.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace griglione {

inline constexpr std::string_view kNewDictionaryFileName = "SLESSICO.new";

// Reads the blocks of a dictionary file for the editor. A missing or unreadable file reads as
// empty blocks.
class DictionaryBlocks {
public:
    explicit DictionaryBlocks(const std::filesystem::path& file);

    // The records of `length` letters, `length` bytes each, whole records only (a file shorter
    // than its index claims gives what it holds), sorted byte-wise as the editor's lists are.
    std::string block(const DictionaryIndex& index, int length);

private:
    std::ifstream m_in;
};

// The notice to keep at the head of a rebuilt file: the old file's, so that its sources and
// licences stay named, or `fallback` when the old file has none.
std::string rebuiltNotice(const std::filesystem::path& oldFile, std::string_view fallback);

// Writes the whole dictionary as SLESSICO.new in `folder` and renames it over SLESSICO.<n>, which
// is replaced in one step: whenever the work stops, the folder holds the old file or the new one,
// whole, and both are flushed to the disk. False, with the old file untouched, no SLESSICO.new
// left and the system's reason in `why`, when any step fails.
bool rebuildDictionary(const std::filesystem::path& folder, int numDizionario,
                       std::string_view notice, const WordLists& words,
                       std::error_code* why = nullptr);

// The file a rebuild writes: SLESSICO.<n> in the player's folder when the shipped one is in the
// installed data folder.
std::filesystem::path rebuiltFileName(const std::filesystem::path& folder, int numDizionario);

} // namespace griglione
