// Load on the records service over loopback: first submissions, then world-table views, each by
// a few keep-alive clients for a bounded time and count. Prints throughput and latency and fails
// below 2,000 submissions/s or 10,000 views/s, at a p99 of 20 ms or more, on any error, or when a
// record the service called stored is missing from the database afterwards.
//   records_load [SECONDS per phase (3)] [CLIENTS (16)]
#include "server/http_front.h"
#include "server/records_service.h"
#include "server/sqlite_store.h"
#include "server/static_files.h"

#include <httplib.h>
#include <sqlite3.h>

#include <fcntl.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <latch>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kMaxRequestsPerClient = 200'000;

struct Tally {
    std::vector<double> latencies; // ms
    long stored = 0;
    long errors = 0;
};

// Runs `clients` threads, each calling `request(client, i)` until the time or count is out.
template <typename Request>
Tally phase(int port, int clients, double seconds, Request request, double& elapsed) {
    std::vector<Tally> tallies(static_cast<std::size_t>(clients));
    std::vector<std::thread> threads;
    // Every client connects (one request each, untimed) before the clock starts, as a browser
    // keeps its connection: the timing is of requests, not of connection set-up.
    std::latch connected(clients + 1), go(1);
    Clock::time_point start, end;
    for (int c = 0; c < clients; ++c)
        threads.emplace_back([&, c] {
            httplib::Client client("127.0.0.1", port);
            client.set_keep_alive(true);
            client.set_connection_timeout(2, 0);
            client.set_read_timeout(2, 0);
            client.Get("/");
            connected.arrive_and_wait();
            go.wait();
            Tally& tally = tallies[static_cast<std::size_t>(c)];
            for (int i = 0; i < kMaxRequestsPerClient && Clock::now() < end; ++i) {
                const auto sent = Clock::now();
                const auto answer = client.Get(request(c, i));
                tally.latencies.push_back(
                    std::chrono::duration<double, std::milli>(Clock::now() - sent).count());
                if (!answer || answer->status != 200)
                    ++tally.errors;
                else if (answer->body.find("è registrato") != std::string::npos)
                    ++tally.stored;
            }
        });
    connected.arrive_and_wait();
    start = Clock::now();
    end =
        start + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    go.count_down();
    for (std::thread& t : threads)
        t.join();
    elapsed = std::chrono::duration<double>(Clock::now() - start).count();
    Tally all;
    for (Tally& t : tallies) {
        all.latencies.insert(all.latencies.end(), t.latencies.begin(), t.latencies.end());
        all.stored += t.stored;
        all.errors += t.errors;
    }
    std::sort(all.latencies.begin(), all.latencies.end());
    return all;
}

double percentile(const std::vector<double>& sorted, double p) {
    if (sorted.empty()) return 0;
    return sorted[std::min(sorted.size() - 1, static_cast<std::size_t>(p * sorted.size()))];
}

bool report(const char* what, const Tally& t, double elapsed, double minimumRate) {
    const double rate = static_cast<double>(t.latencies.size()) / elapsed;
    const double p99 = percentile(t.latencies, 0.99);
    std::printf("%-12s %7zu in %.2f s = %8.0f/s  p50 %.2f ms  p99 %.2f ms  max %.2f ms  "
                "errors %ld\n",
                what, t.latencies.size(), elapsed, rate, percentile(t.latencies, 0.5), p99,
                t.latencies.empty() ? 0.0 : t.latencies.back(), t.errors);
    return rate >= minimumRate && p99 < 20.0 && t.errors == 0;
}

// The disk's fsync time, which bounds every durable commit: printed beside the figures.
void reportFsync(const std::filesystem::path& folder) {
    const std::string file = (folder / "fsync-probe").string();
    const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (fd < 0) return;
    std::vector<double> times;
    const std::string page(4096, 'x');
    for (int i = 0; i < 100; ++i) {
        if (::write(fd, page.data(), page.size()) < 0) break;
        const auto start = Clock::now();
        ::fsync(fd);
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    ::close(fd);
    std::filesystem::remove(file);
    std::sort(times.begin(), times.end());
    std::printf("fsync of 4 KB on this disk: p50 %.2f ms  p99 %.2f ms\n", percentile(times, 0.5),
                percentile(times, 0.99));
}

long rowsIn(const std::filesystem::path& file) {
    sqlite3* db = nullptr;
    sqlite3_stmt* count = nullptr;
    long rows = -1;
    if (sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
        sqlite3_prepare_v2(db, "SELECT count(*) FROM record", -1, &count, nullptr) == SQLITE_OK &&
        sqlite3_step(count) == SQLITE_ROW)
        rows = sqlite3_column_int64(count, 0);
    sqlite3_finalize(count);
    sqlite3_close(db);
    return rows;
}

} // namespace

int main(int argc, char** argv) {
    using namespace griglione;
    const double seconds = argc > 1 ? std::clamp(std::atof(argv[1]), 0.5, 30.0) : 3.0;
    const int clients = argc > 2 ? std::clamp(std::atoi(argv[2]), 1, 64) : 16;
    const auto folder =
        std::filesystem::temp_directory_path() / ("griglione-load-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    const auto database = folder / "records.sqlite";

    reportFsync(folder);
    long stored = 0;
    bool ok = true;
    {
        SqliteStore store(database);
        RecordsService service(store, 0); // every client is 127.0.0.1: no limit here
        const StaticFiles none;
        HttpFront front(service, none, clients + 4);
        const int port = front.bind("127.0.0.1", 0);
        if (port < 0) return 1;
        std::thread server([&] { front.run(); });
        std::printf("records service on 127.0.0.1:%d, %d clients, %.1f s per phase, %u cores\n",
                    port, clients, seconds, std::thread::hardware_concurrency());

        double elapsed = 0;
        const Tally submissions = phase(
            port, clients, seconds,
            [](int c, int i) {
                const int tempo[] = {60, 90, 120, 300};
                return "/records/griglione.asp?Nome=C" + std::to_string(c) + "_" +
                       std::to_string(i) + "&programma=Griglione_ABC&data=01-01-2026&punti=" +
                       std::to_string((i * 7919 % 3000) * 20) +
                       "&Tempo=" + std::to_string(tempo[i % 4]) +
                       "&Note=carico&E_MAIL=&ora=12:00&Language=" + std::to_string(1 + c % 3);
            },
            elapsed);
        ok = report("submissions", submissions, elapsed, 2000) && ok;
        stored = submissions.stored;
        const Tally views = phase(
            port, clients, seconds,
            [](int c, int i) {
                const int tempo[] = {60, 90, 120, 300};
                return "/records/?Language=" + std::to_string(1 + (c + i) % 3) +
                       "&Tempo=" + std::to_string(tempo[i % 4]) + (i % 2 ? "&format=json" : "");
            },
            elapsed);
        ok = report("table views", views, elapsed, 10000) && ok;
        front.stop();
        server.join();
    }
    const long rows = rowsIn(database);
    std::printf("stored %ld, rows in the database afterwards %ld\n", stored, rows);
    std::filesystem::remove_all(folder);
    ok = ok && rows == stored && stored > 0;
    std::printf("%s\n", ok ? "PASS" : "FAIL");
    return ok ? 0 : 1;
}
