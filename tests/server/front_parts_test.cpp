// The parts of the HTTP layer that decide on their own: what a logged address keeps, how often a
// failure is written, and which connections the deadline shuts.
#include "server/connection_guard.h"
#include "server/service_log.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <unistd.h>

#include <sstream>

namespace griglione {
namespace {

TEST(ServiceLog, LoggedAddressesKeepNoEmailAndNoLineBreaks) {
    const std::pair<std::string, std::string> cases[] = {
        {"/records/griglione.asp?Nome=A&E_MAIL=a%40b.it&ora=1", "/records/griglione.asp?Nome=A&"
                                                                "E_MAIL=...&ora=1"},
        {"/r?E_MAIL=x", "/r?E_MAIL=..."},
        {"/r?E_MAIL=&Nome=A", "/r?E_MAIL=&Nome=A"},
        {"/r?E_MAIL=a&E_MAIL=b", "/r?E_MAIL=...&E_MAIL=..."},
        // Only a part of the query is the e-mail: not a value that contains the name.
        {"/r?Note=E_MAIL=x&XE_MAIL=y", "/r?Note=E_MAIL=x&XE_MAIL=y"},
        {"/E_MAIL=x", "/E_MAIL=x"},
        {"/a b\r\nX\xC8", "/a%20b%0D%0AX%C8"},
    };
    for (const auto& [target, logged] : cases)
        EXPECT_EQ(loggedTarget(target), logged) << target;
}

TEST(ServiceLog, AFailureRepeatsAtMostOnceASecondPerCause) {
    std::ostringstream out, err;
    ServiceLog log(out, err);
    const ServiceLog::Time t0{};
    using std::chrono::milliseconds;
    log.failure("database", "disco pieno", t0);
    log.failure("database", "disco pieno", t0 + milliseconds(500));
    log.failure("database", "disco pieno", t0 + milliseconds(999));
    log.failure("429 10.0.0.1", "troppi invii\nfalsa riga", t0 + milliseconds(999));
    log.failure("database", "disco pieno", t0 + milliseconds(1000));
    std::istringstream lines(err.str());
    std::vector<std::string> seen;
    for (std::string line; std::getline(lines, line);)
        seen.push_back(line.substr(line.find(' ') + 1)); // without the time
    EXPECT_EQ(seen, (std::vector<std::string>{
                        "database: disco pieno", "429 10.0.0.1: troppi invii?falsa riga",
                        "database: disco pieno (2 uguali nell'ultimo secondo)"}));
}

TEST(ConnectionGuard, CapsEachAddressButTheProxyAndShutsOnlyWaitersPastTheDeadline) {
    using std::chrono::seconds;
    ConnectionGuard guard(2, "127.0.0.9", std::chrono::milliseconds(5000));
    const ConnectionGuard::Time t0{};
    int idle[2], busy[2], fresh[2];
    for (int* pair : {idle, busy, fresh})
        ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, pair), 0);
    auto* a = guard.opened("10.0.0.1", idle[0], t0);
    auto* b = guard.opened("10.0.0.1", busy[0], t0);
    EXPECT_FALSE(guard.admits("10.0.0.1"));
    EXPECT_TRUE(guard.admits("10.0.0.2"));
    for (int i = 0; i < 5; ++i)
        guard.opened("127.0.0.9", -1, t0);
    EXPECT_TRUE(guard.admits("127.0.0.9"));
    guard.busy(b);                                       // answering: no deadline
    guard.opened("10.0.0.2", fresh[0], t0 + seconds(3)); // its own five seconds
    EXPECT_EQ(guard.sweep(t0 + seconds(4)), 0);
    EXPECT_EQ(guard.sweep(t0 + seconds(5)), 1);
    EXPECT_EQ(guard.sweep(t0 + seconds(6)), 0); // shut once only
    char byte;
    EXPECT_EQ(read(idle[1], &byte, 1), 0); // the peer sees the end
    guard.idle(b, t0 + seconds(6));
    EXPECT_EQ(guard.sweep(t0 + seconds(10)), 1);
    guard.closed(a);
    EXPECT_TRUE(guard.admits("10.0.0.1"));
    for (int* pair : {idle, busy, fresh}) {
        close(pair[0]);
        close(pair[1]);
    }
}

} // namespace
} // namespace griglione
