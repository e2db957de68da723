// The address that submits a top score to the maker's record page, and the notes' cleaning.
#pragma once

#include "core/random.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace griglione {

// `bytes` with every byte outside A-Z a-z 0-9 "-._~" written as "%" and two capital hex digits.
std::string percentEncoded(std::string_view bytes);

// Replaces every blank, "%", "$", "&", "!" and "=" of `t` with "_", in place, and returns it.
std::string cmbS(std::string& t);

// The date and time of the submission, as the system's calendar gives them.
struct DataOra {
    int giorno = 1;
    int mese = 1;
    int anno = 2000;
    int ore = 0;
    int minuti = 0;
};

// The texts as typed (UTF-8); they travel as Windows-1252, like every text of the game.
struct RecordDaInviare {
    std::string nome;
    std::int32_t punti = 0;
    std::int32_t tempoPartita = 0;
    std::string note;
    std::string email;
    std::int32_t numDizionario = 1;
};

// The records service's home page, always ending in "/": the environment's
// GRIGLIONE_RECORDS_URL when it is set and not empty, otherwise kSitoWeb.
std::string indirizzoServizio();

// How a link names that address: its host (and port), "griglione.example.org" for kSitoWeb.
std::string testoServizio(std::string_view indirizzo);

// The submission page followed by the query parts in the page's own order. Name, notes and
// e-mail are percent-encoded byte by byte in Windows-1252 outside A-Z a-z 0-9 "-._~", so that
// "#", "&", "=", "+", "%", blanks and accents reach the page whole; nothing may encode the
// address again.
std::string indirizzoRecord(RecordDaInviare record, const DataOra& adesso, Random& random,
                            const Clock& clock);

} // namespace griglione
