// Routing of the challenge addresses to the checks, the store and the pages.
#include "server/challenge_service.h"

#include "board/day_board.h"
#include "server/challenge_pages.h"
#include "server/query.h"

#include <chrono>
#include <ctime>

namespace griglione {
namespace {

constexpr const char* kJson = "application/json; charset=utf-8";
constexpr std::string_view kBoards = "/sfide/";
constexpr std::string_view kDays = "/giorni/";

Reply unavailable() {
    return RecordsService::error(503, "Servizio non disponibile",
                                 "Il database delle sfide non risponde: riprova più tardi. Il "
                                 "risultato non è stato registrato.");
}

} // namespace

ChallengeTime challengeTimeNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
            static_cast<std::int64_t>(now)};
}

ChallengeService::ChallengeService(ChallengeStore& store, const ChallengeDictionaries& dictionaries,
                                   const DayBoards& days)
    : m_store(store), m_dictionaries(dictionaries), m_days(days) {}

bool ChallengeService::handles(std::string_view path) {
    return path.starts_with(kBoards) || path.starts_with(kDays) || path == "/oggi/" ||
           path == "/oggi";
}

Reply ChallengeService::answer(std::string_view path, std::string_view query,
                               const ChallengeTime& now) {
    if (path == "/sfide/invia") return submit(query, now);
    if (path.starts_with(kBoards)) return board(path.substr(kBoards.size()), query);
    if (path.starts_with(kDays)) return day(path.substr(kDays.size()), now.today);
    if (path == "/oggi/" || path == "/oggi") return {200, kHtml, dayPage(now.today, now.today)};
    return RecordsService::error(404, "Pagina non trovata", "Questa pagina non esiste.");
}

Reply ChallengeService::board(std::string_view code, std::string_view query) {
    const DecodedBoard decoded = decodeBoard(code);
    if (!decoded.board)
        return RecordsService::error(
            404, "Sfida non trovata",
            "\"" + std::string(code.substr(0, 64)) +
                "\" non è il codice di un tabellone: controlla di averlo copiato intero.");
    bool json = false;
    if (const auto parts = parseQuery(query))
        for (const QueryPart& part : *parts)
            json = json || (part.key == "format" && part.value == "json");
    const auto rows = m_store.players(encodeBoard(*decoded.board), kChallengeTableSize);
    if (!rows)
        return RecordsService::error(503, "Servizio non disponibile",
                                     "Il database delle sfide non risponde: riprova più tardi.");
    const auto day = m_days.dayOf(*decoded.board);
    if (json) return {200, kJson, challengeJson(*decoded.board, day, *rows)};
    return {200, kHtml, challengePage(*decoded.board, day, *rows)};
}

Reply ChallengeService::submit(std::string_view query, const ChallengeTime& now) {
    const CheckedChallenge checked = checkChallenge(query, m_dictionaries, m_days, now.today);
    if (checked.dictionaryMissing)
        return RecordsService::error(503, "Servizio non disponibile",
                                     checked.errore + " Il risultato non è stato registrato.");
    if (!checked.entry) {
        if (checked.offBoard.empty() && checked.unknown.empty())
            return RecordsService::error(400, "Richiesta non valida",
                                         checked.errore + " Il risultato non è stato registrato.");
        return {400, kHtml, refusedWordsPage(checked)};
    }
    const ChallengeEntry& entry = *checked.entry;
    const auto stored = m_store.add(entry, now.unixSeconds);
    if (!stored) return unavailable();
    const SharedBoard board = *decodeBoard(entry.codice).board;
    const auto rows = m_store.players(entry.codice, kChallengeTableSize);
    return {200, kHtml,
            storedPage(entry, *stored, board, m_days.dayOf(board),
                       rows.value_or(std::vector<ChallengeRow>{}))};
}

Reply ChallengeService::day(std::string_view text, const CivilDate& today) {
    const auto date = parseDate(text);
    if (!date)
        return RecordsService::error(400, "Data non valida",
                                     "La data deve essere un giorno del calendario nella forma "
                                     "AAAA-MM-GG, per esempio 2026-11-24.");
    if (*date > today)
        return RecordsService::error(404, "Giorno non ancora arrivato",
                                     "Il tabellone di quel giorno non è ancora uscito.");
    if (date->year < DayBoards::kFirstYear)
        return RecordsService::error(404, "Giorno senza tabellone",
                                     "Non ci sono tabelloni del giorno prima del 2000.");
    return {200, kHtml, dayPage(*date, today)};
}

} // namespace griglione
