// The challenge pages (Italian, UTF-8): a board drawn in HTML with its players, the days'
// boards, the answer to a submission; and a board's players as JSON. Player text is escaped here.
#pragma once

#include "server/challenge.h"
#include "server/challenge_store.h"

#include <optional>
#include <string>
#include <vector>

namespace griglione {

// "24 novembre 2026".
std::string longDate(const CivilDate& date);

// The board, the link that opens it in the game and everyone who played it. `day` when the
// board is a day's; `highlighted` is the player key of a row to mark.
std::string challengePage(const SharedBoard& board, const std::optional<CivilDate>& day,
                          const std::vector<ChallengeRow>& rows,
                          const std::string& highlighted = {});
std::string challengeJson(const SharedBoard& board, const std::optional<CivilDate>& day,
                          const std::vector<ChallengeRow>& rows);

// The three boards of a day, with links to the day before and (for a past day) after.
std::string dayPage(const CivilDate& date, const CivilDate& today);

// The answer to a stored submission, with the board's table as it now stands.
std::string storedPage(const ChallengeEntry& entry, const ChallengeStored& stored,
                       const SharedBoard& board, const std::optional<CivilDate>& day,
                       const std::vector<ChallengeRow>& rows);

// The answer to a submission refused for its words: each one that failed, and why.
std::string refusedWordsPage(const CheckedChallenge& checked);

} // namespace griglione
