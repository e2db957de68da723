// The addresses of a challenge on the records service: the page of a board, and the submission
// of a match played on it, kept within the 2,048 bytes that every browser and server accepts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

inline constexpr std::size_t kLunghezzaMassimaIndirizzo = 2048;

struct SfidaDaInviare {
    std::string codice;
    std::string nome; // UTF-8 as typed; it travels as Windows-1252
    std::int32_t tempo = 0;
    std::vector<std::string> parole; // the player's words that the main dictionary knows
};

struct IndirizzoSfida {
    std::string indirizzo;
    std::size_t paroleTolte = 0; // the shortest words left out so that the address fits
};

// The challenge's page: the service's home page + "sfide/" + the code.
std::string linkSfida(std::string_view codice);

// The service's home page + "sfide/invia?codice=…&nome=…&tempo=…&parole=…", the name encoded
// as the record address encodes it and the words packed. When the words do not all fit, the
// shortest go first (they score least), the alphabetically last of one length before the others.
IndirizzoSfida indirizzoSfida(const SfidaDaInviare& sfida);

} // namespace griglione
