// Reads any bytes as a personal vocabulary: no word may keep a line end.
#include "dictionary/personal_vocabulary.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto words =
        griglione::personalVocabularyWords({reinterpret_cast<const char*>(data), size});
    for (const std::string& word : words)
        if (word.find_first_of("\r\n") != std::string::npos) std::abort();
    return 0;
}
