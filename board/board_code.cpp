#include "board/board_code.h"

#include "board/board_layout.h"
#include "board/dealer.h"

#include <algorithm>
#include <vector>

namespace griglione {

// A code is the language digit, then the dice as one number in base 32, then a check symbol.
// The number is mixed-radix, cell 0 the most significant: each cell's digit is the index of its
// letter among the distinct letters of its pool, times 4, plus its face − 1. Counting only what a
// deal can put on a cell keeps an English code at 30 symbols and an Italian one at 28.
namespace {

// The distinct letters of a pool, in alphabetical order.
std::string distinctLetters(std::string_view pool) {
    std::string letters(pool);
    std::sort(letters.begin(), letters.end());
    letters.erase(std::unique(letters.begin(), letters.end()), letters.end());
    return letters;
}

struct Alphabets {
    std::string vowels;
    std::string consonants;
    const std::string& forCell(int n) const { return n % 2 == 0 ? vowels : consonants; }
};

const Alphabets& alphabets(int language) {
    static const Alphabets italian{distinctLetters(letterPools(1).vocali),
                                   distinctLetters(letterPools(1).consonanti)};
    static const Alphabets english{distinctLetters(letterPools(2).vocali),
                                   distinctLetters(letterPools(2).consonanti)};
    return language == 1 ? italian : english;
}

// Base-32 digits, most significant first, of the number of all boards of a language less one:
// its length is the length of every payload of that language.
std::size_t payloadLength(int language) {
    std::vector<int> digits{0};
    for (int n = 0; n < kCells; ++n) {
        const int radix = static_cast<int>(alphabets(language).forCell(n).size()) * 4;
        int carry = radix - 1;
        for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
            const int value = *it * radix + carry;
            *it = value % 32;
            carry = value / 32;
        }
        for (; carry > 0; carry /= 32)
            digits.insert(digits.begin(), carry % 32);
    }
    return digits.size();
}

int symbolValue(char c) {
    const auto at = kCodeSymbols.find(c);
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

// Luhn's check over base 32: it catches any one symbol changed and any two neighbours swapped,
// except the pair "0Z" ↔ "Z0" (0 and 31), which the Luhn scheme cannot tell apart.
char checkSymbol(std::string_view symbols) {
    int sum = 0;
    bool doubled = true;
    for (auto it = symbols.rbegin(); it != symbols.rend(); ++it, doubled = !doubled) {
        int value = symbolValue(*it);
        if (doubled) {
            value *= 2;
            value = value / 32 + value % 32;
        }
        sum += value;
    }
    return kCodeSymbols[static_cast<std::size_t>((32 - sum % 32) % 32)];
}

} // namespace

std::string encodeBoard(const SharedBoard& board) {
    if (board.language < 1 || board.language > 3) return {};
    std::vector<int> digits{0};
    for (int n = 0; n < kCells; ++n) {
        const std::string& letters = alphabets(board.language).forCell(n);
        const auto index = letters.find(board.letters[n]);
        const int face = board.faces[n];
        if (index == std::string::npos || face < 1 || face > 4) return {};
        const int radix = static_cast<int>(letters.size()) * 4;
        int carry = static_cast<int>(index) * 4 + face - 1;
        for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
            const int value = *it * radix + carry;
            *it = value % 32;
            carry = value / 32;
        }
        for (; carry > 0; carry /= 32)
            digits.insert(digits.begin(), carry % 32);
    }
    std::string code(1, static_cast<char>('0' + board.language));
    code.append(payloadLength(board.language) - digits.size(), '0');
    for (const int d : digits)
        code += kCodeSymbols[static_cast<std::size_t>(d)];
    return code + checkSymbol(code);
}

DecodedBoard decodeBoard(std::string_view text) {
    std::string code;
    for (char c : text) {
        if (c == ' ' || c == '-' || c == '\t') continue;
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        if (c == 'O') c = '0';
        if (c == 'I' || c == 'L') c = '1';
        if (symbolValue(c) < 0) return {std::nullopt, CodeError::Symbol};
        code += c;
    }
    if (code.empty()) return {std::nullopt, CodeError::Empty};
    const int language = code[0] - '0';
    if (language < 1 || language > 3) return {std::nullopt, CodeError::Language};
    if (code.size() != payloadLength(language) + 2) return {std::nullopt, CodeError::Length};
    if (checkSymbol(std::string_view(code).substr(0, code.size() - 1)) != code.back())
        return {std::nullopt, CodeError::Check};

    std::vector<int> digits;
    for (std::size_t i = 1; i + 1 < code.size(); ++i)
        digits.push_back(symbolValue(code[i]));
    SharedBoard board;
    board.language = language;
    for (int n = kCells - 1; n >= 0; --n) {
        const std::string& letters = alphabets(language).forCell(n);
        const int radix = static_cast<int>(letters.size()) * 4;
        int remainder = 0;
        for (int& d : digits) {
            const int value = remainder * 32 + d;
            d = value / radix;
            remainder = value % radix;
        }
        board.letters[n] = letters[static_cast<std::size_t>(remainder / 4)];
        board.faces[n] = remainder % 4 + 1;
    }
    // What is left over is a number past the last board of the language.
    if (std::any_of(digits.begin(), digits.end(), [](int d) { return d != 0; }))
        return {std::nullopt, CodeError::Board};
    return {board, CodeError::None};
}

std::string codeInText(std::string_view text) {
    const auto blank = text.find_first_not_of(" \t\r\n");
    if (blank == std::string_view::npos) return {};
    text = text.substr(blank, text.find_last_not_of(" \t\r\n") - blank + 1);
    static constexpr std::string_view kScheme = "griglione:";
    static constexpr std::string_view kPath = "/sfide/";
    if (text.size() >= kScheme.size() &&
        std::equal(kScheme.begin(), kScheme.end(), text.begin(),
                   [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b + 32 : b); })) {
        text.remove_prefix(kScheme.size());
        while (!text.empty() && text.front() == '/')
            text.remove_prefix(1);
    } else if (const auto at = text.find(kPath); at != std::string_view::npos) {
        text.remove_prefix(at + kPath.size());
    }
    return std::string(text.substr(0, text.find_first_of("/?#")));
}

std::optional<SharedBoard> boardOf(const GameState& state) {
    SharedBoard board;
    board.language = state.numDizionario;
    for (int n = 0; n < kCells; ++n) {
        board.letters[n] = letteraCella(state, n);
        board.faces[n] = facciaCella(state, n);
    }
    if (encodeBoard(board).empty()) return std::nullopt;
    return board;
}

std::string boardCode(const GameState& state) {
    const auto board = boardOf(state);
    return board ? encodeBoard(*board) : std::string();
}

void placeBoard(GameState& state, const SharedBoard& board) {
    state.numDizionario = static_cast<std::int16_t>(board.language);
    for (int n = 0; n < kCells; ++n)
        state.immagineCella[n] = dieName(board.letters[n], board.faces[n]);
}

} // namespace griglione
