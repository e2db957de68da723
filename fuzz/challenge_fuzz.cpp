// Reads any bytes as the query of a challenge submission, against a small dictionary. An accepted
// result must hold only words traced on its board and found in the dictionary, with the points
// they are worth, and its name must add no markup to the pages that show it.
#include "dictionary/dictionary_format.h"
#include "records/challenge_words.h"
#include "review/word_finder.h"
#include "server/challenge.h"
#include "server/challenge_pages.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

using namespace griglione;

const ChallengeDictionaries& dictionaries() {
    static const ChallengeDictionaries words = [] {
        WordLists lists;
        lists[0] = {"ALA", "CAS", "ERA", "TRE"};
        lists[1] = {"ARTE", "CARO", "CASA", "MERO", "OLIO", "ROSA", "SALA"};
        lists[7] = {"ACASAMEROL"};
        ChallengeDictionaries all;
        for (int language = 1; language <= 3; ++language)
            all.set(language, buildDictionaryFile(noticeText("fuzz"), lists));
        return all;
    }();
    return words;
}

std::size_t marks(const std::string& page) {
    return static_cast<std::size_t>(std::count(page.begin(), page.end(), '<'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const DayBoards days;
    const std::string query(reinterpret_cast<const char*>(data), size);
    const CheckedChallenge checked = checkChallenge(query, dictionaries(), days, {2026, 11, 24});
    if (!checked.entry) {
        if (checked.errore.empty()) std::abort();
        if (!checked.offBoard.empty() || !checked.unknown.empty()) refusedWordsPage(checked);
        return 0;
    }
    const ChallengeEntry& e = *checked.entry;
    const DecodedBoard board = decodeBoard(e.codice);
    const auto words = unpackWords(e.parole);
    if (!board.board || encodeBoard(*board.board) != e.codice || !words ||
        packWords(*words) != e.parole || challengePoints(*words) != e.punti || e.nome.empty())
        std::abort();
    for (const std::string& word : *words)
        if (!dictionaries().holds(board.board->language, word) ||
            tracePath(board.board->letters, word).empty())
            std::abort();
    const std::vector<ChallengeRow> plain = {{1, "", e.punti, e.tempo, e.parole, 0}};
    const std::vector<ChallengeRow> rows = {{1, e.nome, e.punti, e.tempo, e.parole, 0}};
    if (marks(challengePage(*board.board, std::nullopt, rows)) !=
            marks(challengePage(*board.board, std::nullopt, plain)) ||
        marks(challengeJson(*board.board, std::nullopt, rows)) != 0)
        std::abort();
    return 0;
}
