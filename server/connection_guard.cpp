// Counting connections per address and shutting down the ones that wait too long.
#include "server/connection_guard.h"

#include <sys/socket.h>

namespace griglione {

bool ConnectionGuard::admits(const std::string& address) {
    if (m_perAddress <= 0 || address == m_exempt) return true;
    std::lock_guard lock(m_mutex);
    const auto it = m_open.find(address);
    return it == m_open.end() || it->second < m_perAddress;
}

ConnectionGuard::Entry* ConnectionGuard::opened(const std::string& address, int socket, Time now) {
    std::lock_guard lock(m_mutex);
    ++m_open[address];
    m_entries.push_front({address, socket, false, now});
    Entry* entry = &m_entries.front();
    m_where[entry] = m_entries.begin();
    return entry;
}

void ConnectionGuard::busy(Entry* entry) {
    std::lock_guard lock(m_mutex);
    entry->busy = true;
}

void ConnectionGuard::idle(Entry* entry, Time now) {
    std::lock_guard lock(m_mutex);
    entry->busy = false;
    entry->since = now;
}

void ConnectionGuard::closed(Entry* entry) {
    std::lock_guard lock(m_mutex);
    const auto it = m_where.find(entry);
    if (it == m_where.end()) return;
    if (const auto count = m_open.find(entry->address);
        count != m_open.end() && --count->second <= 0)
        m_open.erase(count);
    m_entries.erase(it->second);
    m_where.erase(it);
}

int ConnectionGuard::sweep(Time now) {
    int shut = 0;
    std::lock_guard lock(m_mutex);
    for (Entry& entry : m_entries)
        if (!entry.busy && entry.socket >= 0 && now - entry.since >= m_idle) {
            ::shutdown(entry.socket, SHUT_RDWR);
            entry.socket = -1; // once is enough; the server closes it on its next look
            ++shut;
        }
    return shut;
}

} // namespace griglione
