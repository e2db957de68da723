// Reads any bytes as REGPAROL.TXT: every line shown must convert back to its file bytes, so the
// text shown is the text stored.
#include "core/ansi_text.h"
#include "dictionary/personal_vocabulary.h"
#include "dictionary/rules_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string text = griglione::rulesTextFromBytes(bytes, "\n");
    std::string back;
    for (const std::string& line : griglione::textLines(text))
        back.append(griglione::toAnsi(line)).append("\n");
    std::string expected;
    for (const std::string& line : griglione::textLines(bytes))
        expected.append(line).append("\n");
    if (back != expected) std::abort();
    return 0;
}
