// The real griglione-records on a free loopback port: a record built by the game's own code
// goes in through the address the game opens and comes back out of the world table whole; what
// may store a record and what may not; pipelined requests; one service per port; whose address
// counts behind a proxy.
#include "records/record_address.h"
#include "tests/server/raw_http.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace griglione {
namespace {

using testing::Answer;
using testing::fetch;
using testing::get;

// Starts the program with `args`; output (both streams) comes back through `out`.
pid_t spawnService(const std::vector<std::string>& args, int& out) {
    int pipe_[2];
    EXPECT_EQ(pipe(pipe_), 0);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipe_[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, pipe_[1], STDERR_FILENO);
    posix_spawn_file_actions_addclose(&actions, pipe_[0]);
    std::vector<const char*> argv{GRIGLIONE_RECORDS_PROGRAM};
    for (const std::string& arg : args)
        argv.push_back(arg.c_str());
    argv.push_back(nullptr);
    pid_t pid = 0;
    EXPECT_EQ(
        posix_spawn(&pid, argv[0], &actions, nullptr, const_cast<char**>(argv.data()), environ), 0);
    posix_spawn_file_actions_destroy(&actions);
    close(pipe_[1]);
    out = pipe_[0];
    return pid;
}

// Reads the port from the line the program prints when it listens.
struct RunningService {
    pid_t pid = 0;
    int port = 0;

    RunningService(const std::filesystem::path& database, std::vector<std::string> args = {}) {
        args.insert(args.begin(), {"--port", "0", "--database", database.string()});
        int out = -1;
        pid = spawnService(args, out);
        FILE* stream = fdopen(out, "r");
        char line[512] = {};
        // Warnings (a missing dictionary) may come before the line that names the port.
        for (int lines = 0; port == 0 && lines < 10 && fgets(line, sizeof line, stream); ++lines) {
            const std::string text = line;
            const std::size_t colon = text.find("in ascolto su http://127.0.0.1:");
            if (colon != std::string::npos) port = std::stoi(text.substr(colon + 31));
        }
        // The request lines keep coming: they are read away so the program never blocks.
        std::thread([stream] {
            while (fgets(std::array<char, 4096>{}.data(), 4096, stream)) {
            }
            fclose(stream);
        }).detach();
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
    std::string json(int lingua, int tempo) const {
        return fetch(port, get("/records/?Language=" + std::to_string(lingua) +
                               "&Tempo=" + std::to_string(tempo) + "&format=json"))
            .body;
    }
};

std::string submission(const std::string& nome, int punti) {
    return "/records/griglione.asp?Nome=" + nome +
           "&programma=Griglione_ABC&data=01-01-2026&punti=" + std::to_string(punti) +
           "&Tempo=90&Note=&E_MAIL=&ora=10:00&Language=1";
}

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

