// The world table in SQLite: schema, group commit on one writer thread, pooled readers.
#include "server/sqlite_store.h"

#include "server/service_log.h"

#include "server/sqlite_calls.h"

#include <sqlite3.h>

#include <future>
#include <stdexcept>

namespace griglione {
namespace {

using sqlite::bindText;
using sqlite::exec;
using sqlite::fail;
using sqlite::open;
using sqlite::prepare;
using sqlite::text;

constexpr const char* kSchema = R"(
CREATE TABLE record (
    id INTEGER PRIMARY KEY,
    nome TEXT NOT NULL, programma TEXT NOT NULL, data TEXT NOT NULL, punti INTEGER NOT NULL,
    tempo INTEGER NOT NULL, note TEXT NOT NULL, email TEXT NOT NULL, ora TEXT NOT NULL,
    lingua INTEGER NOT NULL,
    ricevuto TEXT NOT NULL DEFAULT (strftime('%Y-%m-%dT%H:%M:%SZ', 'now')),
    UNIQUE (nome, data, punti, tempo, note, email, lingua));
CREATE INDEX classifica ON record (lingua, tempo, punti DESC, id);
PRAGMA user_version = 1;
)";

// Up to this many queued submissions share one transaction.
constexpr std::size_t kBatch = 256;
// WAL pages after which the checkpoint thread copies what it can beside the writer; after which
// the writer finishes the copy itself (SQLite's own default threshold), so that its next commit
// starts the WAL over; and after which it waits for readers rather than leave the WAL growing.
constexpr int kBackgroundPages = 250;
constexpr int kCheckpointPages = 1000;
constexpr int kForcedCheckpointPages = 4000;

// PASSIVE copies what no reader still needs; when readers have kept the WAL from starting over
// for long, TRUNCATE waits for them (up to the busy timeout). What cannot proceed is logged.
void checkpoint(sqlite3* db, int pages) {
    int frames = 0, copied = 0;
    int status =
        sqlite3_wal_checkpoint_v2(db, nullptr, SQLITE_CHECKPOINT_PASSIVE, &frames, &copied);
    if (status == SQLITE_OK && copied < frames && pages >= kForcedCheckpointPages)
        status =
            sqlite3_wal_checkpoint_v2(db, nullptr, SQLITE_CHECKPOINT_TRUNCATE, &frames, &copied);
    if (status != SQLITE_OK || (copied < frames && pages >= kForcedCheckpointPages))
        serviceLog().failure("checkpoint", "il WAL (" + std::to_string(pages) +
                                               " pagine) non è stato copiato tutto nel "
                                               "database: " +
                                               sqlite3_errmsg(db));
}

constexpr const char* kRowColumns = "id, nome, punti, note, data, ora";

void bindRecord(sqlite3_stmt* s, const WorldRecord& r) {
    bindText(s, 1, r.nome);
    bindText(s, 2, r.programma);
    bindText(s, 3, r.data);
    sqlite3_bind_int(s, 4, r.punti);
    sqlite3_bind_int(s, 5, r.tempo);
    bindText(s, 6, r.note);
    bindText(s, 7, r.email);
    bindText(s, 8, r.ora);
    sqlite3_bind_int(s, 9, r.lingua);
}

// Reads the rows of a statement selecting kRowColumns, numbering them from `firstPlace`.
bool readRows(sqlite3_stmt* s, int firstPlace, std::vector<TableRow>& rows) {
    int status;
    while ((status = sqlite3_step(s)) == SQLITE_ROW)
        rows.push_back({firstPlace++, sqlite3_column_int64(s, 0), text(s, 1),
                        sqlite3_column_int(s, 2), text(s, 3), text(s, 4), text(s, 5)});
    sqlite3_reset(s);
    return status == SQLITE_DONE;
}

} // namespace

struct SqliteStore::Pending {
    const WorldRecord& record;
    std::promise<std::optional<Stored>> done;
};

struct SqliteStore::Reader {
    sqlite3* db = nullptr;
    sqlite3_stmt* best = nullptr;
    sqlite3_stmt* where = nullptr;
    sqlite3_stmt* ahead = nullptr;
    sqlite3_stmt* window = nullptr;
};

// A reader borrowed from the pool for one call.
class SqliteStore::Lease {
public:
    explicit Lease(SqliteStore& store) : m_store(store) {
        std::unique_lock lock(store.m_readMutex);
        store.m_readerFree.wait(lock, [&] { return !store.m_idle.empty(); });
        m_reader = store.m_idle.back();
        store.m_idle.pop_back();
    }
    ~Lease() {
        {
            std::lock_guard lock(m_store.m_readMutex);
            m_store.m_idle.push_back(m_reader);
        }
        m_store.m_readerFree.notify_one();
    }
    Reader& operator*() const { return *m_reader; }

private:
    SqliteStore& m_store;
    Reader* m_reader;
};

