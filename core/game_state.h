// The match state that the whole program shares: one copy, owned by the main window.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace griglione {

inline constexpr int kCells = 25;
inline constexpr int kBoardSide = 5;

// Row and column of a cell counted from 1, as the adjacency tests count them.
constexpr int rigaCella(int n) {
    return n / kBoardSide + 1;
}
constexpr int colonnaCella(int n) {
    return n % kBoardSide + 1;
}

// True when the two cells touch horizontally, vertically or diagonally. Comparing rows and
// columns keeps a step from wrapping around the edge: cells 4 and 5 do not touch.
constexpr bool celleAdiacenti(int p, int n) {
    const int dr = rigaCella(n) - rigaCella(p);
    const int dc = colonnaCella(n) - colonnaCella(p);
    return dr >= -1 && dr <= 1 && dc >= -1 && dc <= 1;
}

// Headline, heading and body of the message window.
struct Messaggio {
    std::string titolo;
    std::string intestazione;
    std::string testo;
    bool operator==(const Messaggio&) const = default;
};

struct GameState {
    GameState();

    std::int16_t tempoPartita = 120;
    std::int16_t secondiTrascorsi = 0;
    std::int16_t spessoreLinea = 7;
    std::int16_t numDizionario = 1;
    std::string nomeDizionario;
    std::array<std::string, 3> alfabeto;

    std::int32_t puntiGiocatore = 0;
    std::int32_t puntiCPU = 0;

    // The word being traced.
    std::string parolaComposta;
    std::array<bool, kCells> cellaUsata{};
    std::int16_t ultimaCella = -1;

    // The die picture of every cell; the 7th character of a dealt die's name is its letter.
    std::array<std::string, kCells> immagineCella;

    // Found words in lower case, in the order found: the player's and the computer's lists.
    std::vector<std::string> paroleGiocatore;
    std::vector<std::string> paroleCPU;
    // The player's words that the main dictionary knows, in lower case: only these count in a
    // challenge, where the service checks each word against its own copy of that dictionary.
    std::vector<std::string> paroleDizionario;

    // The code of the board as dealt, taken at the deal (a turned die changes the board later);
    // empty for the blank board.
    std::string codiceTabellone;
    // True when the board in play came from a code or is the board of the day.
    bool tabelloneCondiviso = false;
    // The player's own match length while a day's match runs on its fixed length; 0 otherwise.
    std::int16_t tempoSalvato = 0;

    // The word being submitted and the answer of the unknown-word confirmation.
    std::string parolaDaConfermare;
    std::int16_t rispostaConferma = 0;

    // The opponent's count of unsuccessful lookups and the text of its hidden label.
    std::int32_t ricercheFallite = 0;
    std::string ultimoTentativoCPU;

    bool inserisciRecord = false;
    bool uscitaDopoRecord = false;

    Messaggio messaggio;
};

// Points for a word of `length` letters, for either player.
constexpr std::int32_t punteggioParola(std::size_t length) {
    return static_cast<std::int32_t>(length * length * 20);
}

} // namespace griglione
