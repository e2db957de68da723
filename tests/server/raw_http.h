// A bare HTTP/1.1 client for the service's tests: sends bytes exactly as given, from a chosen
// loopback address, and splits what comes back into answers.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <vector>

namespace griglione::testing {

struct Answer {
    int status = 0;
    std::string head; // status line and headers
    std::string body;
    std::string header(const std::string& name) const {
        const std::size_t at = head.find("\r\n" + name + ": ");
        if (at == std::string::npos) return {};
        const std::size_t start = at + name.size() + 4;
        return head.substr(start, head.find("\r\n", start) - start);
    }
};

// A connection to 127.0.0.1:`port` from `from` (any address of 127/8), or -1.
inline int connectFrom(int port, const char* from = "127.0.0.1") {
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in local{}, remote{};
    local.sin_family = remote.sin_family = AF_INET;
    inet_pton(AF_INET, from, &local.sin_addr);
    inet_pton(AF_INET, "127.0.0.1", &remote.sin_addr);
    remote.sin_port = htons(static_cast<std::uint16_t>(port));
    if (::bind(fd, reinterpret_cast<sockaddr*>(&local), sizeof local) != 0 ||
        ::connect(fd, reinterpret_cast<sockaddr*>(&remote), sizeof remote) != 0) {
        ::close(fd);
        return -1;
    }
    return fd;
}

// Whatever arrives until `count` answers are whole (HEAD ones have no body), the peer closes
// or `seconds` pass.
inline std::vector<Answer> readAnswers(int fd, std::size_t count, double seconds = 5,
                                       std::vector<bool> headOnly = {}) {
    std::string bytes;
    std::vector<Answer> answers;
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    std::size_t at = 0;
    while (answers.size() < count && std::chrono::steady_clock::now() < end) {
        const std::size_t blank = bytes.find("\r\n\r\n", at);
        if (blank != std::string::npos) {
            Answer answer;
            answer.head = bytes.substr(at, blank + 2 - at);
            answer.status = std::atoi(answer.head.c_str() + 9);
            const bool bare = answers.size() < headOnly.size() && headOnly[answers.size()];
            const std::size_t length =
                bare ? 0 : std::strtoul(answer.header("Content-Length").c_str(), nullptr, 10);
            if (bytes.size() >= blank + 4 + length) {
                answer.body = bytes.substr(blank + 4, length);
                at = blank + 4 + length;
                answers.push_back(std::move(answer));
                continue;
            }
        }
        pollfd wait{fd, POLLIN, 0};
        if (::poll(&wait, 1, 50) <= 0) continue;
        char chunk[65536];
        const ssize_t got = ::read(fd, chunk, sizeof chunk);
        if (got <= 0) break;
        bytes.append(chunk, static_cast<std::size_t>(got));
    }
    return answers;
}

// One request on a connection of its own.
inline Answer fetch(int port, const std::string& request, const char* from = "127.0.0.1") {
    const int fd = connectFrom(port, from);
    if (fd < 0) return {};
    (void)!::write(fd, request.data(), request.size());
    auto answers = readAnswers(fd, 1, 5, {request.starts_with("HEAD ")});
    ::close(fd);
    return answers.empty() ? Answer{} : answers.front();
}

inline std::string get(const std::string& target, const std::string& headers = "") {
    return "GET " + target + " HTTP/1.1\r\nHost: 127.0.0.1\r\n" + headers + "\r\n";
}

} // namespace griglione::testing
