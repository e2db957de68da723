// Challenges in the records service without HTTP: the checks of a submission word by word, the
// days a day's board is taken, one row per player and the exact JSON, the day routes.
#include "board/day_board.h"
#include "core/ansi_text.h"
#include "dictionary/dictionary_format.h"
#include "server/challenge_service.h"
#include "server/sqlite_challenge_store.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

// Vowels on the even cells, consonants on the odd ones, as every deal places them.
//   A C A S A
//   M E R O L
//   I T U N E
//   P O Z A V
//   O D I G A
SharedBoard testBoard() {
    SharedBoard board;
    const std::string_view letters = "ACASAMEROLITUNEPOZAVODIGA";
    for (int n = 0; n < kCells; ++n) {
        board.letters[n] = letters[n];
        board.faces[n] = n % 4 + 1;
    }
    return board;
}

// On the board: CASA, CARO, MERO, ROSA and ARTE (diagonals). In the dictionary but not on the
// board: SALA (no second A by the L), ALA (only by using one A twice), OLIO (only by stepping
// from the end of a row to the start of the next).
std::string testDictionary() {
    WordLists words;
    words[0] = {"ALA"};
    words[1] = {"ARTE", "CARO", "CASA", "MERO", "OLIO", "ROSA", "SALA"};
    return buildDictionaryFile(noticeText("prova"), words);
}

ChallengeDictionaries testDictionaries() {
    ChallengeDictionaries dictionaries;
    for (int language = 1; language <= 3; ++language)
        dictionaries.set(language, testDictionary());
    return dictionaries;
}

const DayBoards& days() {
    static const DayBoards index;
    return index;
}

const std::string kCode = encodeBoard(testBoard());

std::string query(const std::string& parole, const std::string& extra = {}) {
    return "codice=" + kCode + "&nome=Anna&tempo=90&parole=" + parole + extra;
}

TEST(ChallengeCheck, CountsOnlyWordsTracedOnTheBoardAndFoundInTheDictionary) {
    const ChallengeDictionaries dictionaries = testDictionaries();
    struct Case {
        std::string query;
        std::int32_t punti;           // when stored
        std::string parole;           // stored, canonical
        std::string error;            // a part of the refusal otherwise
        std::vector<std::string> off; // named as not on the board
        std::vector<std::string> unknown;
    };
    const std::string all = "0ARTE0CARO2SA0MERO0ROSA"; // ARTE CARO CASA MERO ROSA
    const Case cases[] = {
        {query(all), 1600, all, "", {}, {}},
        // The points are the service's own, whatever the address says.
        {query(all, "&punti=99999&Punti=1"), 1600, all, "", {}, {}},
        // A code typed loosely is the same board; the packing need not share letters.
        {"codice=" + lowerAscii(kCode.substr(0, 5)) + "-" + kCode.substr(5) +
             "&nome=Anna&tempo=90&parole=0CARO0CASA",
         640,
         "0CARO2SA",
         "",
         {},
         {}},
        {query(""), 0, "", "", {}, {}},
        {query("0ALA0CASA0OLIO0SALA"), 0, "", "alcune parole", {"ALA", "OLIO", "SALA"}, {}},
        {query("0CAS1ASA0ZZZ"), 0, "", "alcune parole", {}, {"CAS", "ZZZ"}},
        {query("0CASA0ARTE"), 0, "", "non è leggibile", {}, {}},
        {query("5CASA"), 0, "", "non è leggibile", {}, {}},
        {query("0casa"), 0, "", "non è leggibile", {}, {}},
        {query("0CA"), 0, "", "\"CA\" non ha da 3 a 10", {}, {}},
        {query("0CASA0CASALINGHIX"), 0, "", "non ha da 3 a 10", {}, {}},
        {query("0CASA", "&parole=0CARO"), 0, "", "\"parole\" compare più di una volta", {}, {}},
        {"codice=" + kCode + "&nome=Anna&parole=0CASA", 0, "", "Manca la parte \"tempo\"", {}, {}},
        {"codice=" + kCode + "&nome=Anna&tempo=45&parole=", 0, "", "60, 90, 120 o 300", {}, {}},
        {"codice=" + kCode + "&nome=+%20&tempo=90&parole=", 0, "", "nome è vuoto", {}, {}},
        {"codice=" + kCode + "&nome=A%0AB&tempo=90&parole=", 0, "", "non ammessi", {}, {}},
        {"codice=" + kCode.substr(0, 27) + (kCode[27] == 'A' ? "B" : "A") +
             "&nome=A&tempo=90&parole=",
         0,
         "",
         "errore di battitura",
         {},
         {}},
    };
    for (const Case& c : cases) {
        const CheckedChallenge checked =
            checkChallenge(c.query, dictionaries, days(), {2026, 11, 24});
        if (c.error.empty()) {
            ASSERT_TRUE(checked.entry) << c.query << " → " << checked.errore;
            EXPECT_EQ(checked.entry->punti, c.punti) << c.query;
            EXPECT_EQ(checked.entry->parole, c.parole) << c.query;
            EXPECT_EQ(checked.entry->codice, kCode);
        } else {
            EXPECT_FALSE(checked.entry) << c.query;
            EXPECT_NE(lowerAscii(checked.errore).find(lowerAscii(c.error)), std::string::npos)
                << c.query << " → " << checked.errore;
        }
        EXPECT_EQ(checked.offBoard, c.off) << c.query;
        EXPECT_EQ(checked.unknown, c.unknown) << c.query;
    }
}

