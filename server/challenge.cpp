// Checking a challenge submission word by word against the board and the dictionary, and the
// index of the boards of the day.
#include "server/challenge.h"

#include "board/day_board.h"
#include "core/ansi_text.h"
#include "core/atomic_file.h"
#include "dictionary/dictionary_format.h"
#include "records/challenge_words.h"
#include "review/word_finder.h"
#include "server/query.h"
#include "server/submission.h"

#include <algorithm>
#include <map>

namespace griglione {
namespace {

std::uint64_t boardHash(const SharedBoard& board) {
    std::uint64_t hash = 0xCBF29CE484222325ull;
    const auto mix = [&hash](int value) {
        hash ^= static_cast<std::uint64_t>(value & 0xFF);
        hash *= 0x100000001B3ull;
    };
    mix(board.language);
    for (int n = 0; n < kCells; ++n) {
        mix(board.letters[n]);
        mix(board.faces[n]);
    }
    return hash;
}

std::string codeProblem(CodeError error) {
    switch (error) {
    case CodeError::Empty:
        return "Manca il codice del tabellone.";
    case CodeError::Symbol:
        return "Il codice del tabellone contiene un carattere che nessun codice ha.";
    case CodeError::Length:
        return "Il codice del tabellone non ha la lunghezza giusta.";
    case CodeError::Language:
        return "Il codice del tabellone deve cominciare con 1, 2 o 3 (la lingua).";
    case CodeError::Check:
        return "Il codice del tabellone contiene un errore di battitura.";
    default:
        return "Il codice non corrisponde a nessun tabellone.";
    }
}

CheckedChallenge refused(std::string errore) {
    CheckedChallenge result;
    result.errore = std::move(errore);
    return result;
}

} // namespace

ChallengeDictionaries::ChallengeDictionaries(const std::filesystem::path& folder) {
    for (int language = 1; language <= 3; ++language) {
        const auto bytes = readWholeFile(folder / dictionaryFileName(language));
        if (bytes) set(language, *bytes);
    }
}

void ChallengeDictionaries::set(int language, std::string_view dictionaryFile) {
    // Only the shipped words count in a challenge: no personal vocabulary.
    m_words[language - 1] = wordListFrom(dictionaryFile, {});
}

bool ChallengeDictionaries::has(int language) const {
    return language >= 1 && language <= 3 && !m_words[language - 1].blocks.empty();
}

bool ChallengeDictionaries::holds(int language, std::string_view word) const {
    if (!has(language)) return false;
    const auto length = word.size();
    for (const WordBlock& block : m_words[language - 1].blocks) {
        if (block.length != static_cast<int>(length)) continue;
        std::size_t lo = 0, hi = block.count();
        while (lo < hi) {
            const std::size_t mid = lo + (hi - lo) / 2;
            const std::string_view record =
                std::string_view(block.records).substr(mid * length, length);
            if (record == word) return true;
            if (record < word)
                lo = mid + 1;
            else
                hi = mid;
        }
    }
    return false;
}

DayBoards::DayBoards() {
    const long first = daysSinceEpoch({kFirstYear, 1, 1}),
               last = daysSinceEpoch({kLastYear, 12, 31});
    m_days.reserve(static_cast<std::size_t>(last - first + 1) * 3);
    for (long day = first; day <= last; ++day)
        for (int language = 1; language <= 3; ++language)
            m_days.emplace_back(boardHash(dayBoard(dateFromDays(day), language)),
                                static_cast<std::int32_t>(day));
    std::sort(m_days.begin(), m_days.end());
}

std::optional<CivilDate> DayBoards::dayOf(const SharedBoard& board) const {
    const std::uint64_t hash = boardHash(board);
    auto it = std::lower_bound(m_days.begin(), m_days.end(), std::pair(hash, INT32_MIN));
    // A hash says where to look; the board drawn again says whether it is the one.
    for (; it != m_days.end() && it->first == hash; ++it) {
        const CivilDate date = dateFromDays(it->second);
        if (dayBoard(date, board.language) == board) return date;
    }
    return std::nullopt;
}

std::int32_t challengePoints(const std::vector<std::string>& words) {
    std::int32_t points = 0;
    for (const std::string& word : words) {
        const auto length = static_cast<std::int32_t>(word.size());
        points += length * length * 20;
    }
    return points;
}

std::string playerKey(std::string_view nome) {
    return upperAnsiText(nome);
}

CheckedChallenge checkChallenge(std::string_view query, const ChallengeDictionaries& dictionaries,
                                const DayBoards& days, const CivilDate& today) {
    const auto parts = parseQuery(query);
    if (!parts)
        return refused("L'indirizzo contiene un \"%\" non seguito da due cifre esadecimali.");
    std::map<std::string, std::string_view> value;
    for (const QueryPart& part : *parts) {
        if (part.key != "codice" && part.key != "nome" && part.key != "tempo" &&
            part.key != "parole")
            continue;
        if (!value.emplace(part.key, part.value).second)
            return refused("La parte \"" + part.key + "\" compare più di una volta.");
    }
    for (const char* key : {"codice", "nome", "tempo", "parole"})
        if (!value.contains(key)) return refused(std::string("Manca la parte \"") + key + "\".");

    const DecodedBoard decoded = decodeBoard(value["codice"]);
    if (!decoded.board) return refused(codeProblem(decoded.error));
    const SharedBoard& board = *decoded.board;

    ChallengeEntry entry;
    entry.codice = encodeBoard(board);
    // The same rules as a record's name: what the table shows must be visible and printable.
    const std::string_view nome = trimmedView(value["nome"]);
    if (const std::string problem = nameProblem(nome); !problem.empty()) return refused(problem);
    entry.nome = fromAnsi(nome);
    entry.giocatore = playerKey(entry.nome);

    const std::string_view tempo = value["tempo"];
    entry.tempo = tempo == "60"    ? 60
                  : tempo == "90"  ? 90
                  : tempo == "120" ? 120
                  : tempo == "300" ? 300
                                   : 0;
    if (!validLength(entry.tempo))
        return refused("La durata della partita deve essere di 60, 90, 120 o 300 secondi.");
    if (const auto day = days.dayOf(board)) {
        const long distance = daysSinceEpoch(today) - daysSinceEpoch(*day);
        if (distance < -1 || distance > 1)
            return refused("Questo è il tabellone del giorno " + dateText(*day) +
                           ": si può inviare solo quel giorno, il giorno prima o il giorno dopo "
                           "(oggi, per il servizio, è il " +
                           dateText(today) + ").");
        if (entry.tempo != kDayBoardSeconds)
            return refused("Il tabellone del giorno si gioca in partite di 120 secondi.");
    }

    const auto words = unpackWords(value["parole"]);
    if (!words)
        return refused("L'elenco delle parole non è leggibile: lettere A–Z in ordine "
                       "alfabetico, ciascuna parola preceduta da una cifra.");
    for (const std::string& word : *words)
        if (word.size() < static_cast<std::size_t>(kMinWordLength) ||
            word.size() > static_cast<std::size_t>(kMaxWordLength))
            return refused("La parola \"" + word + "\" non ha da 3 a 10 lettere.");

    CheckedChallenge result;
    result.codice = entry.codice;
    result.language = board.language;
    if (!dictionaries.has(board.language)) {
        result.dictionaryMissing = true;
        result.errore = "Il servizio non ha il dizionario di questa lingua: riprova più tardi.";
        return result;
    }
    const BoardLetters letters = board.letters;
    // The dictionary first: a lookup is cheap, while tracing a made-up word such as AAAAAAAAAB
    // on a board of many A's walks a great many paths before it fails.
    for (const std::string& word : *words) {
        if (!dictionaries.holds(board.language, word))
            result.unknown.push_back(word);
        else if (tracePath(letters, word).empty())
            result.offBoard.push_back(word);
    }
    if (!result.offBoard.empty() || !result.unknown.empty()) {
        result.errore = "Alcune parole non valgono.";
        return result;
    }
    entry.parole = packWords(*words);
    entry.punti = challengePoints(*words);
    result.entry = std::move(entry);
    return result;
}

} // namespace griglione
