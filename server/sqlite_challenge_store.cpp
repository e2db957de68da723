// The challenge tables in SQLite (WAL, synchronous FULL): one writer and one reader connection.
#include "server/sqlite_challenge_store.h"

#include "server/sqlite_calls.h"

#include <sqlite3.h>

#include <stdexcept>

namespace griglione {
namespace {

using sqlite::bindText;
using sqlite::exec;
using sqlite::fail;
using sqlite::open;
using sqlite::prepare;
using sqlite::text;

// One row per board and player. A better result takes a new row, so that the order of rows is
// the order in which their points were reached.
constexpr const char* kSchema = R"(
CREATE TABLE sfida (
    id INTEGER PRIMARY KEY,
    codice TEXT NOT NULL, giocatore TEXT NOT NULL, nome TEXT NOT NULL,
    punti INTEGER NOT NULL, tempo INTEGER NOT NULL, parole TEXT NOT NULL,
    ricevuto INTEGER NOT NULL,
    UNIQUE (codice, giocatore));
CREATE INDEX sfida_tabella ON sfida (codice, punti DESC, id);
PRAGMA user_version = 1;
)";

// Runs a statement that returns no rows, then makes it ready for the next use.
bool done(sqlite3_stmt* s) {
    const int status = sqlite3_step(s);
    sqlite3_reset(s);
    return status == SQLITE_DONE;
}

} // namespace

std::filesystem::path challengeDatabase(const std::filesystem::path& recordsDatabase) {
    std::filesystem::path file = recordsDatabase;
    file.replace_filename(recordsDatabase.stem().string() + "-sfide" +
                          recordsDatabase.extension().string());
    return file;
}

SqliteChallengeStore::SqliteChallengeStore(const std::filesystem::path& file) {
    try {
        m_writer = open(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        exec(m_writer, "PRAGMA journal_mode = WAL");
        exec(m_writer, "PRAGMA synchronous = FULL");
        sqlite::ensureSchema(m_writer, file, kSchema, kChallengeSchemaVersion);
        m_find = prepare(m_writer, "SELECT id, punti, parole FROM sfida WHERE codice=? AND "
                                   "giocatore=?");
        m_insert = prepare(m_writer, "INSERT INTO sfida (codice, giocatore, nome, punti, tempo, "
                                     "parole, ricevuto) VALUES (?,?,?,?,?,?,?)");
        m_remove = prepare(m_writer, "DELETE FROM sfida WHERE id=?");
        m_reader = open(file, SQLITE_OPEN_READONLY);
        m_players = prepare(m_reader, "SELECT nome, punti, tempo, parole, ricevuto FROM sfida "
                                      "WHERE codice=? ORDER BY punti DESC, id ASC LIMIT ?");
    } catch (...) {
        release();
        throw;
    }
}

SqliteChallengeStore::~SqliteChallengeStore() {
    release();
}

void SqliteChallengeStore::release() {
    for (sqlite3_stmt* s : {m_find, m_insert, m_remove, m_players})
        sqlite3_finalize(s);
    m_find = m_insert = m_remove = m_players = nullptr;
    sqlite3_close(m_reader);
    m_reader = nullptr;
    sqlite3_close(m_writer);
    m_writer = nullptr;
}

std::optional<ChallengeStored> SqliteChallengeStore::add(const ChallengeEntry& entry,
                                                         std::int64_t ricevuto) {
    std::lock_guard lock(m_writeMutex);
    if (sqlite3_exec(m_writer, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return std::nullopt;
    auto result = write(entry, ricevuto);
    if (!result || sqlite3_exec(m_writer, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
        sqlite3_exec(m_writer, "ROLLBACK", nullptr, nullptr, nullptr);
        return std::nullopt;
    }
    return result;
}

std::optional<ChallengeStored> SqliteChallengeStore::write(const ChallengeEntry& entry,
                                                           std::int64_t ricevuto) {
    bindText(m_find, 1, entry.codice);
    bindText(m_find, 2, entry.giocatore);
    int status = sqlite3_step(m_find);
    ChallengeStored stored;
    std::int64_t old = 0;
    if (status == SQLITE_ROW) {
        old = sqlite3_column_int64(m_find, 0);
        stored.puntiPrima = sqlite3_column_int(m_find, 1);
        if (text(m_find, 2) == entry.parole)
            stored.esito = ChallengeOutcome::Uguale;
        else if (entry.punti > stored.puntiPrima)
            stored.esito = ChallengeOutcome::Migliorato;
        else
            stored.esito = ChallengeOutcome::Conservato;
        status = SQLITE_DONE;
    }
    sqlite3_reset(m_find);
    if (status != SQLITE_DONE) return std::nullopt;
    if (stored.esito != ChallengeOutcome::Nuovo && stored.esito != ChallengeOutcome::Migliorato)
        return stored;
    if (old) {
        sqlite3_bind_int64(m_remove, 1, old);
        if (!done(m_remove)) return std::nullopt;
    }
    bindText(m_insert, 1, entry.codice);
    bindText(m_insert, 2, entry.giocatore);
    bindText(m_insert, 3, entry.nome);
    sqlite3_bind_int(m_insert, 4, entry.punti);
    sqlite3_bind_int(m_insert, 5, entry.tempo);
    bindText(m_insert, 6, entry.parole);
    sqlite3_bind_int64(m_insert, 7, ricevuto);
    if (!done(m_insert)) return std::nullopt;
    return stored;
}

std::optional<std::vector<ChallengeRow>> SqliteChallengeStore::players(const std::string& codice,
                                                                       int count) {
    std::lock_guard lock(m_readMutex);
    bindText(m_players, 1, codice);
    sqlite3_bind_int(m_players, 2, count);
    std::vector<ChallengeRow> rows;
    int status;
    while ((status = sqlite3_step(m_players)) == SQLITE_ROW)
        rows.push_back({static_cast<int>(rows.size()) + 1, text(m_players, 0),
                        sqlite3_column_int(m_players, 1), sqlite3_column_int(m_players, 2),
                        text(m_players, 3), sqlite3_column_int64(m_players, 4)});
    sqlite3_reset(m_players);
    if (status != SQLITE_DONE) return std::nullopt;
    return rows;
}

} // namespace griglione
