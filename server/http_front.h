// The service on HTTP: routes, limits and headers around RecordsService, with cpp-httplib.
#pragma once

#include <memory>
#include <string>

namespace httplib {
class Server;
}

namespace griglione {

class RecordsService;
class StaticFiles;

// Limits on what one request may bring, and how long a connection may sit idle.
inline constexpr std::size_t kMaxTargetBytes = 2048;
inline constexpr std::size_t kMaxHeaders = 64;
inline constexpr std::size_t kMaxBodyBytes = 4096;
inline constexpr int kKeepAliveSeconds = 3;
inline constexpr int kKeepAliveRequests = 1000;
inline constexpr int kReadTimeoutSeconds = 5;
inline constexpr std::size_t kQueuedConnections = 256;
// Connections the kernel holds before the service accepts them (capped by somaxconn).
inline constexpr int kListenBacklog = 1024;

class HttpFront {
public:
    HttpFront(RecordsService& service, const StaticFiles& files, int threads);
    ~HttpFront();

    // Binds `address`; port 0 takes any free port. Returns the port, or -1.
    int bind(const std::string& address, int port);
    // Serves until stop(); false if the server could not listen.
    bool run();
    void stop();

private:
    std::unique_ptr<httplib::Server> m_server;
    int m_socket = -1; // the listening socket, once bound
};

} // namespace griglione
