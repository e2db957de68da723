// The records service without HTTP: query traps, the refusals, escaping, duplicates, places,
// the rate limit, the schema version and the settings.
#include "server/pages.h"
#include "server/query.h"
#include "server/records_service.h"
#include "server/service_config.h"
#include "server/sqlite_store.h"
#include "server/submission.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <filesystem>
#include <sstream>
#include <thread>

namespace griglione {
namespace {

using Parts = std::vector<std::pair<std::string, std::string>>;

// A good submission, part by part, as the game sends it.
const Parts kGood = {{"Nome", "ANNA%20%23%26%C8"},
                     {"programma", "Griglione_QWE"},
                     {"data", "29-02-2024"},
                     {"punti", "1240"},
                     {"Tempo", "60"},
                     {"Note", "ciao%2B%25%3D"},
                     {"E_MAIL", "anna%40segreto.example"},
                     {"ora", "23:59"},
                     {"Language", "2"}};

std::string joined(const Parts& parts) {
    std::string query;
    for (const auto& [key, value] : parts)
        query += (query.empty() ? "" : "&") + key + "=" + value;
    return query;
}

// kGood with `key` given `value`; an empty key appends the value as a whole part.
std::string with(const std::string& key, const std::string& value) {
    Parts parts = kGood;
    if (key.empty()) return joined(parts) + value;
    for (auto& part : parts)
        if (part.first == key) part.second = value;
    return joined(parts);
}

std::string without(const std::string& key) {
    Parts parts;
    for (const auto& part : kGood)
        if (part.first != key) parts.push_back(part);
    return joined(parts);
}

TEST(Query, SplitsAndDecodesToBytes) {
    const auto parts = parseQuery("a=1+2&&b=%2b%3D%c8&c&=x&d=e=f");
    ASSERT_TRUE(parts);
    EXPECT_EQ(*parts, (std::vector<QueryPart>{
                          {"a", "1 2"}, {"b", "+=\xC8"}, {"c", ""}, {"", "x"}, {"d", "e=f"}}));
    for (const char* bad : {"a=%", "a=%4", "a=%G1", "%zz=1", "a=1&b=%%41"})
        EXPECT_FALSE(parseQuery(bad)) << bad;
}

TEST(Submission, ReadsTheGamesPartsInWindows1252) {
    const Submission good = readSubmission(joined(kGood));
    ASSERT_TRUE(good.record) << good.errore;
    EXPECT_EQ(*good.record, (WorldRecord{"ANNA #&È", "Griglione_QWE", "29-02-2024", 1240, 60,
                                         "ciao+%=", "anna@segreto.example", "23:59", 2}));
    // Trimmed name and empty notes and e-mail are fine; so are the bounds themselves.
    for (const std::string& query :
         {with("Nome", "++X+"), with("Note", ""), with("E_MAIL", ""), with("punti", "78000"),
          with("punti", "1000"), with("data", "01-01-2000"), with("ora", "00:00"),
          with("Nome", "%A0%ADx%A0"), with("Nome", std::string(30, 'N')),
          with("Note", std::string(200, 'n'))})
        EXPECT_TRUE(readSubmission(query).record) << query;
}

TEST(Submission, BoundsScoreAndDateByLanguageLengthAndToday) {
    using namespace std::chrono;
    const sys_days today = year(2026) / March / 5;
    const std::tuple<std::string, std::string, bool> cases[] = {
        {"punti=980&Tempo=300&Language=1&data=01-01-2026", "sotto i 1000", false},
        // The bound follows the language: 98,000 in Latin for a minute, 78,000 in English.
        {"punti=98000&Tempo=60&Language=3&data=01-01-2026", "", true},
        {"punti=78020&Tempo=60&Language=2&data=01-01-2026", "in inglese (78000 punti)", false},
        {"punti=402000&Tempo=300&Language=1&data=01-01-2026", "", true},
        {"punti=402020&Tempo=300&Language=1&data=01-01-2026", "(402000 punti)", false},
        // A day ahead of UTC is a player east of it; two days is the future.
        {"punti=1000&Tempo=60&Language=1&data=06-03-2026", "", true},
        {"punti=1000&Tempo=60&Language=1&data=07-03-2026", "nel futuro", false},
        {"punti=1000&Tempo=60&Language=1&data=31-12-1999", "anteriore al gioco", false},
    };
    for (const auto& [parts, message, stored] : cases) {
        Parts changed = kGood;
        std::string query;
        for (auto& [key, value] : changed)
            for (std::string_view rest = parts; !rest.empty();) {
                const std::string_view part = rest.substr(0, rest.find('&'));
                rest = part.size() < rest.size() ? rest.substr(part.size() + 1) : "";
                if (part.starts_with(key + "=")) value = part.substr(key.size() + 1);
            }
        const Submission result = readSubmission(joined(changed), today);
        EXPECT_EQ(result.record.has_value(), stored) << parts << " → " << result.errore;
        EXPECT_NE(result.errore.find(message), std::string::npos)
            << parts << " → " << result.errore;
    }
}

TEST(Submission, RefusesEachBadInputSayingWhy) {
    const std::pair<std::string, const char*> cases[] = {
        {without("Nome"), "Manca la parte \"Nome\""},
        {without("E_MAIL"), "Manca la parte \"E_MAIL\""},
        {with("", "&punti=20"), "\"punti\" compare più di una volta"},
        {with("", "&nome=X"), "Parte sconosciuta nell'indirizzo: \"nome\""},
        {with("", "&%C8=1"), "Parte sconosciuta nell'indirizzo: \"È\""},
        {with("Nome", "%20%20"), "Il nome è vuoto"},
        {with("Nome", "%A0+%A0"), "Il nome è vuoto"},
        {with("Nome", "%AD"), "Il nome è vuoto"},
        {with("Nome", std::string(31, 'N')), "supera i 30"},
        {with("Nome", "A%0AB"), "caratteri non ammessi"},
        {with("Note", "x%81"), "Le note contengono"},
        {with("Note", std::string(201, 'n')), "superano i 200"},
        {with("punti", "-20"), "negativo"},
        {with("punti", "1250"), "multiplo di 20"},
        {with("punti", "120000"), "massimo possibile in una partita di 60 secondi"},
        {with("punti", "99999999999"), "supera il massimo"},
        {with("punti", "12a0"), "numero intero"},
        {with("punti", ""), "numero intero"},
        {with("data", "29-02-2023"), "\"29-02-2023\" non esiste"},
        {with("data", "31-04-2024"), "non esiste"},
        {with("data", "01-13-2024"), "non esiste"},
        {with("data", "1-01-2024"), "non esiste"},
        {with("data", "01-01-0000"), "non esiste"},
        {with("ora", "24:00"), "L'ora \"24:00\" non esiste"},
        {with("ora", "12:60"), "non esiste"},
        {with("Language", "4"), "La lingua"},
        {with("Language", "0"), "La lingua"},
        {with("Tempo", "61"), "60, 90, 120 o 300"},
        {with("Tempo", "060x"), "60, 90, 120 o 300"},
        {with("programma", "Griglione_ab1"), "Griglione_"},
        {with("Nome", "%"), "\"%\""},
    };
    for (const auto& [query, message] : cases) {
        const Submission refused = readSubmission(query);
        EXPECT_FALSE(refused.record) << query;
        EXPECT_NE(refused.errore.find(message), std::string::npos)
            << query << " → " << refused.errore;
    }
}

// The service over a real database in a temporary folder.
struct ServiceTest : ::testing::Test {
    testing::TempFolder folder;
    SqliteStore store{folder.path() / "records.sqlite", 2};
    RecordsService service{store, 3, 5};
    RateLimiter::Time now{};

