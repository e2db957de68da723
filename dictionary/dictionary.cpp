#include "dictionary/dictionary.h"

#include "core/atomic_file.h"
#include "core/file_names.h"
#include "core/player_text.h"
#include "dictionary/personal_vocabulary.h"

#include <fstream>

namespace griglione {

Dictionary::Dictionary(const GameState& state, OpenFileTable& files, Alerts& alerts,
                       std::function<void()> yield, std::filesystem::path folder)
    : m_state(state), m_files(files), m_alerts(alerts), m_yield(std::move(yield)),
      m_folder(std::move(folder)) {}

std::filesystem::path Dictionary::dictionaryPath() const {
    return resolveFileName(m_folder, dictionaryFileName(m_state.numDizionario));
}

std::filesystem::path Dictionary::personalVocabularyPath() const {
    return resolveFileName(m_folder, personalVocabularyFileName(m_state.numDizionario));
}

void Dictionary::prendidiz() {
    const auto path = dictionaryPath();
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        m_alerts.fatale(withArgs(playerText("Dictionary", "Errore fatale! non trovato file di "
                                                          "vocabolario: SLESSICO.%1"),
                                 {std::to_string(m_state.numDizionario)}));
        m_index = {};
        return;
    }
    std::ifstream in(path, std::ios::binary);
    std::string head(kFirstBlockPosition, '\0');
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    m_index = parseIndex(head);
}

bool Dictionary::blockHolds(int length) const {
    return length >= kMinWordLength && length <= kMaxIndexedLength;
}

bool Dictionary::trovaInDizionario(const std::string& parola) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(dictionaryPath(), error)) {
        m_alerts.fatale(withArgs(
            playerText("Dictionary", "Errore 0002: Non trovato file di vocabolario SLESSICO.%1"),
            {std::to_string(m_state.numDizionario)}));
        return false;
    }
    const int length = static_cast<int>(parola.size());
    if (!blockHolds(length) || !m_files.open(FileSlot::Scan, dictionaryPath())) return false;
    const std::uint64_t opened = m_files.generation(FileSlot::Scan);
    const std::int64_t start = m_index.inizioGruppo(length);
    std::string record;
    bool found = false;
    for (std::int64_t i = 0; i < m_index.contaGruppo(length); ++i) {
        m_yield();
        // A file closed under the scan (or a short, damaged file) ends it: the word is unknown.
        if (m_files.generation(FileSlot::Scan) != opened ||
            !m_files.read(FileSlot::Scan, start + length * i, length, record))
            break;
        if (record == parola) {
            found = true;
            break;
        }
    }
    if (m_files.generation(FileSlot::Scan) == opened) m_files.close(FileSlot::Scan);
    return found;
}

std::string Dictionary::verificaParola(const std::string& parola) {
    m_dalPrincipale = trovaInDizionario(parola);
    if (m_dalPrincipale) return "SI";
    return personalVocabularyHas(personalVocabularyPath(), parola) ? "SI" : "NO";
}

bool Dictionary::aggiungiAlVocabolario(const std::string& parola) {
    if (appendToPersonalVocabulary(personalVocabularyPath(), parola)) return true;
    m_alerts.avviso(personalVocabularyWriteError(m_state.numDizionario));
    return false;
}

std::string Dictionary::cercaParola(const std::string& parola) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(dictionaryPath(), error)) {
        m_alerts.avviso(withArgs(
            playerText("Dictionary", "Errore 0002: Non trovato file di vocabolario SLESSICO.%1"),
            {std::to_string(m_state.numDizionario)}));
        return "";
    }
    if (!m_files.open(FileSlot::Opponent, dictionaryPath())) return "BUSY";
    const std::uint64_t opened = m_files.generation(FileSlot::Opponent);
    const int length = static_cast<int>(parola.size());
    if (length < kMinWordLength) {
        m_files.close(FileSlot::Opponent);
        return "NO2";
    }
    std::string result = "NO";
    if (blockHolds(length)) {
        const std::int64_t start = m_index.inizioGruppo(length);
        std::int64_t lo = 0;
        std::int64_t hi = m_index.contaGruppo(length);
        std::string record;
        while (lo < hi) {
            const std::int64_t k = (lo + hi) / 2;
            m_yield();
            if (m_files.generation(FileSlot::Opponent) != opened) return "BUSY";
            // A record past the end of a damaged file: the word is not there.
            if (!m_files.read(FileSlot::Opponent, start + k * length, length, record)) break;
            if (record == parola) {
                result = "SI";
                break;
            }
            if (record > parola)
                hi = k;
            else
                lo = k + 1;
        }
    }
    m_files.close(FileSlot::Opponent);
    if (result != "SI" && personalVocabularyHas(personalVocabularyPath(), parola)) result = "SI";
    return result;
}

} // namespace griglione
