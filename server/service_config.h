// The service's settings: defaults, then a configuration file, then the command line.
#pragma once

#include <filesystem>
#include <istream>
#include <string>

namespace griglione {

struct ServiceConfig {
    std::string address = "127.0.0.1";
    int port = 8089;
    std::filesystem::path database = "griglione-records.sqlite";
    // The help page and its pictures, served as they are; none when empty.
    std::filesystem::path pages;
    // SLESSICO.1 to SLESSICO.3, the words a challenge is checked against.
    std::filesystem::path dictionaries = "/usr/share/griglione-records";
    // Records stored from one client in a minute (0: no limit); refused requests have an
    // allowance of their own, so that bad ones cannot use up the good ones.
    int submissionsPerMinute = 20;
    int refusalsPerMinute = 60;
    int threads = 16; // workers for the submissions
    int connections = 4096;
    int connectionsPerAddress = 16;
    // The web server in front, whose X-Forwarded-For names the client; none when empty.
    std::string trustedProxy;
    bool help = false;
};

// What --help prints.
std::string usage();

// Lines "name = value"; blank lines and lines starting with "#" are skipped. Names: address,
// port, database, pages, dictionaries, submissions-per-minute, refusals-per-minute, threads,
// connections, connections-per-address, trusted-proxy. Returns what is wrong, or "".
std::string readConfig(std::istream& in, ServiceConfig& config);

// "--name value" or "--name=value" with the same names, "--config FILE" read at that point, and
// "--help".
std::string readArguments(int argc, const char* const* argv, ServiceConfig& config);

} // namespace griglione
