// What the service answers, apart from HTTP itself: the submission, the world table (page and
// JSON) and the home page. The world tables are kept rendered until a new record changes them.
#pragma once

#include "server/rate_limiter.h"
#include "server/record_store.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace griglione {

class ChallengeService;

inline constexpr const char* kHtml = "text/html; charset=utf-8";

struct Reply {
    int status = 200;
    std::string contentType = kHtml;
    std::string body;
};

// The rows shown above and below a new record on its confirmation page.
inline constexpr int kAroundSpan = 5;
inline constexpr int kTableSize = 50;

class RecordsService {
public:
    // Records stored and requests refused are counted apart, per client and minute.
    RecordsService(RecordStore& store, int submissionsPerMinute, int refusalsPerMinute = 60);

    // "/records/griglione.asp?<query>" from `client`.
    Reply submit(std::string_view query, const std::string& client, RateLimiter::Time now);
    // "/records/?Language=…&Tempo=…&format=json"; every part may be left out.
    Reply table(std::string_view query);
    Reply home() const;

    // The challenge addresses ("/sfide/…", "/oggi/", "/giorni/…"), answered by `challenges` once
    // it is given; a submission counts against the same limit as a record.
    void offerChallenges(ChallengeService& challenges) { m_challenges = &challenges; }
    Reply challenge(std::string_view target, const std::string& client, RateLimiter::Time now);

    static Reply error(int status, std::string_view title, std::string_view text);

private:
    struct Cached {
        std::uint64_t generation = 0;
        std::shared_ptr<const std::string> body;
    };

    RecordStore& m_store;
    RateLimiter m_limiter;
    RateLimiter m_refusals;
    std::mutex m_cacheMutex;
    std::map<int, std::uint64_t> m_generation; // per language and length
    std::map<int, Cached> m_cache;             // per language, length and format

    ChallengeService* m_challenges = nullptr;
};

} // namespace griglione
