// Finds the abbreviations of an English word list with WordNet (Debian's wordnet-base): the
// word lists write ASAP, CRYST, SYST, ARCHEOL in lower case like any word, WordNet writes its
// acronyms in capitals and lists none of the cut-off words.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

class WordNetLexicon {
public:
    // Reads the lemmas of a WordNet data file (data.noun, data.verb...): those written in lower
    // case, and those written only in capitals (ASAP, AWOL).
    void addDataFile(std::string_view text);
    // Reads an exception file (noun.exc...): irregular forms and their lemmas (geese goose).
    void addExceptions(std::string_view text);

    // True when the lower-case word is a lower-case lemma or a form of one: an irregular form,
    // or a regular one (-s, -es, -ies, -ed, -ing, -er, -est, -ly, -ness, with a doubled
    // consonant or a dropped E).
    bool knows(const std::string& word) const;

    // The abbreviations among `words` (lower case): an acronym WordNet writes only in capitals
    // (asap), or a cut-off word (cryst, syst, archeol) that WordNet does not know, that ends in a
    // consonant other than -ic, -ist, and that a learned ending (-al, -em, -ology, -ics...)
    // makes into a word WordNet knows. Words of `common` (a basic word list) are never taken.
    std::vector<std::string> abbreviations(const std::vector<std::string>& words,
                                           const std::set<std::string>& common) const;

private:
    bool isLemma(const std::string& word) const;

    std::set<std::string> m_lower, m_capitals;
    std::set<std::pair<std::string, std::string>> m_exceptions; // form, lemma
};

} // namespace griglione
