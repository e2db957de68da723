// The texts of the game's logic that the player reads, put into the player's language on the way
// to the screen. The logic stays free of Qt: the windows install the translator at start-up.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace griglione {

// Gives the text for `source` (UTF-8) of `context` in the player's language.
using TextTranslator = std::function<std::string(const char* context, const char* source)>;

// Installed once at start-up; without one (the logic's tests, an Italian player) every text
// stays as written.
void setTextTranslator(TextTranslator translator);

// Marks a text of a table for the translation tools and leaves it as it is; the table's user
// passes it through playerText when it shows it.
constexpr const char* textMark(const char*, const char* source) {
    return source;
}

// `source` in the player's language. lupdate collects the literal texts given here.
std::string playerText(const char* context, std::string_view source);

// `pattern` with %1 to %9 replaced by the arguments in one pass, so that an argument holding
// "%2" stays as it is.
std::string withArgs(std::string_view pattern, std::initializer_list<std::string_view> args);

} // namespace griglione
