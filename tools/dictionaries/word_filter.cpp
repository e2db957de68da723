#include "tools/dictionaries/word_filter.h"

#include "dictionary/dictionary_format.h"

#include <cstdint>

namespace griglione {
namespace {

// One code point from the front of `text`, or nothing for a malformed sequence.
std::optional<char32_t> nextCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    int extra = 0;
    char32_t cp = 0;
    if (lead < 0x80) {
        cp = lead;
    } else if ((lead & 0xE0) == 0xC0) {
        extra = 1;
        cp = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        extra = 2;
        cp = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        extra = 3;
        cp = lead & 0x07;
    } else {
        return std::nullopt;
    }
    if (text.size() < static_cast<std::size_t>(extra) + 1) return std::nullopt;
    for (int i = 1; i <= extra; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80) return std::nullopt;
        cp = (cp << 6) | (byte & 0x3F);
    }
    text.remove_prefix(static_cast<std::size_t>(extra) + 1);
    return cp;
}

// The capitals a lower-case letter stands for once its accent is gone; empty for anything that
// is not a lower-case letter of the Latin script the sources use.
std::string_view foldedLetter(char32_t cp) {
    if (cp >= U'a' && cp <= U'z') {
        static const std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
        return capitals.substr(cp - U'a', 1);
    }
    struct Fold {
        std::u32string_view from;
        std::string_view to;
    };
    static const Fold folds[] = {
        {U"àáâãäåāăą", "A"}, {U"çćč", "C"}, {U"ďđ", "D"},        {U"èéêëēĕėęě", "E"},
        {U"ìíîïĩīĭį", "I"},  {U"ñńň", "N"}, {U"òóôõöøōŏő", "O"}, {U"ùúûüũūŭůűų", "U"},
        {U"ýÿŷ", "Y"},       {U"šś", "S"},  {U"žź", "Z"},        {U"æǣǽ", "AE"},
        {U"œ", "OE"},
    };
    for (const Fold& fold : folds)
        if (fold.from.find(cp) != std::u32string_view::npos) return fold.to;
    return {};
}

bool isVowel(char c) {
    return c == 'A' || c == 'E' || c == 'I' || c == 'O' || c == 'U' || c == 'Y';
}

} // namespace

std::string_view alphabetOf(Language language) {
    return language == Language::Italian ? "ABCDEFGHILMNOPQRSTUVZ" : "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
}

std::optional<std::string> foldedCapitals(std::string_view utf8) {
    std::string word;
    while (!utf8.empty()) {
        const std::optional<char32_t> cp = nextCodePoint(utf8);
        if (!cp) return std::nullopt;
        if (*cp >= 0x300 && *cp <= 0x36F) continue; // a combining accent on the letter before
        const std::string_view letters = foldedLetter(*cp);
        if (letters.empty()) return std::nullopt; // capital, punctuation, digit, other script
        word += letters;
    }
    return word;
}

std::optional<std::string> admitWord(std::string_view utf8, Language language) {
    std::optional<std::string> word = foldedCapitals(utf8);
    if (!word || word->size() < static_cast<std::size_t>(kMinWordLength) ||
        word->size() > static_cast<std::size_t>(kMaxWordLength))
        return std::nullopt;
    if (word->find_first_not_of(alphabetOf(language)) != std::string::npos) return std::nullopt;
    if (language == Language::Latin && !schoolLatinSpelling(*word)) return std::nullopt;
    return word;
}

bool schoolLatinSpelling(std::string_view w) {
    for (std::size_t i = 0; i < w.size(); ++i) {
        const char before = i > 0 ? w[i - 1] : '\0';
        const char after = i + 1 < w.size() ? w[i + 1] : '\0';
        if (w[i] == 'V') {
            // A vowel written V: before a consonant, at the end, or in QV / GV.
            if (!isVowel(after) || before == 'Q' || before == 'G') return false;
        } else if (w[i] == 'U') {
            // A consonant written U: at the start or between vowels, before a vowel; or the
            // twin of IUV written IVU (ivuo, adivuande).
            if (isVowel(after) && (i == 0 || isVowel(before) || before == 'V')) return false;
        }
    }
    return true;
}

} // namespace griglione
