// The service on HTTP: routes, limits and headers around RecordsService, with GNU libmicrohttpd.
// A few event threads hold every connection (epoll); what may wait on the database runs on
// worker threads while its connection is suspended, so no client can hold up another.
#pragma once

#include <chrono>
#include <memory>
#include <string>

struct MHD_Daemon;

namespace griglione {

class RecordsService;
class StaticFiles;

// Limits on what one request may bring, and how long a connection may wait for one.
inline constexpr std::size_t kMaxTargetBytes = 2048;
// The request line and the headers together.
inline constexpr std::size_t kMaxHeaderBytes = 8192;
inline constexpr std::size_t kMaxHeaders = 64;
// Memory of one connection: its request, its headers and the head of its answer.
inline constexpr std::size_t kConnectionMemory = 16 * 1024;
// A request must arrive whole within this time of the connection opening or of the last answer.
inline constexpr std::chrono::seconds kWaitLimit{5};
// Connections the kernel holds before the service accepts them (capped by somaxconn).
inline constexpr int kListenBacklog = 1024;

struct FrontOptions {
    int workers = 16;               // threads for submissions
    int connections = 4096;         // open connections in all
    int connectionsPerAddress = 16; // from one client address (0: no cap)
    std::string trustedProxy;       // its X-Forwarded-For is believed; empty: nobody's
    bool logRequests = true;        // one line per request on standard output
};

class HttpFront {
public:
    HttpFront(RecordsService& service, const StaticFiles& files, FrontOptions options = {});
    ~HttpFront();

    // Binds `address` without sharing the port; port 0 takes any free port. Returns the port,
    // or -1 with the reason in error().
    int bind(const std::string& address, int port);
    const std::string& error() const { return m_error; }
    // Serves until stop(); false if the server could not start.
    bool run();
    void stop();

    struct State;

private:
    std::unique_ptr<State> m_state;
    int m_socket = -1; // the listening socket, once bound
    std::string m_error;
};

} // namespace griglione
