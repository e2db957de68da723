// The real griglione-records on a free loopback port: a record built by the game's own code
// goes in through the address the game opens and comes back out of the world table whole.
#include "records/record_address.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>
#include <httplib.h>

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace griglione {
namespace {

// Starts the program with `args` and reads the port from the line it prints when it listens.
struct RunningService {
    pid_t pid = 0;
    int port = 0;

    explicit RunningService(const std::filesystem::path& database) {
        int out[2];
        EXPECT_EQ(pipe(out), 0);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
        posix_spawn_file_actions_addclose(&actions, out[0]);
        const std::string db = database.string();
        const char* argv[] = {
            GRIGLIONE_RECORDS_PROGRAM, "--port", "0", "--database", db.c_str(), nullptr};
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
    // Stops it as systemd and Ctrl+C do; returns its exit status.
    int stop() {
        kill(pid, SIGTERM);
        int status = 0;
        waitpid(pid, &status, 0);
        pid = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    ~RunningService() {
        if (pid) stop();
    }
};

TEST(ServiceRun, TheGamesAddressLandsWholeInTheWorldTable) {
    testing::TempFolder folder;
    RunningService service(folder.path() / "records.sqlite");
    ASSERT_GT(service.port, 0);
    const std::string host = "http://127.0.0.1:" + std::to_string(service.port);
    setenv("GRIGLIONE_RECORDS_URL", host.c_str(), 1);
    testing::ScriptedRandom random;
    testing::FixedClock clock;
    const RecordDaInviare record{"  A#B & C È ",    1240, 120, " nota #1 & 100% più ",
                                 "chi+va@piano.it", 1};
    const std::string address = indirizzoRecord(record, {5, 3, 2026, 7, 9}, random, clock);
    unsetenv("GRIGLIONE_RECORDS_URL");
    ASSERT_EQ(address.rfind(host + "/records/griglione.asp?Nome=A%23B%20%26%20C%20%C8&", 0), 0u)
        << address;

    httplib::Client client(host);
    const auto stored = client.Get(address.substr(host.size()));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->status, 200) << stored->body;
    EXPECT_NE(stored->body.find("è registrato"), std::string::npos);

    const auto table = client.Get("/records/?Language=1&Tempo=120&format=json");
    ASSERT_TRUE(table);
    EXPECT_EQ(table->body, "{\"lingua\":1,\"tempo\":120,\"record\":[{\"posto\":1,\"nome\":"
                           "\"A#B \\u0026 C È\",\"punti\":1240,\"note\":\"nota_#1___100__più\","
                           "\"data\":\"05-03-2026\",\"ora\":\"07:09\"}]}\n");
    EXPECT_EQ(client.Get("/nessuna")->status, 404);
    const auto posted = client.Post("/records/griglione.asp", "Nome=A", "text/plain");
    ASSERT_TRUE(posted);
    EXPECT_EQ(std::pair(posted->status, posted->get_header_value("Allow")),
              std::pair(405, std::string("GET, HEAD")));
    EXPECT_EQ(service.stop(), 0);
}

} // namespace
} // namespace griglione
