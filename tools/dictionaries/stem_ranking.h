// Orders the stems of a Hunspell dictionary by how common their word is, so that the forms of
// common words (amo, rex, legio; mangiare) go in before those of rare ones when a word length
// has more forms than the dictionary can hold. For Latin the counts come from Collatinus's lemma
// list (lemmes.la: "lemma=variants|model|radical|radical|meaning|count" per line), for Italian
// from a curated word list.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

// The count of each lemma under every form a Hunspell stem of it may take, in capitals: the
// headword and its variants, and each radical with the endings of the perfect (-I), the supine
// (-UM) and the genitive (-IS). A form shared by two lemmas keeps the larger count. Proper names
// (capitalised) and comment lines ("!") are left out.
std::map<std::string, long> latinLemmaCounts(std::string_view lemmesFile);

// Count 1 for every word of a plain list (one word per line): the stems a curated list of
// common words already holds rank before the others.
std::map<std::string, long> listedWordCounts(std::string_view wordList);

// Splits the stem lines of a Hunspell .dic (first line: the number of stems) into one .dic per
// threshold, in decreasing order: the stems whose lemma counts at least that much and less than
// the threshold before; then one more with every other stem. Lines that cannot give an
// admissible word (capitals, punctuation, comments) are left out.
std::vector<std::string> splitStemsByCount(std::string_view dic,
                                           const std::map<std::string, long>& counts,
                                           const std::vector<long>& thresholds);

// The Latin dictionary lists its stems three times: in the school spelling (SERVUS, TUUS), then
// the twins that write every U as V (SERVVS, TVVS), then those that write every V as U (SERUUS,
// SILUA). Keeps the first list: its lines up to the first stem beginning with A after one
// beginning with Z (either case); the first line becomes the number of lines kept.
std::string schoolSpellingStems(std::string_view dic);

} // namespace griglione
