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
    int submissionsPerMinute = 20;
    int threads = 16;
};

// Lines "name = value"; blank lines and lines starting with "#" are skipped. Names: address,
// port, database, pages, dictionaries, submissions-per-minute, threads. Returns what is wrong, or
// "".
std::string readConfig(std::istream& in, ServiceConfig& config);

// "--name value" or "--name=value" with the same names, and "--config FILE" read at that point.
std::string readArguments(int argc, const char* const* argv, ServiceConfig& config);

} // namespace griglione
