// The challenge addresses of the records service: "/sfide/CODICE" (page or JSON), "/sfide/invia"
// (a checked submission), "/oggi/" and "/giorni/AAAA-MM-GG" (the boards of a day).
#pragma once

#include "server/challenge.h"
#include "server/challenge_store.h"
#include "server/records_service.h"

#include <cstdint>
#include <string_view>

namespace griglione {

// The players a board's table shows.
inline constexpr int kChallengeTableSize = 100;

// The service's clock as the challenges see it: its local date, which decides "today" and the
// days a day's board is taken, and the time a result is received.
struct ChallengeTime {
    CivilDate today;
    std::int64_t unixSeconds = 0;
};

ChallengeTime challengeTimeNow();

class ChallengeService {
public:
    ChallengeService(ChallengeStore& store, const ChallengeDictionaries& dictionaries,
                     const DayBoards& days);

    // True for the paths answered here.
    static bool handles(std::string_view path);
    // `path` without its query; "/sfide/invia" stores a result that passes every check.
    Reply answer(std::string_view path, std::string_view query, const ChallengeTime& now);

private:
    Reply board(std::string_view code, std::string_view query);
    Reply submit(std::string_view query, const ChallengeTime& now);
    Reply day(std::string_view date, const CivilDate& today);

    ChallengeStore& m_store;
    const ChallengeDictionaries& m_dictionaries;
    const DayBoards& m_days;
};

} // namespace griglione
