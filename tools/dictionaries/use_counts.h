// How much each word of a language is used, for the ranking that decides which words a full
// length keeps: counts of lemmas over a body of text, spread over every form a morphological
// lexicon lists for the lemma, the form's own count deciding among the forms of one lemma.
#pragma once

#include "tools/dictionaries/word_filter.h"

#include <map>
#include <string>
#include <string_view>

namespace griglione {

// The use of every word the lexicon or the text knows, keyed by its admitted spelling
// (capitals, accents folded): 1000 × the use of its lemma + its own count (at most 999). The
// use of a lemma is the count in the text of all its forms and of itself, plus 1 when a
// bilingual dictionary has it as a headword; a word of several lemmas takes the most used, a
// word of none is its own lemma.
// formsOfLemmas: lines "form lemma"; tokenCounts: lines "count token" (as `uniq -c` writes
// them); headwords: one a line. Lines that cannot be admitted as words are skipped.
std::map<std::string, long> lemmaUse(std::string_view formsOfLemmas, std::string_view tokenCounts,
                                     std::string_view headwords, Language language);

} // namespace griglione