TEST(ChallengeCheck, TakesADaysBoardOnlyNearItsDayAndOnlyForTwoMinutes) {
    const ChallengeDictionaries dictionaries = testDictionaries();
    const auto send = [&](const CivilDate& board, int language, const CivilDate& today,
                          const char* tempo = "120") {
        return checkChallenge("codice=" + encodeBoard(dayBoard(board, language)) +
                                  "&nome=Anna&tempo=" + tempo + "&parole=",
                              dictionaries, days(), today);
    };
    // Across the turn of a year and a leap day.
    const CivilDate newYear{2027, 1, 1}, leap{2028, 2, 29};
    for (int language = 1; language <= 3; ++language) {
        for (const CivilDate& board : {CivilDate{2026, 12, 31}, newYear, CivilDate{2027, 1, 2}})
            EXPECT_TRUE(send(board, language, newYear).entry) << dateText(board);
        for (const CivilDate& today : {CivilDate{2028, 2, 28}, CivilDate{2028, 3, 1}})
            EXPECT_TRUE(send(leap, language, today).entry) << dateText(today);
        for (const CivilDate& board : {CivilDate{2026, 12, 30}, CivilDate{2027, 1, 3}}) {
            const CheckedChallenge late = send(board, language, newYear);
            EXPECT_FALSE(late.entry);
            EXPECT_NE(late.errore.find("tabellone del giorno " + dateText(board)),
                      std::string::npos)
                << late.errore;
        }
        EXPECT_FALSE(send(leap, language, {2028, 3, 2}).entry);
        for (const char* tempo : {"60", "90", "300"})
            EXPECT_NE(send(newYear, language, newYear, tempo).errore.find("120 secondi"),
                      std::string::npos);
    }
    // Every day's board is known as that day's, in every language, even sent as a plain code.
    for (long day = daysSinceEpoch({2026, 1, 1}); day < daysSinceEpoch({2026, 1, 1}) + 1000; ++day)
        for (int language = 1; language <= 3; ++language)
            ASSERT_EQ(days().dayOf(dayBoard(dateFromDays(day), language)), dateFromDays(day));
    EXPECT_FALSE(days().dayOf(testBoard()));
}

