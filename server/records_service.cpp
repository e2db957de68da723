// Submission, world table and home page as replies; rendered tables kept until a record changes
// them.
#include "server/records_service.h"

#include "server/challenge_service.h"
#include "server/pages.h"
#include "server/query.h"
#include "server/submission.h"

namespace griglione {
namespace {

constexpr const char* kJson = "application/json; charset=utf-8";
constexpr const char* kNotStored = " Il record non è stato registrato.";

int tableKey(int lingua, int tempo) {
    return lingua * 1000 + tempo;
}

} // namespace

RecordsService::RecordsService(RecordStore& store, int submissionsPerMinute, int refusalsPerMinute)
    : m_store(store), m_limiter(submissionsPerMinute), m_refusals(refusalsPerMinute) {}

Reply RecordsService::error(int status, std::string_view title, std::string_view text) {
    return {status, kHtml, errorPage(title, text)};
}

Reply RecordsService::submit(std::string_view query, const std::string& client,
                             RateLimiter::Time now) {
    const auto tooMany = [] {
        return error(429, "Troppi invii",
                     std::string("Da questo indirizzo sono arrivati troppi record nell'ultimo "
                                 "minuto: riprova tra un minuto.") +
                         kNotStored);
    };
    if (m_limiter.exhausted(client, now)) return tooMany();
    const Submission submission = readSubmission(query);
    // A refusal uses up only the allowance of refusals: a good record still gets through.
    if (!submission.record)
        return m_refusals.allow(client, now)
                   ? error(400, "Richiesta non valida", submission.errore + kNotStored)
                   : tooMany();
    const WorldRecord& record = *submission.record;
    const auto stored = m_store.add(record);
    if (!stored)
        return error(503, "Servizio non disponibile",
                     std::string("Il database non ha potuto salvare il record: riprova più "
                                 "tardi.") +
                         kNotStored);
    // Only a new record uses up the allowance of records; sending one again is a refusal.
    (stored->nuovo ? m_limiter : m_refusals).count(client, now);
    if (stored->nuovo) {
        std::lock_guard lock(m_cacheMutex);
        ++m_generation[tableKey(record.lingua, record.tempo)];
    }
    const Neighbourhood place = m_store.around(stored->id, kAroundSpan).value_or(Neighbourhood{});
    return {200, kHtml,
            confirmationPage(record, stored->nuovo, place.posto, place.righe, stored->id)};
}

Reply RecordsService::table(std::string_view query) {
    int lingua = 1, tempo = 120;
    bool json = false;
    const auto parts = parseQuery(query);
    if (!parts) return error(400, "Richiesta non valida", "L'indirizzo contiene un \"%\" errato.");
    for (const QueryPart& part : *parts) {
        if (part.key == "Language") {
            lingua = part.value.size() == 1 ? part.value[0] - '0' : 0;
            if (!validLanguage(lingua))
                return error(400, "Richiesta non valida",
                             "La lingua deve essere 1 (italiano), 2 (inglese) o 3 (latino).");
        } else if (part.key == "Tempo") {
            tempo = part.value == "60" || part.value == "90" || part.value == "120" ||
                            part.value == "300"
                        ? std::stoi(part.value)
                        : 0;
            if (!validLength(tempo))
                return error(400, "Richiesta non valida",
                             "La durata deve essere di 60, 90, 120 o 300 secondi.");
        } else if (part.key == "format") {
            json = part.value == "json";
        }
    }
    const int key = tableKey(lingua, tempo);
    const int cacheKey = key * 2 + (json ? 1 : 0);
    std::uint64_t generation;
    {
        std::lock_guard lock(m_cacheMutex);
        generation = m_generation[key];
        const auto it = m_cache.find(cacheKey);
        if (it != m_cache.end() && it->second.generation == generation)
            return {200, json ? kJson : kHtml, *it->second.body};
    }
    const auto rows = m_store.best(lingua, tempo, kTableSize);
    if (!rows)
        return error(503, "Servizio non disponibile",
                     "Il database non risponde: riprova più tardi.");
    auto body = std::make_shared<const std::string>(json ? tableJson(lingua, tempo, *rows)
                                                         : tablePage(lingua, tempo, *rows));
    {
        // A record that arrived meanwhile has moved the generation on: this copy is not kept.
        std::lock_guard lock(m_cacheMutex);
        if (m_generation[key] == generation) m_cache[cacheKey] = {generation, body};
    }
    return {200, json ? kJson : kHtml, *body};
}

Reply RecordsService::home() const {
    return {200, kHtml, homePage()};
}

Reply RecordsService::challenge(std::string_view target, const std::string& client,
                                RateLimiter::Time now) {
    const std::string_view path = target.substr(0, target.find('?'));
    const std::string_view query =
        path.size() < target.size() ? target.substr(path.size() + 1) : std::string_view();
    if (!m_challenges || !ChallengeService::handles(path))
        return error(404, "Pagina non trovata", "Questa pagina non esiste.");
    if (path != "/sfide/invia") return m_challenges->answer(path, query, challengeTimeNow());
    const auto tooMany = [] {
        return error(429, "Troppi invii",
                     "Da questo indirizzo sono arrivati troppi invii nell'ultimo minuto: riprova "
                     "tra un minuto. Il risultato non è stato registrato.");
    };
    if (m_limiter.exhausted(client, now)) return tooMany();
    Reply reply = m_challenges->answer(path, query, challengeTimeNow());
    // As with records: a refused result uses up only the allowance of refusals.
    if (reply.status == 200) {
        m_limiter.count(client, now);
        return reply;
    }
    return m_refusals.allow(client, now) ? reply : tooMany();
}

} // namespace griglione
