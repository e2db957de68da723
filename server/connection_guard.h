// Open connections per client address, and a deadline for every connection that is not being
// answered: one that sends its request too slowly, or sits idle between requests, is shut down.
#pragma once

#include <chrono>
#include <list>
#include <mutex>
#include <string>
#include <unordered_map>

namespace griglione {

class ConnectionGuard {
public:
    using Time = std::chrono::steady_clock::time_point;
    struct Entry {
        std::string address;
        int socket = -1;
        bool busy = false; // a request is being answered: no deadline
        Time since;        // when it last began to wait for a request
    };

    // `exempt` (the trusted proxy, or empty) carries many players and is not capped.
    ConnectionGuard(int perAddress, std::string exempt, std::chrono::milliseconds idle)
        : m_perAddress(perAddress), m_exempt(std::move(exempt)), m_idle(idle) {}

    bool admits(const std::string& address);
    Entry* opened(const std::string& address, int socket, Time now);
    void busy(Entry* entry);
    void idle(Entry* entry, Time now);
    // The socket is still open when this is called; after it the entry is gone.
    void closed(Entry* entry);
    // Shuts down (without closing: the server still owns them) the sockets whose wait has passed
    // the deadline; returns how many.
    int sweep(Time now);

private:
    int m_perAddress;
    std::string m_exempt;
    std::chrono::milliseconds m_idle;
    std::mutex m_mutex;
    std::unordered_map<std::string, int> m_open;
    std::list<Entry> m_entries;
    std::unordered_map<const Entry*, std::list<Entry>::iterator> m_where;
};

} // namespace griglione
