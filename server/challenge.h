// The checks of a challenge submission: the board of its code, the day of a day's board, every
// word on the board and in the service's own copy of the main dictionary, the points counted here.
#pragma once

#include "board/board_code.h"
#include "core/civil_date.h"
#include "review/word_list.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace griglione {

// A day's board is played for this long, and only for this long.
inline constexpr int kDayBoardSeconds = 120;

// The main dictionaries of the three languages, read whole once and never changed after.
class ChallengeDictionaries {
public:
    ChallengeDictionaries() = default;
    // SLESSICO.1 to SLESSICO.3 of `folder`; a missing or unreadable one leaves its language empty.
    explicit ChallengeDictionaries(const std::filesystem::path& folder);
    // From a file's bytes, for one language.
    void set(int language, std::string_view dictionaryFile);

    bool has(int language) const;
    // `word` in upper case A–Z.
    bool holds(int language, std::string_view word) const;

private:
    std::array<WordList, 3> m_words;
};

// Which day a board of the day belongs to. The boards of every day of the years the index
// covers are drawn once, so that a code is known as a day's even when it is sent as a plain one.
class DayBoards {
public:
    static constexpr int kFirstYear = 2000;
    static constexpr int kLastYear = 2199;
    DayBoards();
    std::optional<CivilDate> dayOf(const SharedBoard& board) const;

private:
    std::vector<std::pair<std::uint64_t, std::int32_t>> m_days; // board's hash, day; sorted
};

struct ChallengeEntry {
    std::string codice;    // the canonical code
    std::string nome;      // UTF-8, as typed
    std::string giocatore; // the name that tells players apart: nome in upper case
    int tempo = 0;
    std::string parole; // packed
    std::int32_t punti = 0;
};

struct CheckedChallenge {
    std::optional<ChallengeEntry> entry;
    std::string errore;                // when there is no entry
    std::string codice;                // the canonical code, once it is known to be one
    int language = 0;                  // its language
    std::vector<std::string> offBoard; // words no path of the board spells
    std::vector<std::string> unknown;  // words not in the dictionary
    bool dictionaryMissing = false;    // the service lacks the language's dictionary
};

// L × L × 20 for each word of L letters.
std::int32_t challengePoints(const std::vector<std::string>& words);

// The name that tells players apart: case does not, so "Anna" and "ANNA" are one player.
std::string playerKey(std::string_view nome);

// The query of "/sfide/invia": codice, nome, tempo and parole, each once; other parts (a
// "punti", say) are ignored. A day's board is taken on its day and the day before or after.
CheckedChallenge checkChallenge(std::string_view query, const ChallengeDictionaries& dictionaries,
                                const DayBoards& days, const CivilDate& today);

} // namespace griglione
