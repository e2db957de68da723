// Reads the analyses that Whitaker's WORDS (Debian's whitakers-words) prints for Latin forms, so
// that the Latin dictionary keeps only forms it parses as classical and decent: no unknown
// strings, no late, medieval or inscription-only words, no names, no personal passives of verbs
// that take no object, no forms glued to -que/-ne/-ve, nothing marked rude.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

enum class LatinVerdict { Classical, Unknown, NotClassical, Rude };

struct WhitakerRules {
    // Headwords (lower case) read as rude whatever their meaning says (pathicus, fello).
    std::set<std::string> rudeLemmas;
    // Headwords whose meaning mentions a rude sense beside ordinary ones (corvus, the raven).
    std::set<std::string> decentLemmas;
    // Capitalised headwords that are common nouns too (Deus: god, gods).
    std::set<std::string> commonNames;
    // Headwords that are archaic spellings WORDS does not mark (gnosco for nosco).
    std::set<std::string> archaicLemmas;
    // Collatinus's corpus counts of the lemmas, in capitals: which of a deponent and its active
    // twin is the real word.
    std::map<std::string, long> lemmaCounts;
};

// The parameter answers that set WORDS up for checking: every analysis shown untrimmed, no
// guessed prefixes, suffixes, tricks, two-word splits or medieval spellings, no paging. Sent
// before the words, one a line.
std::string whitakerSetup();

// The analysis blocks of WORDS's output, one per input word in order: the text after each "=>"
// that starts a line, less the parameter dialogue and the closing error. Empty when the count
// differs from `words` (the output is not one block per word).
std::vector<std::string_view> whitakerBlocks(std::string_view output, std::size_t words);

// The verdict on one block: Classical when at least one analysis is of a classical (or early),
// common-noun entry under an inflection that is not late and fits the verb; Rude when any
// analysis is of a rude entry.
LatinVerdict judgeWhitakerBlock(std::string_view block, const WhitakerRules& rules);

// How much the form is used, for the ranking of a full length: over its acceptable analyses the
// largest of 100 × the corpus count of the headword (lemmaCounts, Collatinus's, in capitals; at
// least 800, 300, 100, 10, 1 for WORDS's frequency codes A to E) +
// 10 × WORDS's frequency code (A 5 ... E 1) + 1 for a form of everyday use (not the future
// perfect, the pluperfect subjunctive, the future imperative, the -mini passive).
long latinUse(std::string_view block, const WhitakerRules& rules,
              const std::map<std::string, long>& lemmaCounts);

} // namespace griglione
