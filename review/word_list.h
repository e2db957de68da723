// The words a board can be searched for, read whole for the after-match review and released with
// it: during play the word list stays on disk. One sorted block of fixed-width records per word
// length and source, as the dictionary file keeps them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

struct WordBlock {
    int length = 0;
    std::string records; // length bytes each, in ascending byte order
    std::size_t count() const { return length > 0 ? records.size() / length : 0; }
};

struct WordList {
    std::vector<WordBlock> blocks;
};

// The words of 3 to 10 letters of a dictionary file's bytes and of a personal vocabulary (upper
// case). A block that is cut short keeps its whole records; one out of order is sorted.
WordList wordListFrom(std::string_view dictionaryFile, const std::vector<std::string>& personal);

// The same from SLESSICO.<n> and ZarmPriv.<n> in `folder`; what cannot be read counts as empty.
WordList readWordList(const std::filesystem::path& folder, int numDizionario);

} // namespace griglione
