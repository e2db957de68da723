// The real griglione-records on a free loopback port with a dictionary of its own: a challenge
// goes in through the submission address and comes back out of its board's table.
#include "dictionary/dictionary_format.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace griglione {
namespace {

struct Program {
    pid_t pid = 0;
    int port = 0;

    Program(const std::filesystem::path& database, const std::filesystem::path& dictionaries) {
        int out[2];
        EXPECT_EQ(pipe(out), 0);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
        posix_spawn_file_actions_addclose(&actions, out[0]);
        const std::string db = database.string(), words = dictionaries.string();
        const char* argv[] = {
            GRIGLIONE_RECORDS_PROGRAM, "--port",      "0",    "--database", db.c_str(),
            "--dictionaries",          words.c_str(), nullptr};
        EXPECT_EQ(posix_spawn(&pid, argv[0], &actions, nullptr, const_cast<char**>(argv), environ),
                  0);
        posix_spawn_file_actions_destroy(&actions);
        close(out[1]);
        FILE* stream = fdopen(out[0], "r");
        char line[512] = {};
        if (fgets(line, sizeof line, stream)) {
            const std::string text = line;
            const std::size_t colon = text.find("127.0.0.1:");
            if (colon != std::string::npos) port = std::stoi(text.substr(colon + 10));
        }
        fclose(stream);
    }
    ~Program() {
        if (!pid) return;
        kill(pid, SIGTERM);
        waitpid(pid, nullptr, 0);
    }

    // One GET on its own connection; the whole answer, head and body.
    std::string get(const std::string& target) const {
        const int s = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        std::string answer;
        if (connect(s, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) {
            const std::string request =
                "GET " + target + " HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n\r\n";
            if (write(s, request.data(), request.size()) == ssize_t(request.size())) {
                char buffer[4096];
                for (ssize_t n; (n = read(s, buffer, sizeof buffer)) > 0;)
                    answer.append(buffer, static_cast<std::size_t>(n));
            }
        }
        close(s);
        return answer;
    }
};

TEST(ChallengeRun, ASubmissionIsCheckedStoredAndShownOverHttp) {
    testing::TempFolder folder;
    WordLists words;
    words[1] = {"CASA", "SALA"};
    folder.write("SLESSICO.1", buildDictionaryFile(noticeText("prova"), words));
    Program program(folder.path() / "records.sqlite", folder.path());
    ASSERT_GT(program.port, 0);
    // A C A S A / M E R O L / …: CASA lies on the first row, SALA nowhere.
    const std::string code = "1015CPYGD3HXYWXJ1BHXMH6QDVW1";
    const std::string base = "/sfide/invia?codice=" + code + "&nome=Anna%20%C8&tempo=60";
    const std::string stored = program.get(base + "&parole=0CASA&punti=99999");
    EXPECT_EQ(stored.rfind("HTTP/1.1 200", 0), 0u) << stored;
    EXPECT_NE(stored.find("Cache-Control: no-store"), std::string::npos);
    const std::string refused = program.get(base + "&parole=0SALA");
    EXPECT_EQ(refused.rfind("HTTP/1.1 400", 0), 0u) << refused;
    EXPECT_NE(refused.find("<li>SALA</li>"), std::string::npos);
    const std::string table = program.get("/sfide/" + code + "?format=json");
    EXPECT_NE(table.find("\"giocatori\":[{\"posto\":1,\"nome\":\"Anna È\",\"punti\":320,"
                         "\"tempo\":60,\"parole\":[\"CASA\"]"),
              std::string::npos)
        << table;
    EXPECT_EQ(table.find("SALA"), std::string::npos);
    // English has no dictionary here: nothing is stored, and the service says why.
    EXPECT_EQ(program
                  .get("/sfide/invia?codice=213C5KF1QQ04KQ55SYFPKJ2YVZHP9N&nome=A&tempo=120&"
                       "parole=")
                  .rfind("HTTP/1.1 503", 0),
              0u);
    EXPECT_EQ(program.get("/oggi/").rfind("HTTP/1.1 200", 0), 0u);
    EXPECT_EQ(program.get("/giorni/9999-12-31").rfind("HTTP/1.1 404", 0), 0u);
}

} // namespace
} // namespace griglione
