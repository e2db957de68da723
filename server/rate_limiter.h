// Events per client address per minute (records stored, requests refused), counted in fixed
// one-minute windows.
#pragma once

#include <chrono>
#include <mutex>
#include <string>
#include <unordered_map>

namespace griglione {

class RateLimiter {
public:
    using Time = std::chrono::steady_clock::time_point;

    // Zero lets everything through (for load tests on loopback).
    explicit RateLimiter(int perMinute) : m_perMinute(perMinute) {}

    // Counts one request of `client` at `now`; false past the limit of its minute.
    bool allow(const std::string& client, Time now);
    // Whether `client` has used up its minute, without counting anything.
    bool exhausted(const std::string& client, Time now);
    void count(const std::string& client, Time now);

private:
    struct Window {
        Time start;
        int count = 0;
    };

    Window& window(const std::string& client, Time now);

    int m_perMinute;
    std::mutex m_mutex;
    std::unordered_map<std::string, Window> m_windows;
};

} // namespace griglione
