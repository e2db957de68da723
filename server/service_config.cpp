// Reading the service's settings from its configuration file and its command line.
#include "server/service_config.h"

#include "core/ansi_text.h"

#include <arpa/inet.h>

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
    } else if (name == "refusals-per-minute") {
        if (!integer(value, 0, 1'000'000, config.refusalsPerMinute))
            return "refusals-per-minute: serve un numero da 0 (nessun limite) a 1000000";
    } else if (name == "threads") {
        if (!integer(value, 1, 1024, config.threads)) return "threads: serve un numero da 1 a 1024";
    } else if (name == "connections") {
        if (!integer(value, 16, 1'000'000, config.connections))
            return "connections: serve un numero da 16 a 1000000";
    } else if (name == "connections-per-address") {
        if (!integer(value, 0, 1'000'000, config.connectionsPerAddress))
            return "connections-per-address: serve un numero da 0 (nessun limite) a 1000000";
    } else if (name == "trusted-proxy") {
        in6_addr probe{};
        if (!value.empty() && inet_pton(AF_INET, value.c_str(), &probe) != 1 &&
            inet_pton(AF_INET6, value.c_str(), &probe) != 1)
            return "trusted-proxy: serve un indirizzo IP (come 127.0.0.1) o niente";
        config.trustedProxy = value;
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

std::string usage() {
    return "Uso: griglione-records [--config FILE] [--IMPOSTAZIONE VALORE]...\n"
           "Il servizio dei record mondiali di Il Griglione.\n\n"
           "  --config FILE                  legge le impostazioni da FILE (righe nome = valore)\n"
           "  --address IP                   indirizzo di ascolto (127.0.0.1)\n"
           "  --port N                       porta (8089; 0: una libera qualsiasi)\n"
           "  --database FILE                il database SQLite (griglione-records.sqlite)\n"
           "  --pages CARTELLA               la guida e le sue immagini\n"
           "  --dictionaries CARTELLA        SLESSICO.1-3, per controllare le sfide\n"
           "  --submissions-per-minute N     record registrati per cliente al minuto (20)\n"
           "  --refusals-per-minute N        invii rifiutati per cliente al minuto (60)\n"
           "  --threads N                    thread per gli invii (16)\n"
           "  --connections N                connessioni aperte in tutto (4096)\n"
           "  --connections-per-address N    connessioni aperte per indirizzo (16)\n"
           "  --trusted-proxy IP             il server web davanti, di cui vale X-Forwarded-For\n"
           "  --help                         mostra questo aiuto\n";
}

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
        if (name == "--help" || name == "-h") {
            config.help = true;
            continue;
        }
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
