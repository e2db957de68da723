// Submissions per client address per minute, counted in fixed one-minute windows.
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

private:
    struct Window {
        Time start;
        int count = 0;
    };

    int m_perMinute;
    std::mutex m_mutex;
    std::unordered_map<std::string, Window> m_windows;
};

} // namespace griglione
