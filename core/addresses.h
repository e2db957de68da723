// Where the program's links lead: the web site, the author's mail and the record-submission page.
#pragma once

namespace griglione {

inline constexpr const char* kSitoWeb = "https://griglione.example.org/";
inline constexpr const char* kSitoWebTesto = "griglione.example.org";
inline constexpr const char* kEmailAutore = "autore@griglione.example.org";
// The query parts of a submitted record follow this address.
inline constexpr const char* kPaginaRecord = "https://griglione.example.org/records/griglione.asp";

} // namespace griglione