// The service over a real database in a temporary folder, at a fixed moment.
struct ChallengeServiceTest : ::testing::Test {
    testing::TempFolder folder;
    SqliteChallengeStore store{challengeDatabase(folder.path() / "records.sqlite")};
    ChallengeDictionaries dictionaries = testDictionaries();
    ChallengeService service{store, dictionaries, days()};
    ChallengeTime now{{2026, 11, 24}, 1'700'000'000}; // 2023-11-14T22:13:20Z

    Reply send(const std::string& nome, const std::string& parole, const char* tempo = "90") {
        now.unixSeconds += 60;
        return service.answer(
            "/sfide/invia",
            "codice=" + kCode + "&nome=" + nome + "&tempo=" + tempo + "&parole=" + parole, now);
    }
    std::string json() { return service.answer("/sfide/" + kCode, "format=json", now).body; }
};

TEST_F(ChallengeServiceTest, KeepsEachPlayersBestOnceInTheOrderItWasReached) {
    EXPECT_EQ(challengeDatabase("/var/lib/g/griglione-records.sqlite"),
              "/var/lib/g/griglione-records-sfide.sqlite");
    const std::pair<Reply, const char*> steps[] = {
        {send("Anna", "0CASA"), "è registrato"},
        {send("%3Cb%3E%22Bo", "0CARO"), "è registrato"},
        {send("ANNA", "0CASA", "300"), "era già registrato"},
        {send("anna", "0CARO"), "vale almeno quanto questo"},
        {send("Bruno", "0ALA"), "non è stato registrato"},
        {send("%E0nna", "0MERO"), "è registrato"}, // "ànna" is someone else
        {send("ANNA", "0ARTE0CASA"), "migliorato: da 320 a 640 punti"},
    };
    for (const auto& [reply, message] : steps)
        EXPECT_NE(reply.body.find(message), std::string::npos) << message << "\n" << reply.body;
    EXPECT_EQ(steps[4].first.status, 400);
    EXPECT_NE(steps[4].first.body.find("<li>ALA</li>"), std::string::npos);
    EXPECT_EQ(json(),
              "{\"codice\":\"" + kCode +
                  "\",\"lingua\":1,\"giorno\":null,\"lettere\":\"ACASAMEROLITUNEPOZAVODIGA\","
                  "\"facce\":\"1234123412341234123412341\",\"giocatori\":["
                  "{\"posto\":1,\"nome\":\"ANNA\",\"punti\":640,\"tempo\":90,\"parole\":"
                  "[\"ARTE\",\"CASA\"],\"ricevuto\":\"2023-11-14T22:20:20Z\"},"
                  "{\"posto\":2,\"nome\":\"\\u003cb\\u003e\\\"Bo\",\"punti\":320,\"tempo\":90,"
                  "\"parole\":[\"CARO\"],\"ricevuto\":\"2023-11-14T22:15:20Z\"},"
                  "{\"posto\":3,\"nome\":\"ànna\",\"punti\":320,\"tempo\":90,\"parole\":"
                  "[\"MERO\"],\"ricevuto\":\"2023-11-14T22:19:20Z\"}]}\n");
    const Reply page = service.answer("/sfide/" + lowerAscii(kCode), "", now);
    EXPECT_NE(page.body.find("&lt;b&gt;&quot;Bo"), std::string::npos);
    EXPECT_EQ(page.body.find("<b>"), std::string::npos);
    EXPECT_NE(page.body.find("href=\"griglione:" + kCode + "\""), std::string::npos);
    EXPECT_NE(page.body.find("<tr><td class=\"f1\">A</td><td class=\"f2\">C</td>"),
              std::string::npos);
}

TEST_F(ChallengeServiceTest, RoutesTheDaysAndRefusesBadCodesAndDates) {
    const auto code = [](const CivilDate& date, int language) {
        return "/sfide/" + encodeBoard(dayBoard(date, language));
    };
    const Reply today = service.answer("/oggi/", "", now);
    const Reply yesterday = service.answer("/giorni/2026-11-23", "", now);
    for (int language = 1; language <= 3; ++language) {
        EXPECT_NE(today.body.find(code({2026, 11, 24}, language)), std::string::npos);
        EXPECT_NE(yesterday.body.find(code({2026, 11, 23}, language)), std::string::npos);
    }
    EXPECT_NE(yesterday.body.find("href=\"/oggi/\">Giorno seguente"), std::string::npos);
    EXPECT_NE(service.answer(code({2026, 11, 23}, 2), "", now)
                  .body.find("Tabellone del giorno 23 novembre 2026, inglese"),
              std::string::npos);
    const std::pair<const char*, int> refused[] = {
        {"/giorni/2026-11-25", 404},
        {"/giorni/2026-02-29", 400},
        {"/giorni/2026-1-05", 400},
        {"/giorni/1999-12-31", 404},
        {"/giorni/", 400},
        {"/sfide/", 404},
        {"/sfide/1ABC", 404},
        {"/sfide/%3Cscript%3E", 404},
        {"/oggi/x", 404},
    };
    for (const auto& [path, status] : refused)
        EXPECT_EQ(service.answer(path, "", now).status, status) << path;
    const Reply tag = service.answer("/sfide/<i>x", "", now);
    EXPECT_NE(tag.body.find("&lt;i&gt;x"), std::string::npos);
    EXPECT_EQ(tag.body.find("<i>"), std::string::npos);
}

} // namespace
} // namespace griglione