    Reply send(const std::string& query, const std::string& client = "10.0.0.1") {
        return service.submit(query, client, now);
    }
    std::string score(const std::string& name, int punti) {
        return joined({{"Nome", name},
                       {"programma", "Griglione_ABC"},
                       {"data", "01-01-2026"},
                       {"punti", std::to_string(punti)},
                       {"Tempo", "90"},
                       {"Note", ""},
                       {"E_MAIL", "x%40y.it"},
                       {"ora", "10:00"},
                       {"Language", "1"}});
    }
};

TEST_F(ServiceTest, StoresOnceShowsEscapedAndNeverTheEmail) {
    const std::string query = with("Nome", "%3Cb%3E%27x%22");
    // A second click on the game's link: new "programma" letters, a later minute.
    std::string clickedAgain = query;
    clickedAgain.replace(clickedAgain.find("_QWE"), 4, "_ZZZ");
    clickedAgain.replace(clickedAgain.find("23:59"), 5, "00:01");
    const Reply first = send(query), again = send(clickedAgain, "10.0.0.2");
    EXPECT_EQ(first.status, 200);
    EXPECT_NE(first.body.find("è registrato"), std::string::npos);
    EXPECT_NE(again.body.find("era già registrato"), std::string::npos);
    const Reply json = service.table("Language=2&Tempo=60&format=json");
    EXPECT_EQ(json.body, "{\"lingua\":2,\"tempo\":60,\"record\":[{\"posto\":1,\"nome\":"
                         "\"\\u003cb\\u003e'x\\\"\",\"punti\":1240,\"note\":\"ciao+%=\","
                         "\"data\":\"29-02-2024\",\"ora\":\"23:59\"}]}\n");
    for (const Reply& page : {first, again, service.table("Language=2&Tempo=60")}) {
        EXPECT_NE(page.body.find("&lt;b&gt;&#39;x&quot;"), std::string::npos);
        EXPECT_EQ(page.body.find("<b>"), std::string::npos);
        EXPECT_EQ(page.body.find("segreto"), std::string::npos);
    }
    EXPECT_EQ(json.body.find("segreto"), std::string::npos);
}

TEST_F(ServiceTest, RefusalsAndRecordsHaveAllowancesOfTheirOwn) {
    // Bad requests use up only their own allowance: the client's good record still goes in.
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(send(with("punti", "1030")).status, 400);
    EXPECT_EQ(send(with("punti", "1030")).status, 429);
    EXPECT_EQ(send(with("punti", "1040")).status, 200);
    // Sending a stored record again stores nothing, so it does not count as a record.
    EXPECT_EQ(send(with("punti", "1040")).status, 200);
    EXPECT_EQ(send(with("punti", "1060")).status, 200);
    EXPECT_EQ(send(with("punti", "1080")).status, 200);
    const Reply over = send(with("punti", "1100"));
    EXPECT_EQ(over.status, 429);
    EXPECT_NE(over.body.find("non è stato registrato"), std::string::npos);
    EXPECT_EQ(send(with("punti", "1100"), "10.0.0.9").status, 200);
    now += std::chrono::minutes(1);
    EXPECT_EQ(send(with("punti", "1120")).status, 200);
    EXPECT_EQ(store.best(2, 60, 50)->size(), 5u);
}

TEST_F(ServiceTest, PlacesEqualScoresInArrivalOrderWithFiveAroundTheNewOne) {
    RecordsService open{store, 0};
    for (int i = 1; i <= 14; ++i)
        open.submit(score("P" + std::to_string(i), 3000 - i * 100), "a", now);
    const Reply cached = open.table("Language=1&Tempo=90&format=json");
    const Reply page = open.submit(score("NEW", 2300), "a", now); // P7 holds 2300 already
    EXPECT_NE(page.body.find("8° posto"), std::string::npos);
    for (int shown : {3, 4, 5, 6, 7, 9, 10, 11, 12, 13})
        EXPECT_NE(page.body.find("<td class=\"n\">" + std::to_string(shown) + "</td>"),
                  std::string::npos)
            << shown;
    for (int hidden : {2, 14})
        EXPECT_EQ(page.body.find("<td class=\"n\">" + std::to_string(hidden) + "</td>"),
                  std::string::npos);
    EXPECT_NE(page.body.find("<tr class=\"tuo\"><td class=\"n\">8</td><td>NEW</td>"),
              std::string::npos);
    // The table seen before the new record is not served again after it.
    EXPECT_EQ(cached.body.find("NEW"), std::string::npos);
    const std::string json = open.table("Language=1&Tempo=90&format=json").body;
    EXPECT_LT(json.find("\"P7\""), json.find("\"NEW\""));
    EXPECT_LT(json.find("\"NEW\""), json.find("\"P8\""));
    EXPECT_EQ(open.table("Language=4").status, 400);
    EXPECT_EQ(open.table("Tempo=45").status, 400);
}

TEST(SqliteStoreFile, KeepsRecordsAcrossRunsAndRefusesANewerSchema) {
    testing::TempFolder folder;
    const auto file = folder.path() / "w.sqlite";
    const WorldRecord record{"A", "Griglione_ABC", "01-01-2026", 20, 60, "", "", "10:00", 1};
    EXPECT_TRUE(SqliteStore(file).add(record)->nuovo);
    EXPECT_FALSE(SqliteStore(file).add(record)->nuovo);
    sqlite3* db = nullptr;
    sqlite3_open(file.c_str(), &db);
    sqlite3_exec(db, "PRAGMA user_version = 2", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    EXPECT_THROW(SqliteStore{file}, std::runtime_error);
    EXPECT_THROW(SqliteStore{folder.path()}, std::runtime_error);
}

TEST(SqliteStoreFile, CopiesTheWalBackWhileServing) {
    testing::TempFolder folder;
    const auto file = folder.path() / "w.sqlite";
    SqliteStore store(file);
    // Many clients at once, as under load: the writer commits them in groups.
    std::vector<std::thread> clients;
    for (int c = 0; c < 32; ++c)
        clients.emplace_back([&store, c] {
            for (int i = 0; i < 500; ++i)
                store.add({"N" + std::to_string(c) + "_" + std::to_string(i), "Griglione_ABC",
                           "01-01-2026", 1000 + i * 20, 60, std::string(150, 'n'), "e@x.it",
                           "10:00", 1 + c % 3});
        });
    for (std::thread& client : clients)
        client.join();
    const auto wal = std::filesystem::path(file.string() + "-wal");
    // The checkpoint runs beside the writer: give it a moment to catch up.
    for (int i = 0; i < 40 && std::filesystem::file_size(wal) > 8 << 20; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_LE(std::filesystem::file_size(wal), 8u << 20);
    EXPECT_GT(std::filesystem::file_size(file), 1u << 20);
}

TEST(Config, FileThenArgumentsWithClearErrors) {
    ServiceConfig config;
    std::istringstream file("# comment\n\nport = 9000\r\naddress=0.0.0.0\nthreads = 4\n");
    EXPECT_EQ(readConfig(file, config), "");
    const char* args[] = {"x", "--port=0", "--database", "/tmp/d.sqlite"};
    EXPECT_EQ(readArguments(4, args, config), "");
    EXPECT_EQ(config.port, 0);
    EXPECT_EQ(config.address, "0.0.0.0");
    EXPECT_EQ(config.threads, 4);
    EXPECT_EQ(config.database, "/tmp/d.sqlite");
    const std::pair<std::string, std::string> bad[] = {
        {"port = 70000\n", "riga 1: port"},
        {"\nporta = 1\n", "riga 2: impostazione sconosciuta: porta"},
        {"threads\n", "riga 1: manca \"=\""},
        {"submissions-per-minute = -1\n", "riga 1: submissions-per-minute"},
        {"trusted-proxy = localhost\n", "riga 1: trusted-proxy"}};
    for (const auto& [text, error] : bad) {
        std::istringstream in(text);
        EXPECT_EQ(readConfig(in, config).rfind(error, 0), 0u) << text;
    }
    const char* missing[] = {"x", "--config", "/nonexistent/griglione.conf"};
    EXPECT_NE(readArguments(3, missing, config).find("impossibile leggere"), std::string::npos);
}

} // namespace
} // namespace griglione
