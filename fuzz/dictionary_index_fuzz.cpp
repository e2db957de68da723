// Reads any bytes as the head of a dictionary file: every block found must lie within the
// positions the index can name, with a count that is never negative.
#include "dictionary/dictionary_format.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view head(reinterpret_cast<const char*>(data), size);
    const griglione::DictionaryIndex index = griglione::parseIndex(head);
    for (int length = griglione::kMinWordLength; length <= griglione::kMaxIndexedLength; ++length)
        if (index.inizioGruppo(length) < 0 || index.contaGruppo(length) < 0) std::abort();
    griglione::parseIndexField(head.substr(0, 8));
    return 0;
}
