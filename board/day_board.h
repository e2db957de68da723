// The board of the day: one board per date and language, the same on every computer and in the
// records service, drawn from the date and the language alone.
#pragma once

#include "board/board_code.h"
#include "core/civil_date.h"

namespace griglione {

// The day's board of language 1 (Italian), 2 (English) or 3 (Latin). Each cell draws its face,
// then its letter from the pool a deal would use there (vowels on the even cells), with the
// SplitMix64 generator seeded by (year × 10000 + month × 100 + day) × 16 + language.
SharedBoard dayBoard(const CivilDate& date, int language);

} // namespace griglione
