// Board codes: a dealt board (its language and 25 dice) written as a short code of letters and
// digits that a friend can type or read aloud, with a check character against typing slips.
#pragma once

#include "core/game_state.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace griglione {

// A board as a deal leaves it: language 1 Italian, 2 English, 3 Latin; each cell's letter and
// face 1–4. Even cells hold a letter of the language's vowel pool, odd cells a consonant.
struct SharedBoard {
    int language = 1;
    std::array<char, kCells> letters{};
    std::array<int, kCells> faces{};
    bool operator==(const SharedBoard&) const = default;
};

// The 32 symbols of a code: digits and capitals without I, L, O and U, so no two look alike.
inline constexpr std::string_view kCodeSymbols = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";

// Why a text is not a board's code.
enum class CodeError {
    None,
    Empty,    // nothing but blanks
    Symbol,   // a character that no code holds
    Length,   // too short or too long for its language
    Language, // the first character is not 1, 2 or 3
    Check,    // the check character does not match: a slip somewhere
    Board,    // well formed, but no deal gives that board
};

struct DecodedBoard {
    std::optional<SharedBoard> board;
    CodeError error = CodeError::None;
};

// The code of a board; empty when the board is not one a deal can give.
std::string encodeBoard(const SharedBoard& board);

// The board of a code typed by a player: letter case, blanks and hyphens do not count, and O,
// I and L are read as the digits 0, 1 and 1 they look like.
DecodedBoard decodeBoard(std::string_view text);

// The code inside what a player pastes: a bare code, "griglione:CODE", or an address whose
// path has ".../sfide/CODE" (a query or fragment after it is ignored).
std::string codeInText(std::string_view text);

// The board the cells of a match show; nothing while the board is blank.
std::optional<SharedBoard> boardOf(const GameState& state);

// The code of the board a match shows; empty while it is blank.
std::string boardCode(const GameState& state);

// Puts the board's dice and language into the match state, as a deal would.
void placeBoard(GameState& state, const SharedBoard& board);

} // namespace griglione
