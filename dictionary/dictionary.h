// The three lookups of the main dictionary of the current language. The word list is never
// loaded: the index says where each length's block lies and single records are read on demand.
// Every record read is preceded by a yield to the window, so timer ticks and clicks run inside a
// lookup; the open-file table tells a lookup whether its file was closed meanwhile.
#pragma once

#include "core/game_state.h"
#include "core/ports.h"
#include "dictionary/dictionary_format.h"
#include "dictionary/open_file_table.h"

#include <filesystem>
#include <functional>
#include <string>

namespace griglione {

class Dictionary {
public:
    // `state.numDizionario` names the language at every call; files lie in `folder`.
    Dictionary(const GameState& state, OpenFileTable& files, Alerts& alerts,
               std::function<void()> yield, std::filesystem::path folder = ".");

    // Loads the index of SLESSICO.<n>; a missing file is fatal.
    void prendidiz();

    // The exhaustive scan of the word's length block.
    bool trovaInDizionario(const std::string& parola);

    // The submission's check: the scan, then the personal vocabulary. "SI" or "NO".
    std::string verificaParola(const std::string& parola);
    // True when the last `verificaParola` found its word in the main dictionary, not only in
    // the personal vocabulary.
    bool ultimaDalPrincipale() const { return m_dalPrincipale; }

    // The opponent's check: a binary search, then the personal vocabulary. "SI", "NO", "NO2"
    // (fewer than 3 letters), "BUSY" (its file was closed under it) or "" (no dictionary file).
    std::string cercaParola(const std::string& parola);

    // Adds the word to the personal vocabulary; a failed write is reported in a message box and
    // the game goes on. False when the word was not stored.
    bool aggiungiAlVocabolario(const std::string& parola);

    const DictionaryIndex& index() const { return m_index; }

    std::filesystem::path dictionaryPath() const;
    std::filesystem::path personalVocabularyPath() const;

private:
    bool blockHolds(int length) const;

    const GameState& m_state;
    OpenFileTable& m_files;
    Alerts& m_alerts;
    std::function<void()> m_yield;
    std::filesystem::path m_folder;
    DictionaryIndex m_index;
    bool m_dalPrincipale = false;
};

} // namespace griglione
