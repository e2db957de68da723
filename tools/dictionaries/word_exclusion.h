// Words kept out of a dictionary although their letters pass the filter: slurs, hate words and
// obscene words from maintained lists and from a hand-kept list of ours, abbreviations without a
// vowel, and Roman numerals; with an allow-list for the ordinary words those rules would take.
#pragma once

#include "tools/dictionaries/word_filter.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

// True when the word has a vowel: A E I O U, and Y too, which is the vowel of GYM, MYTH, SKY,
// LYNX (Italian words never hold a Y).
bool hasVowel(std::string_view capitals);

// True for a Roman numeral in its standard form, 1 to 3999 (XIV, MCMXC; not IIII, not IC).
bool isRomanNumeral(std::string_view capitals);

// The word and the inflected forms a list entry stands for: English plurals (SLUT: SLUTS;
// BITCH: BITCHES; HUSSY: HUSSIES), Italian gender and number (FROCIO: FROCI, FROCIA, FROCIE;
// TERRONE: TERRONI; CHECCA: CHECCHE) and the regular forms of an Italian verb (FOTTERE: FOTTO,
// FOTTEI, FOTTUTO). Latin entries stand for themselves.
std::vector<std::string> inflectedForms(std::string_view capitals, Language language);

enum class Refusal { None, Listed, NoVowel, RomanNumeral };

class WordExclusion {
public:
    explicit WordExclusion(Language language) : m_language(language) {}

    // Refuses the word and its inflected forms; a source word that cannot be a dictionary word
    // (a phrase, a name) is ignored. Whole words only: a word that contains one stays in.
    void block(std::string_view sourceWord);
    // Keeps the word whatever a list or a rule says, and the forms a list gives it.
    void allow(std::string_view sourceWord);

    // Reads our hand-kept list: lines "block LANGS WORD..." or "allow LANGS WORD...", with LANGS
    // a comma-separated choice of it, en, la or *; "#" starts a comment. Lines of other
    // languages are skipped. Returns the numbers of the lines it could not read.
    std::vector<int> readList(std::string_view text);

    Refusal refusal(const std::string& capitals) const;
    std::size_t blockedCount() const { return m_blocked.size(); }

private:
    Language m_language;
    std::map<std::string, std::vector<std::string>> m_blocked; // form: the list words it is of
    std::set<std::string> m_allowed;
};

} // namespace griglione
