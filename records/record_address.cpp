#include "records/record_address.h"

#include "core/addresses.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace griglione {
namespace {

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string twoDigits(int n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

} // namespace

std::string cmbS(std::string& t) {
    for (char& c : t)
        if (std::string_view(" %$&!=").find(c) != std::string_view::npos) c = '_';
    return t;
}

std::string indirizzoRecord(RecordDaInviare record, const DataOra& adesso, Random& random,
                            const Clock& clock) {
    random.reseed(clock.secondsSinceMidnight());
    std::string programma;
    for (int i = 0; i < 3; ++i) {
        const int letter = std::clamp(static_cast<int>(std::floor(random.next() * 26)), 0, 25);
        programma += static_cast<char>('A' + letter);
    }
    std::string note = trimmed(record.note);
    std::string anno = std::to_string(adesso.anno);
    anno.insert(0, anno.size() < 4 ? 4 - anno.size() : 0, '0');
    return std::string(kPaginaRecord) + "?Nome=" + trimmed(record.nome) + "&programma=Griglione_" +
           programma + "&data=" + twoDigits(adesso.giorno) + "-" + twoDigits(adesso.mese) + "-" +
           anno + "&punti=" + std::to_string(record.punti) +
           "&Tempo=" + std::to_string(record.tempoPartita) + "&Note=" + cmbS(note) +
           "&E_MAIL=" + record.email + "&ora=" + twoDigits(adesso.ore) + ":" +
           twoDigits(adesso.minuti) + "&Language=" + std::to_string(record.numDizionario);
}

} // namespace griglione
