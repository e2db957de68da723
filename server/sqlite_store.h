// The world table in one SQLite file (WAL). Submissions are written by one thread that commits
// whatever has queued up in one transaction, so each fsync serves many records; reads use a small
// pool of their own connections; a thread of its own copies the WAL back, and the writer
// finishes the copy whenever the WAL has grown long.
#pragma once

#include "server/record_store.h"

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <mutex>
#include <thread>

struct sqlite3;
struct sqlite3_stmt;

namespace griglione {

inline constexpr int kSchemaVersion = 1;

class SqliteStore final : public RecordStore {
public:
    // Opens the database, creating it and its schema on first use. Throws std::runtime_error
    // (with an Italian message) when it cannot be opened or is of a newer schema.
    explicit SqliteStore(const std::filesystem::path& file, int readers = 4);
    ~SqliteStore() override;
    SqliteStore(const SqliteStore&) = delete;
    SqliteStore& operator=(const SqliteStore&) = delete;

    std::optional<Stored> add(const WorldRecord& record) override;
    std::optional<std::vector<TableRow>> best(int lingua, int tempo, int count) override;
    std::optional<Neighbourhood> around(std::int64_t id, int span) override;

private:
    struct Pending;
    struct Reader;
    class Lease;

    void release();
    void writeLoop();
    void checkpointLoop();
    std::optional<Stored> insert(const WorldRecord& record);

    sqlite3* m_writer = nullptr;
    sqlite3_stmt* m_insert = nullptr;
    sqlite3_stmt* m_existing = nullptr;
    std::mutex m_queueMutex;
    std::condition_variable m_queued;
    std::deque<Pending*> m_queue;
    bool m_stopping = false;
    std::thread m_thread;

    sqlite3* m_checkpointer = nullptr;
    std::mutex m_checkpointMutex;
    std::condition_variable m_walGrown;
    bool m_checkpointDue = false;
    bool m_checkpointStopping = false;
    std::thread m_checkpointThread;

    std::mutex m_readMutex;
    std::condition_variable m_readerFree;
    std::vector<Reader*> m_idle;
    std::vector<Reader*> m_readers;
};

} // namespace griglione