SqliteStore::SqliteStore(const std::filesystem::path& file, int readers) {
    m_writer = open(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    try {
        exec(m_writer, "PRAGMA journal_mode = WAL");
        // FULL: a commit is on the disk before the page says "registrato".
        exec(m_writer, "PRAGMA synchronous = FULL");
        sqlite3_wal_autocheckpoint(m_writer, 0);
        // A WAL that starts over after a checkpoint is cut back to this size.
        exec(m_writer, "PRAGMA journal_size_limit = 8388608");
        sqlite::ensureSchema(m_writer, file, kSchema, kSchemaVersion);
        m_insert = prepare(m_writer, "INSERT OR IGNORE INTO record (nome, programma, data, punti, "
                                     "tempo, note, email, ora, lingua) VALUES (?,?,?,?,?,?,?,?,?)");
        // The same record sent again: each click on the game's link draws new "programma" letters
        // and may fall in a new minute, so neither tells two submissions apart.
        m_existing = prepare(m_writer, "SELECT id FROM record WHERE nome=?1 AND data=?3 AND "
                                       "punti=?4 AND tempo=?5 AND note=?6 AND email=?7 AND "
                                       "lingua=?9");
        for (int i = 0; i < readers; ++i) {
            auto* reader = new Reader;
            m_readers.push_back(reader);
            reader->db = open(file, SQLITE_OPEN_READONLY);
            const std::string order = " ORDER BY punti DESC, id ASC";
            reader->best = prepare(reader->db, std::string("SELECT ") + kRowColumns +
                                                   " FROM record WHERE lingua=? AND tempo=?" +
                                                   order + " LIMIT ?");
            reader->where =
                prepare(reader->db, "SELECT lingua, tempo, punti FROM record WHERE id=?");
            // Two ranges of the index, counted without testing every row against an OR.
            reader->ahead = prepare(
                reader->db, "SELECT (SELECT count(*) FROM record WHERE lingua=?1 AND tempo=?2 AND "
                            "punti>?3) + (SELECT count(*) FROM record WHERE lingua=?1 AND "
                            "tempo=?2 AND punti=?3 AND id<?4)");
            reader->window = prepare(reader->db, std::string("SELECT ") + kRowColumns +
                                                     " FROM record WHERE lingua=? AND tempo=?" +
                                                     order + " LIMIT ? OFFSET ?");
        }
    } catch (...) {
        release();
        throw;
    }
    m_idle = m_readers;
    m_checkpointer = open(file, SQLITE_OPEN_READWRITE);
    // A checkpoint beside a writer that keeps committing never catches up with it, and the WAL
    // only starts over when one has: the checkpoint thread copies the bulk without holding up
    // the writer, and the writer copies the rest, little by then, between two commits.
    sqlite3_wal_hook(
        m_writer,
        [](void* store, sqlite3* db, const char*, int pages) {
            if (pages >= kCheckpointPages) {
                checkpoint(db, pages);
            } else if (pages >= kBackgroundPages) {
                auto* self = static_cast<SqliteStore*>(store);
                {
                    std::lock_guard lock(self->m_checkpointMutex);
                    self->m_checkpointDue = true;
                }
                self->m_walGrown.notify_one();
            }
            return SQLITE_OK;
        },
        this);
    m_checkpointThread = std::thread([this] { checkpointLoop(); });
    m_thread = std::thread([this] { writeLoop(); });
}

void SqliteStore::checkpointLoop() {
    for (;;) {
        {
            std::unique_lock lock(m_checkpointMutex);
            m_walGrown.wait(lock, [this] { return m_checkpointDue || m_checkpointStopping; });
            if (m_checkpointStopping) return;
            m_checkpointDue = false;
        }
        // A connection that has never read the database has not opened the WAL, and its
        // checkpoint would copy nothing: it reads first.
        sqlite3_exec(m_checkpointer, "SELECT 1 FROM sqlite_schema LIMIT 1", nullptr, nullptr,
                     nullptr);
        const int status = sqlite3_wal_checkpoint_v2(m_checkpointer, nullptr,
                                                     SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
        if (status != SQLITE_OK)
            serviceLog().failure("checkpoint", std::string("copia del WAL non riuscita: ") +
                                                   sqlite3_errmsg(m_checkpointer));
        std::unique_lock lock(m_checkpointMutex);
        m_walGrown.wait_for(lock, std::chrono::milliseconds(100),
                            [this] { return m_checkpointStopping; });
    }
}

SqliteStore::~SqliteStore() {
    if (m_thread.joinable()) {
        {
            std::lock_guard lock(m_queueMutex);
            m_stopping = true;
        }
        m_queued.notify_one();
        m_thread.join();
    }
    if (m_checkpointThread.joinable()) {
        {
            std::lock_guard lock(m_checkpointMutex);
            m_checkpointStopping = true;
        }
        m_walGrown.notify_one();
        m_checkpointThread.join();
    }
    release();
}

void SqliteStore::release() {
    for (Reader* reader : m_readers) {
        for (sqlite3_stmt* s : {reader->best, reader->where, reader->ahead, reader->window})
            sqlite3_finalize(s);
        sqlite3_close(reader->db);
        delete reader;
    }
    m_readers.clear();
    sqlite3_finalize(m_insert);
    sqlite3_finalize(m_existing);
    sqlite3_close(m_checkpointer);
    m_checkpointer = nullptr;
    // The last connection to close checkpoints the WAL into the database and removes it.
    sqlite3_close(m_writer);
    m_writer = nullptr;
}

std::optional<Stored> SqliteStore::add(const WorldRecord& record) {
    Pending pending{record, {}};
    auto result = pending.done.get_future();
    {
        std::lock_guard lock(m_queueMutex);
        m_queue.push_back(&pending);
    }
    m_queued.notify_one();
    return result.get();
}

void SqliteStore::writeLoop() {
    for (;;) {
        std::vector<Pending*> batch;
        {
            std::unique_lock lock(m_queueMutex);
            m_queued.wait(lock, [this] { return m_stopping || !m_queue.empty(); });
            if (m_queue.empty()) return;
            while (!m_queue.empty() && batch.size() < kBatch) {
                batch.push_back(m_queue.front());
                m_queue.pop_front();
            }
        }
        std::vector<std::optional<Stored>> results;
        bool ok = sqlite3_exec(m_writer, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) == SQLITE_OK;
        for (std::size_t i = 0; ok && i < batch.size(); ++i) {
            results.push_back(insert(batch[i]->record));
            ok = results.back().has_value();
        }
        ok = ok && sqlite3_exec(m_writer, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK;
        if (!ok) {
            serviceLog().failure("database",
                                 std::string("record non salvati: ") + sqlite3_errmsg(m_writer));
            sqlite3_exec(m_writer, "ROLLBACK", nullptr, nullptr, nullptr);
        }
        // Nobody hears "stored" before the commit is done, and after a failure nobody does.
        for (std::size_t i = 0; i < batch.size(); ++i)
            batch[i]->done.set_value(ok ? results[i] : std::nullopt);
    }
}

std::optional<Stored> SqliteStore::insert(const WorldRecord& record) {
    bindRecord(m_insert, record);
    const int status = sqlite3_step(m_insert);
    sqlite3_reset(m_insert);
    if (status != SQLITE_DONE) return std::nullopt;
    if (sqlite3_changes(m_writer) == 1) return Stored{true, sqlite3_last_insert_rowid(m_writer)};
    bindRecord(m_existing, record);
    std::optional<Stored> old;
    if (sqlite3_step(m_existing) == SQLITE_ROW)
        old = Stored{false, sqlite3_column_int64(m_existing, 0)};
    sqlite3_reset(m_existing);
    return old;
}

std::optional<std::vector<TableRow>> SqliteStore::best(int lingua, int tempo, int count) {
    Lease lease(*this);
    sqlite3_stmt* s = (*lease).best;
    sqlite3_bind_int(s, 1, lingua);
    sqlite3_bind_int(s, 2, tempo);
    sqlite3_bind_int(s, 3, count);
    std::vector<TableRow> rows;
    if (!readRows(s, 1, rows)) return std::nullopt;
    return rows;
}

std::optional<Neighbourhood> SqliteStore::around(std::int64_t id, int span) {
    Lease lease(*this);
    Reader& r = *lease;
    // One snapshot for the place and the rows, so that they agree.
    if (sqlite3_exec(r.db, "BEGIN", nullptr, nullptr, nullptr) != SQLITE_OK) return std::nullopt;
    std::optional<Neighbourhood> result;
    sqlite3_bind_int64(r.where, 1, id);
    if (sqlite3_step(r.where) == SQLITE_ROW) {
        const int lingua = sqlite3_column_int(r.where, 0), tempo = sqlite3_column_int(r.where, 1);
        sqlite3_bind_int(r.ahead, 1, lingua);
        sqlite3_bind_int(r.ahead, 2, tempo);
        sqlite3_bind_int(r.ahead, 3, sqlite3_column_int(r.where, 2));
        sqlite3_bind_int64(r.ahead, 4, id);
        if (sqlite3_step(r.ahead) == SQLITE_ROW) {
            Neighbourhood found;
            found.posto = sqlite3_column_int(r.ahead, 0) + 1;
            const int first = std::max(1, found.posto - span);
            sqlite3_bind_int(r.window, 1, lingua);
            sqlite3_bind_int(r.window, 2, tempo);
            sqlite3_bind_int(r.window, 3, found.posto + span - first + 1);
            sqlite3_bind_int(r.window, 4, first - 1);
            if (readRows(r.window, first, found.righe)) result = std::move(found);
        }
        sqlite3_reset(r.ahead);
    }
    sqlite3_reset(r.where);
    sqlite3_exec(r.db, "COMMIT", nullptr, nullptr, nullptr);
    return result;
}

} // namespace griglione
