#include "records/record_address.h"

#include "core/addresses.h"
#include "core/ansi_text.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace griglione {
namespace {

std::string twoDigits(int n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

} // namespace

std::string percentEncoded(std::string_view bytes) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if ((b >= 'A' && b <= 'Z') || (b >= 'a' && b <= 'z') || (b >= '0' && b <= '9') ||
            b == '-' || b == '.' || b == '_' || b == '~') {
            out += c;
        } else {
            out += '%';
            out += kHex[b >> 4];
            out += kHex[b & 15];
        }
    }
    return out;
}

std::string cmbS(std::string& t) {
    for (char& c : t)
        if (std::string_view(" %$&!=").find(c) != std::string_view::npos) c = '_';
    return t;
}

std::string indirizzoServizio() {
    const char* variabile = std::getenv(kVariabileServizio);
    std::string sito = variabile && *variabile ? variabile : kSitoWeb;
    if (sito.back() != '/') sito += '/';
    return sito;
}

std::string testoServizio(std::string_view indirizzo) {
    if (const auto scheme = indirizzo.find("://"); scheme != std::string_view::npos)
        indirizzo.remove_prefix(scheme + 3);
    return std::string(indirizzo.substr(0, indirizzo.find_first_of("/?#")));
}

std::string indirizzoRecord(RecordDaInviare record, const DataOra& adesso, Random& random,
                            const Clock& clock) {
    random.reseed(clock.secondsSinceMidnight());
    std::string programma;
    for (int i = 0; i < 3; ++i) {
        const int letter = std::clamp(static_cast<int>(std::floor(random.next() * 26)), 0, 25);
        programma += static_cast<char>('A' + letter);
    }
    std::string note = trimmed(toAnsi(record.note));
    std::string anno = std::to_string(adesso.anno);
    anno.insert(0, anno.size() < 4 ? 4 - anno.size() : 0, '0');
    return indirizzoServizio() + kPaginaRecord +
           "?Nome=" + percentEncoded(trimmed(toAnsi(record.nome))) + "&programma=Griglione_" +
           programma + "&data=" + twoDigits(adesso.giorno) + "-" + twoDigits(adesso.mese) + "-" +
           anno + "&punti=" + std::to_string(record.punti) +
           "&Tempo=" + std::to_string(record.tempoPartita) + "&Note=" + percentEncoded(cmbS(note)) +
           "&E_MAIL=" + percentEncoded(toAnsi(record.email)) + "&ora=" + twoDigits(adesso.ore) +
           ":" + twoDigits(adesso.minuti) + "&Language=" + std::to_string(record.numDizionario);
}

} // namespace griglione
