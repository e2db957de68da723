// The Latin stems: how common their lemma is, from Collatinus's lemma list (lemmes.la:
// "lemma=variants|model|radical|radical|meaning|count" per line), for the ranking of the forms
// by use; and the one spelling of the Latin dictionary's stems the school writes.
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

// The Latin dictionary lists its stems three times: in the school spelling (SERVUS, TUUS), then
// the twins that write every U as V (SERVVS, TVVS), then those that write every V as U (SERUUS,
// SILUA). Keeps the first list: its lines up to the first stem beginning with A after one
// beginning with Z (either case); the first line becomes the number of lines kept.
std::string schoolSpellingStems(std::string_view dic);

} // namespace griglione
