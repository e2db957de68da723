// Request lines gathered and written in bursts; failure lines thinned per cause.
#include "server/service_log.h"

#include <ctime>
#include <iostream>

namespace griglione {
namespace {

constexpr std::size_t kFlushAt = 64 * 1024;

std::string utcNow() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text;
}

void appendPrintable(std::string& out, std::string_view text) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    for (const char c : text) {
        const auto b = static_cast<unsigned char>(c);
        if (b <= 0x20 || b >= 0x7F) {
            out += '%';
            out += kHex[b >> 4];
            out += kHex[b & 15];
        } else {
            out += c;
        }
    }
}

} // namespace

std::string loggedTarget(std::string_view target) {
    std::string out;
    std::size_t at = 0;
    while (at <= target.size()) {
        // Parts of the query begin after "?" or "&"; the path before "?" is kept as it is.
        const std::size_t mark = target.find("E_MAIL=", at);
        if (mark == std::string_view::npos) break;
        const bool partStart = mark > 0 && (target[mark - 1] == '?' || target[mark - 1] == '&') &&
                               target.find('?') < mark;
        const std::size_t valueStart = mark + 7;
        appendPrintable(out, target.substr(at, valueStart - at));
        at = valueStart;
        if (partStart) {
            const std::size_t end = target.find('&', valueStart);
            at = end == std::string_view::npos ? target.size() : end;
            if (at > valueStart) out += "...";
        }
    }
    if (at < target.size()) appendPrintable(out, target.substr(at));
    return out;
}

void ServiceLog::request(std::string_view client, std::string_view method, std::string_view target,
                         int status, std::size_t bytes, double milliseconds) {
    char tail[64];
    std::snprintf(tail, sizeof tail, " %d %zu %.1fms\n", status, bytes, milliseconds);
    std::string line = utcNow() + " ";
    appendPrintable(line, client);
    line += ' ';
    appendPrintable(line, method);
    line += ' ';
    line += loggedTarget(target);
    line += tail;
    std::lock_guard lock(m_requestMutex);
    m_pending += line;
    if (m_pending.size() >= kFlushAt) {
        m_out.write(m_pending.data(), static_cast<std::streamsize>(m_pending.size()));
        m_out.flush();
        m_pending.clear();
    }
}

void ServiceLog::flush() {
    std::lock_guard lock(m_requestMutex);
    if (m_pending.empty()) return;
    m_out.write(m_pending.data(), static_cast<std::streamsize>(m_pending.size()));
    m_out.flush();
    m_pending.clear();
}

void ServiceLog::failure(std::string_view cause, std::string_view detail, Time now) {
    std::lock_guard lock(m_failureMutex);
    auto it = m_causes.find(cause);
    if (it != m_causes.end() && now - it->second.last < std::chrono::seconds(1)) {
        ++it->second.skipped;
        return;
    }
    if (it == m_causes.end()) it = m_causes.emplace(std::string(cause), Cause{now, 0}).first;
    std::string line = utcNow() + " " + std::string(cause) + ": ";
    // The reason stays on one line whatever it quotes.
    for (const char c : detail)
        line += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? '?' : c;
    if (it->second.skipped > 0)
        line += " (" + std::to_string(it->second.skipped) + " uguali nell'ultimo secondo)";
    it->second = {now, 0};
    m_err << line << std::endl;
    // Old causes are forgotten, so that a stream of different ones cannot grow the map.
    if (m_causes.size() > 1000) m_causes.clear();
}

ServiceLog& serviceLog() {
    static ServiceLog log(std::cout, std::cerr);
    return log;
}

} // namespace griglione
