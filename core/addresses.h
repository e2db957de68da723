// Where the program's links lead: the web site, the author's mail and the record-submission page.
#pragma once

namespace griglione {

// The home page of the records service, which also receives the records: the one host constant.
// The environment variable named below replaces it (a player's own service, tests).
inline constexpr const char* kSitoWeb = "https://griglione.example.org/";
inline constexpr const char* kVariabileServizio = "GRIGLIONE_RECORDS_URL";
inline constexpr const char* kSitoWebTesto = "griglione.example.org";
inline constexpr const char* kEmailAutore = "autore@griglione.example.org";
// The record-submission page, below the service's home page; the query parts follow it.
inline constexpr const char* kPaginaRecord = "records/griglione.asp";

} // namespace griglione
