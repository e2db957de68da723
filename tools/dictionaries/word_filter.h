// Which words of a source list may enter a dictionary file: lower-case words only, accents folded
// to their base letter, 3 to 10 letters of the language's alphabet, Latin in its school spelling.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace griglione {

// The dictionary numbers of the game: SLESSICO.1 is Italian, .2 English, .3 Latin.
enum class Language { Italian = 1, English = 2, Latin = 3 };

// The letters a word of the language may use (the board's alphabet).
std::string_view alphabetOf(Language language);

// The word in capitals A–Z with its accents dropped (città → CITTA, æ → AE, combining marks
// skipped), whatever its length; nothing when it holds a capital or anything but letters.
std::optional<std::string> foldedCapitals(std::string_view utf8);

// The word in capitals A–Z, or nothing when it does not belong in a dictionary of the language.
// A capital anywhere in the source marks a proper name or an abbreviation and refuses the word;
// so does any character that is not a letter (apostrophe, hyphen, digit, dot, blank).
std::optional<std::string> admitWord(std::string_view utf8, Language language);

// False for the spellings of a capital-letters word that write a vowel as V (DOMINVS, QVAE,
// AMATV) or a consonant as U (UIRUM, AMAUIT): the school spelling keeps V for consonants and U
// for vowels. Between a consonant and a vowel the letter can be either, and both are kept.
bool schoolLatinSpelling(std::string_view capitals);

} // namespace griglione
