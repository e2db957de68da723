// Counting submissions per client address in one-minute windows.
#include "server/rate_limiter.h"

#include <iterator>

namespace griglione {
namespace {

// Past this many addresses the ended windows are dropped, so the map stays small.
constexpr std::size_t kPruneAt = 10'000;

} // namespace

bool RateLimiter::allow(const std::string& client, Time now) {
    if (m_perMinute <= 0) return true;
    std::lock_guard lock(m_mutex);
    return ++window(client, now).count <= m_perMinute;
}

bool RateLimiter::exhausted(const std::string& client, Time now) {
    if (m_perMinute <= 0) return false;
    std::lock_guard lock(m_mutex);
    return window(client, now).count >= m_perMinute;
}

void RateLimiter::count(const std::string& client, Time now) {
    if (m_perMinute <= 0) return;
    std::lock_guard lock(m_mutex);
    ++window(client, now).count;
}

RateLimiter::Window& RateLimiter::window(const std::string& client, Time now) {
    if (m_windows.size() >= kPruneAt)
        for (auto it = m_windows.begin(); it != m_windows.end();)
            it = now - it->second.start >= std::chrono::minutes(1) ? m_windows.erase(it)
                                                                   : std::next(it);
    auto [it, fresh] = m_windows.try_emplace(client, Window{now, 0});
    Window& window = it->second;
    if (!fresh && now - window.start >= std::chrono::minutes(1)) window = {now, 0};
    return window;
}

} // namespace griglione
