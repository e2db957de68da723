#include "records/record_opening.h"

#include "core/atomic_file.h"
#include "records/record_table.h"

#include <fstream>
#include <optional>
#include <system_error>

namespace griglione {
namespace {

// The table the file holds; empty when there is no file, nothing when it cannot be read.
std::optional<RecordTable> readTable(const std::filesystem::path& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found) return RecordTable{};
    if (error || std::filesystem::is_directory(status)) return std::nullopt;
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    RecordTable table = RecordTable::read(in);
    if (in.bad()) return std::nullopt;
    return table;
}

} // namespace

bool recordDopoPartita(GameState& state) {
    if (state.puntiGiocatore <= 1000) return false;
    state.inserisciRecord = true;
    return true;
}

bool recordAllUscita(GameState& state) {
    if (state.puntiGiocatore <= 999) return false;
    state.inserisciRecord = true;
    state.uscitaDopoRecord = true;
    return true;
}

TabellaRecord riempiTabella(GameState& state, std::string_view nomeGiocatore,
                            const std::filesystem::path& file) {
    const std::optional<RecordTable> read = readTable(file);
    RecordTable table = read.value_or(RecordTable{});
    bool saved = true;
    const std::string name = RecordTable::keptName(nomeGiocatore);
    if (state.inserisciRecord) {
        state.inserisciRecord = false;
        table.enter(name, state.puntiGiocatore);
        // A failed write leaves the old file whole.
        saved = read && writeFileAtomically(file, table.fileBytes());
    }
    TabellaRecord shown;
    shown.righe = table.listLines();
    shown.primo = table.slot(1).name;
    const std::optional<int> place = table.placeOf(name, state.puntiGiocatore);
    shown.selezione = place.value_or(1);
    shown.invioPossibile = place && *place <= 2;
    // A score too low for the fifty places was never to be kept.
    shown.nonSalvato = !saved && place;
    return shown;
}

} // namespace griglione
