// Reading the service's settings from its configuration file and its command line.
#include "server/service_config.h"

#include "core/ansi_text.h"

#include <charconv>
#include <fstream>

namespace griglione {
namespace {

// What a settings line may carry around its key and value.
constexpr std::string_view kBlanks = " \t\r";

bool integer(const std::string& text, int low, int high, int& out) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < low || value > high)
        return false;
    out = value;
    return true;
}

std::string set(ServiceConfig& config, const std::string& name, const std::string& value) {
    if (name == "address") {
        if (value.empty()) return "address: manca l'indirizzo";
        config.address = value;
    } else if (name == "port") {
        if (!integer(value, 0, 65535, config.port)) return "port: serve un numero da 0 a 65535";
    } else if (name == "database") {
        if (value.empty()) return "database: manca il nome del file";
        config.database = value;
    } else if (name == "pages") {
        config.pages = value;
    } else if (name == "dictionaries") {
        if (value.empty()) return "dictionaries: manca la cartella";
        config.dictionaries = value;
    } else if (name == "submissions-per-minute") {
        if (!integer(value, 0, 1'000'000, config.submissionsPerMinute))
            return "submissions-per-minute: serve un numero da 0 (nessun limite) a 1000000";
    } else if (name == "threads") {
        if (!integer(value, 1, 1024, config.threads)) return "threads: serve un numero da 1 a 1024";
    } else {
        return "impostazione sconosciuta: " + name;
    }
    return {};
}

std::string readConfigFile(const std::string& file, ServiceConfig& config) {
    std::ifstream in(file);
    if (!in) return "impossibile leggere il file di configurazione " + file;
    const std::string error = readConfig(in, config);
    return error.empty() ? error : file + ": " + error;
}

} // namespace

std::string readConfig(std::istream& in, ServiceConfig& config) {
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        const std::string content = trimmed(line, kBlanks);
        if (content.empty() || content.front() == '#') continue;
        const std::size_t equals = content.find('=');
        std::string error = equals == std::string::npos
                                ? "manca \"=\""
                                : set(config, trimmed(content.substr(0, equals), kBlanks),
                                      trimmed(content.substr(equals + 1), kBlanks));
        if (!error.empty()) return "riga " + std::to_string(number) + ": " + error;
    }
    return {};
}

std::string readArguments(int argc, const char* const* argv, ServiceConfig& config) {
    for (int i = 1; i < argc; ++i) {
        std::string name = argv[i], value;
        if (!name.starts_with("--")) return "argomento non previsto: " + name;
        name.erase(0, 2);
        if (const std::size_t equals = name.find('='); equals != std::string::npos) {
            value = name.substr(equals + 1);
            name.erase(equals);
        } else if (i + 1 < argc) {
            value = argv[++i];
        } else {
            return "--" + name + ": manca il valore";
        }
        const std::string error =
            name == "config" ? readConfigFile(value, config) : set(config, name, value);
        if (!error.empty()) return error;
    }
    return {};
}

} // namespace griglione