    const Answer stored = fetch(service.port, get(address.substr(host.size())));
    EXPECT_EQ(stored.status, 200) << stored.body;
    EXPECT_NE(stored.body.find("è registrato"), std::string::npos);
    // The game's "_" for the blanks of the note is shown as blanks.
    EXPECT_EQ(service.json(1, 120),
              "{\"lingua\":1,\"tempo\":120,\"record\":[{\"posto\":1,\"nome\":"
              "\"A#B \\u0026 C È\",\"punti\":1240,\"note\":\"nota #1   100  più\","
              "\"data\":\"05-03-2026\",\"ora\":\"07:09\"}]}\n");
    EXPECT_EQ(service.stop(), 0);
}

TEST(ServiceRun, OnlyAPlayersOwnGetStoresAndPipelinedRequestsAreEachAnswered) {
    testing::TempFolder folder;
    RunningService service(folder.path() / "records.sqlite");
    ASSERT_GT(service.port, 0);
    struct Case {
        std::string request;
        int status;
        std::string allow;
    };
    const Case cases[] = {
        // Range is not honoured: the whole page, never a cut one.
        {get("/records/?format=json", "Range: bytes=0-5,7-9\r\n"), 200, ""},
        {"HEAD " + submission("HEAD", 1000) + " HTTP/1.1\r\nHost: x\r\n\r\n", 405, "GET"},
        {get(submission("IMG", 1020), "Sec-Fetch-Dest: image\r\n"), 403, ""},
        {get(submission("IFRAME", 1040), "Sec-Fetch-Dest: iframe\r\n"), 403, ""},
        {get(submission("MIO", 1060), "Sec-Fetch-Dest: document\r\n"), 200, ""},
        {get(submission("VECCHIO", 1080)), 200, ""}, // a browser that sends no Sec-Fetch-Dest
        {get("/nessuna"), 404, ""},
        // Methods other than GET and HEAD close the connection after their answer: last.
        {"OPTIONS / HTTP/1.1\r\nHost: x\r\n\r\n", 405, "GET, HEAD"},
    };
    std::string all;
    std::vector<bool> headOnly;
    for (const Case& c : cases) {
        all += c.request;
        headOnly.push_back(c.request.starts_with("HEAD "));
    }
    const int fd = testing::connectFrom(service.port);
    ASSERT_EQ(write(fd, all.data(), all.size()), static_cast<ssize_t>(all.size()));
    const auto answers = testing::readAnswers(fd, std::size(cases), 5, headOnly);
    close(fd);
    ASSERT_EQ(answers.size(), std::size(cases));
    for (std::size_t i = 0; i < answers.size(); ++i) {
        EXPECT_EQ(answers[i].status, cases[i].status) << cases[i].request;
        EXPECT_EQ(answers[i].header("Allow"), cases[i].allow) << cases[i].request;
    }
    EXPECT_EQ(answers[0].body, "{\"lingua\":1,\"tempo\":120,\"record\":[]}\n");
    const std::string table = service.json(1, 90);
    EXPECT_NE(table.find("\"MIO\""), std::string::npos);
    EXPECT_NE(table.find("\"VECCHIO\""), std::string::npos);
    for (const char* refused : {"HEAD", "IMG", "IFRAME"})
        EXPECT_EQ(table.find(refused), std::string::npos) << refused;
}

TEST(ServiceRun, TheAddressAndTheHeadersAreBoundedToTheByte) {
    testing::TempFolder folder;
    RunningService service(folder.path() / "records.sqlite");
    ASSERT_GT(service.port, 0);
    // A request of exactly `bytes`, request line and headers, without the closing blank line.
    const auto sized = [](std::size_t bytes) {
        const std::string start = "GET / HTTP/1.1\r\nHost: x\r\nX-Pad: ";
        return start + std::string(bytes - start.size() - 2, 'p') + "\r\n\r\n";
    };
    const std::pair<std::string, int> cases[] = {
        {get("/records/?" + std::string(2048 - 10, 'x')), 200},
        {get("/records/?" + std::string(2049 - 10, 'x')), 414},
        {sized(8192), 200},
        {sized(8193), 431},
    };
    for (const auto& [request, status] : cases)
        EXPECT_EQ(fetch(service.port, request).status, status) << request.size();
}

TEST(ServiceRun, ASecondServiceOnThePortFailsAtOnceSayingWhy) {
    testing::TempFolder folder;
    RunningService first(folder.path() / "a.sqlite");
    ASSERT_GT(first.port, 0);
    for (const auto& [args, status, said] :
         {std::tuple<std::vector<std::string>, int, std::string>{
              {"--port", std::to_string(first.port), "--database",
               (folder.path() / "b.sqlite").string()},
              1,
              "la porta è già in uso"},
          {{"--help"}, 0, "--trusted-proxy IP"}}) {
        int out = -1;
        const pid_t pid = spawnService(args, out);
        std::string text;
        char chunk[4096];
        for (ssize_t got; (got = read(out, chunk, sizeof chunk)) > 0;)
            text.append(chunk, static_cast<std::size_t>(got));
        close(out);
        int exit = 0;
        waitpid(pid, &exit, 0);
        EXPECT_EQ(WEXITSTATUS(exit), status) << text;
        EXPECT_NE(text.find(said), std::string::npos) << text;
    }
}

TEST(ServiceRun, OnlyTheTrustedProxyNamesTheClient) {
    testing::TempFolder folder;
    RunningService service(folder.path() / "records.sqlite",
                           {"--trusted-proxy", "127.0.0.2", "--submissions-per-minute", "1",
                            "--connections-per-address", "2"});
    ASSERT_GT(service.port, 0);
    const auto send = [&](const char* from, const std::string& nome, const char* forwarded) {
        return fetch(service.port,
                     get(submission(nome, 2000),
                         std::string("X-Forwarded-For: ") + forwarded + "\r\n"),
                     from)
            .status;
    };
    // Behind the proxy two players have a record each, and the proxy's own address no cap.
    EXPECT_EQ(send("127.0.0.2", "A1", "10.0.0.1"), 200);
    EXPECT_EQ(send("127.0.0.2", "B1", "198.51.100.7, 10.0.0.2"), 200);
    EXPECT_EQ(send("127.0.0.2", "A2", "10.0.0.1"), 429);
    // A direct client cannot make itself someone else.
    EXPECT_EQ(send("127.0.0.3", "C1", "10.0.0.3"), 200);
    EXPECT_EQ(send("127.0.0.3", "C2", "10.0.0.4"), 429);

    // Two connections held from one address; the third is turned away, another address not.
    const int held[] = {testing::connectFrom(service.port, "127.0.0.5"),
                        testing::connectFrom(service.port, "127.0.0.5")};
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_EQ(fetch(service.port, get("/"), "127.0.0.5").status, 0);
    EXPECT_EQ(fetch(service.port, get("/"), "127.0.0.6").status, 200);
    for (const int fd : held)
        close(fd);
}

} // namespace
} // namespace griglione
