// One record of the world table, as the game submits it and as the service stores it.
#pragma once

#include <cstdint>
#include <string>

namespace griglione {

struct WorldRecord {
    std::string nome;      // UTF-8, decoded from the game's Windows-1252
    std::string programma; // "Griglione_" and three capitals
    std::string data;      // gg-mm-aaaa, as sent
    std::int32_t punti = 0;
    int tempo = 60;
    std::string note;  // UTF-8
    std::string email; // UTF-8; kept, never shown
    std::string ora;   // hh:mm, as sent
    int lingua = 1;
    bool operator==(const WorldRecord&) const = default;
};

// One line of a world table as pages and JSON show it: no e-mail.
struct TableRow {
    int posto = 0;
    std::int64_t id = 0;
    std::string nome;
    std::int32_t punti = 0;
    std::string note;
    std::string data;
    std::string ora;
};

} // namespace griglione
