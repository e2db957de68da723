#include "records/challenge_address.h"

#include "core/ansi_text.h"
#include "records/challenge_words.h"
#include "records/record_address.h"

#include <algorithm>

namespace griglione {

std::string linkSfida(std::string_view codice) {
    return indirizzoServizio() + "sfide/" + std::string(codice);
}

IndirizzoSfida indirizzoSfida(const SfidaDaInviare& sfida) {
    const std::string base = indirizzoServizio() + "sfide/invia?codice=" + sfida.codice +
                             "&nome=" + percentEncoded(trimmed(toAnsi(sfida.nome))) +
                             "&tempo=" + std::to_string(sfida.tempo) + "&parole=";
    // The words in the order they are kept: longest first.
    std::vector<std::string> words;
    for (const std::string& word : sfida.parole)
        words.push_back(upperAscii(word));
    std::sort(words.begin(), words.end(), [](const std::string& a, const std::string& b) {
        return a.size() != b.size() ? a.size() > b.size() : a < b;
    });
    words.erase(std::unique(words.begin(), words.end()), words.end());

    const auto packedFirst = [&words](std::size_t count) {
        return packWords(std::vector<std::string>(words.begin(), words.begin() + count));
    };
    // Another word never makes the packed text shorter, so the most that fit is found by halving.
    std::size_t fit = 0;
    std::size_t over = words.size() + 1;
    while (fit + 1 < over) {
        const std::size_t mid = fit + (over - fit) / 2;
        if (base.size() + packedFirst(mid).size() <= kLunghezzaMassimaIndirizzo)
            fit = mid;
        else
            over = mid;
    }
    return {base + packedFirst(fit), words.size() - fit};
}

} // namespace griglione
