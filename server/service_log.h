// What the service tells its operator: one line per request on standard output and every failure,
// with its reason, on standard error (journald keeps both). A failure repeated for the same cause
// is written at most once a second, with the count of those left out.
#pragma once

#include <chrono>
#include <map>
#include <mutex>
#include <ostream>
#include <string>
#include <string_view>

namespace griglione {

class ServiceLog {
public:
    using Time = std::chrono::steady_clock::time_point;

    ServiceLog(std::ostream& out, std::ostream& err) : m_out(out), m_err(err) {}

    // Requests are written in bursts by flush(), so that logging costs no system call each.
    void request(std::string_view client, std::string_view method, std::string_view target,
                 int status, std::size_t bytes, double milliseconds);
    void flush();

    // `cause` groups the lines that may not repeat within a second; `detail` is the reason.
    void failure(std::string_view cause, std::string_view detail,
                 Time now = std::chrono::steady_clock::now());

private:
    struct Cause {
        Time last;
        long skipped = 0;
    };

    std::ostream& m_out;
    std::ostream& m_err;
    std::mutex m_requestMutex;
    std::string m_pending;
    std::mutex m_failureMutex;
    std::map<std::string, Cause, std::less<>> m_causes;
};

// The log of this process: standard output and standard error.
ServiceLog& serviceLog();

// The address as it may be logged: the e-mail part's value left out, bytes outside printable
// ASCII written as %XY so that nothing can forge a line.
std::string loggedTarget(std::string_view target);

} // namespace griglione
