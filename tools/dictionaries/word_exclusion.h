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

// The word and the inflected and derived forms a list entry stands for: in English the endings
// -s, -es, -ed, -ing, -er, -est, -ier, -iest, -ish, -ily, -iness, -y and their plurals, after a
// doubled consonant, a dropped E or Y turned I as spelling wants (SHAG: SHAGGED, SHAGGY; WHORE:
// WHORING; SHIT: SHITTIER); in Italian gender and number (FROCIO: FROCI, FROCIA, FROCIE;
// TERRONE: TERRONI; CHECCA: CHECCHE), the diminutives and augmentatives (PUTTANELLA,
// CULONE) and the regular forms of a verb (FOTTERE: FOTTO, FOTTEI, FOTTUTO). Latin entries
// stand for themselves. Over-generated strings do no harm: only real words are ever matched.
std::vector<std::string> inflectedForms(std::string_view capitals, Language language);

// True when an Italian word cannot be an Italian headword by its letters: it holds a cluster no
// Italian word has (DG, SH, TH, PH, Q without U, CH or GH before A, O, U: BRIDGE, FLASH,
// BIANCHO) or, unless it comes from a
// curated list that keeps the loanwords in use (BAR, TRAM, AUTOBUS), it ends in a consonant
// (the shortened infinitives BACIAR, ARDIR; SENHAL).
bool foreignItalianSpelling(std::string_view capitals, bool curated);

enum class Refusal {
    None,
    Listed,       // a list word, one of its forms, or a compound that begins with one
    NoVowel,      // an abbreviation
    RomanNumeral, //
    Name,         // a place or person name of a name list
    NotItalian,   // foreignItalianSpelling
    Truncated,    // an Italian word cut short by poetry (CUOR, DICON)
    NotChecked,   // not among the words an outside checker accepted (Latin: whitakers-words)
    Abbreviation, // a word of an abbreviation list
};

class WordExclusion {
public:
    explicit WordExclusion(Language language) : m_language(language) {}

    // Refuses the word and its inflected forms; a source word that cannot be a dictionary word
    // (a phrase, a name) is ignored. Whole words only: a word that contains one stays in.
    void block(std::string_view sourceWord);
    // Keeps the word whatever a list or a rule says, and the forms a list gives it.
    void allow(std::string_view sourceWord);
    // Refuses the word as a name (or as an abbreviation), unless it comes from a trusted source.
    void name(std::string_view sourceWord);
    void abbreviation(std::string_view sourceWord);
    // The words of every source: a word made of a list word and one of these (SHITHEAD,
    // FAGGOT = FAG + GOT) is refused as a compound of the list word.
    void setVocabulary(std::set<std::string> words) { m_vocabulary = std::move(words); }
    // Only these words may pass (the forms an outside checker accepted); unset, any word may.
    void restrictTo(std::set<std::string> words) {
        m_checked = std::move(words);
        m_restricted = true;
    }

    // Reads our hand-kept list: lines "block LANGS WORD...", "allow LANGS WORD..." or "abbrev
    // LANGS WORD..." (an abbreviation: the word alone, no forms), with LANGS a comma-separated
    // choice of it, en, la or *; "#" starts a comment. Lines of other languages are skipped.
    // Returns the numbers of the lines it could not read.
    std::vector<int> readList(std::string_view text);

    // `trusted`: the word comes from a curated source, which the name list and the Italian
    // spelling rule do not overrule.
    Refusal refusal(const std::string& capitals, bool trusted = false) const;
    std::size_t blockedCount() const { return m_blocked.size(); }

private:
    bool isCompound(const std::string& capitals) const;
    bool blockedEntry(const std::string& entry) const;

    Language m_language;
    std::map<std::string, std::vector<std::string>> m_blocked; // form: the list words it is of
    std::set<std::string> m_entries;                           // the list words themselves
    std::set<std::string> m_allowed;
    std::set<std::string> m_names, m_abbreviations, m_vocabulary, m_checked;
    bool m_restricted = false;
};

} // namespace griglione
