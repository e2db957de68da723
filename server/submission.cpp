// The checks of a record submission: parts, name, dates, score bound, Windows-1252 texts.
#include "server/submission.h"

#include "core/ansi_text.h"
#include "server/pages.h"
#include "server/query.h"

#include <algorithm>
#include <array>
#include <map>

namespace griglione {
namespace {

constexpr std::array<std::string_view, 9> kParts = {"Nome", "programma", "data", "punti",   "Tempo",
                                                    "Note", "E_MAIL",    "ora",  "Language"};

bool allDigits(std::string_view text) {
    if (text.empty()) return false;
    for (const char c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

// Digits only, at most nine of them so that the value fits; nothing otherwise.
std::optional<std::int32_t> number(std::string_view text) {
    if (!allDigits(text) || text.size() > 9) return std::nullopt;
    std::int32_t value = 0;
    for (const char c : text)
        value = value * 10 + (c - '0');
    return value;
}

int digits(std::string_view text, std::size_t at, std::size_t count) {
    return *number(text.substr(at, count));
}

// Control bytes and the five bytes Windows-1252 leaves undefined have no place in a page.
bool printable(std::string_view bytes) {
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (b < 0x20 || b == 0x7F || b == 0x81 || b == 0x8D || b == 0x8F || b == 0x90 || b == 0x9D)
            return false;
    }
    return true;
}

// A blank, the no-break space and the soft hyphen show nothing on their own.
bool visible(std::string_view bytes) {
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (b != ' ' && b != 0xA0 && b != 0xAD) return true;
    }
    return false;
}

std::chrono::year_month_day dateOf(std::string_view data) {
    return {std::chrono::year(digits(data, 6, 4)),
            std::chrono::month(static_cast<unsigned>(digits(data, 3, 2))),
            std::chrono::day(static_cast<unsigned>(digits(data, 0, 2)))};
}

bool dateExists(std::string_view data) {
    if (data.size() != 10 || data[2] != '-' || data[5] != '-' || !allDigits(data.substr(0, 2)) ||
        !allDigits(data.substr(3, 2)) || !allDigits(data.substr(6, 4)))
        return false;
    const int day = digits(data, 0, 2), month = digits(data, 3, 2), year = digits(data, 6, 4);
    if (year < 1 || month < 1 || month > 12 || day < 1) return false;
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return day <= kDays[month - 1] + (month == 2 && leap ? 1 : 0);
}

bool timeExists(std::string_view ora) {
    return ora.size() == 5 && ora[2] == ':' && allDigits(ora.substr(0, 2)) &&
           allDigits(ora.substr(3, 2)) && digits(ora, 0, 2) < 24 && digits(ora, 3, 2) < 60;
}

bool programName(std::string_view text) {
    if (text.size() != 13 || text.substr(0, 10) != "Griglione_") return false;
    for (const char c : text.substr(10))
        if (c < 'A' || c > 'Z') return false;
    return true;
}

std::string quoted(std::string_view text) {
    return "\"" + fromAnsi(text) + "\"";
}

Submission refused(std::string errore) {
    return {std::nullopt, std::move(errore)};
}

} // namespace

std::int32_t plausiblePunti(int lingua, int tempo) {
    // Per language, for 60, 90, 120 and 300 seconds.
    constexpr std::int32_t kBound[3][4] = {{98'000, 141'000, 183'000, 402'000},
                                           {78'000, 108'000, 133'000, 216'000},
                                           {98'000, 137'000, 173'000, 364'000}};
    if (!validLanguage(lingua) || !validLength(tempo)) return 0;
    const int column = tempo == 60 ? 0 : tempo == 90 ? 1 : tempo == 120 ? 2 : 3;
    return std::min(kBound[lingua - 1][column], maxPunti(tempo));
}

std::chrono::sys_days today() {
    return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
}

std::string_view trimmedView(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string nameProblem(std::string_view nome) {
    if (!visible(nome)) return "Il nome è vuoto.";
    if (nome.size() > kMaxNameBytes) return "Il nome supera i 30 caratteri.";
    if (!printable(nome)) return "Il nome contiene caratteri non ammessi.";
    return {};
}

std::int32_t maxPunti(int tempo) {
    return validLength(tempo) ? tempo * 2000 : 0;
}

bool validLength(int tempo) {
    return tempo == 60 || tempo == 90 || tempo == 120 || tempo == 300;
}

bool validLanguage(int lingua) {
    return lingua >= 1 && lingua <= 3;
}

Submission readSubmission(std::string_view query, std::chrono::sys_days now) {
    const auto parts = parseQuery(query);
    if (!parts)
        return refused("L'indirizzo contiene un \"%\" non seguito da due cifre esadecimali.");
    std::map<std::string_view, std::string_view> value;
    for (const QueryPart& part : *parts) {
        if (std::find(kParts.begin(), kParts.end(), part.key) == kParts.end())
            return refused("Parte sconosciuta nell'indirizzo: " + quoted(part.key) + ".");
        if (!value.emplace(part.key, part.value).second)
            return refused("La parte " + quoted(part.key) + " compare più di una volta.");
    }
    for (const std::string_view key : kParts)
        if (!value.contains(key)) return refused("Manca la parte " + quoted(key) + ".");

    WorldRecord record;
    const std::string_view nome = trimmedView(value["Nome"]);
    if (const std::string problem = nameProblem(nome); !problem.empty()) return refused(problem);
    record.nome = fromAnsi(nome);

    if (!programName(value["programma"]))
        return refused("Il programma deve essere \"Griglione_\" seguito da tre lettere maiuscole.");
    record.programma = value["programma"];

    if (!dateExists(value["data"]))
        return refused("La data " + quoted(value["data"]) + " non esiste (forma gg-mm-aaaa).");
    const auto data = dateOf(value["data"]);
    if (data.year() < std::chrono::year(kFirstYear))
        return refused("La data " + quoted(value["data"]) + " è anteriore al gioco.");
    if (std::chrono::sys_days(data) > now + std::chrono::days(1))
        return refused("La data " + quoted(value["data"]) + " è nel futuro.");
    record.data = value["data"];
    if (!timeExists(value["ora"]))
        return refused("L'ora " + quoted(value["ora"]) + " non esiste (forma hh:mm).");
    record.ora = value["ora"];

    const auto tempo = number(value["Tempo"]);
    if (!tempo || !validLength(*tempo))
        return refused("La durata della partita deve essere di 60, 90, 120 o 300 secondi.");
    record.tempo = *tempo;
    const auto lingua = number(value["Language"]);
    if (!lingua || !validLanguage(*lingua))
        return refused("La lingua deve essere 1 (italiano), 2 (inglese) o 3 (latino).");
    record.lingua = *lingua;

    const std::string_view punti = value["punti"];
    if (punti.starts_with('-') && allDigits(punti.substr(1)))
        return refused("Il punteggio non può essere negativo.");
    const auto score = number(punti);
    if (!score && allDigits(punti) && punti.find_first_not_of('0') != std::string_view::npos)
        return refused("Il punteggio supera il massimo possibile.");
    if (!score) return refused("Il punteggio deve essere un numero intero.");
    if (*score % 20 != 0) return refused("Il punteggio deve essere un multiplo di 20.");
    if (*score < kMinPunti)
        return refused("Il punteggio è sotto i 1000 punti, il minimo della tabella dei record.");
    const std::int32_t bound = plausiblePunti(record.lingua, record.tempo);
    if (*score > bound)
        return refused("Il punteggio supera il massimo possibile in una partita di " +
                       std::to_string(record.tempo) + " secondi in " +
                       std::string(languageName(record.lingua)) + " (" + std::to_string(bound) +
                       " punti).");
    record.punti = *score;

    const std::string_view note = trimmedView(value["Note"]);
    if (note.size() > kMaxNoteBytes) return refused("Le note superano i 200 caratteri.");
    if (!printable(note)) return refused("Le note contengono caratteri non ammessi.");
    record.note = fromAnsi(note);
    const std::string_view email = trimmedView(value["E_MAIL"]);
    if (email.size() > kMaxEmailBytes) return refused("L'indirizzo e-mail supera i 100 caratteri.");
    if (!printable(email)) return refused("L'indirizzo e-mail contiene caratteri non ammessi.");
    record.email = fromAnsi(email);
    return {std::move(record), {}};
}

} // namespace griglione
