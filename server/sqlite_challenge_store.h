// The challenge tables in an SQLite file of their own beside the world table's: their own
// schema and their own writer, so neither waits on the other's commits or checkpoints.
#pragma once

#include "server/challenge_store.h"

#include <filesystem>
#include <mutex>

struct sqlite3;
struct sqlite3_stmt;

namespace griglione {

inline constexpr int kChallengeSchemaVersion = 1;

// "…/griglione-records.sqlite" → "…/griglione-records-sfide.sqlite".
std::filesystem::path challengeDatabase(const std::filesystem::path& recordsDatabase);

class SqliteChallengeStore final : public ChallengeStore {
public:
    // Opens the file, creating it and its schema on first use. Throws std::runtime_error (with
    // an Italian message) when it cannot be opened or is of a newer schema.
    explicit SqliteChallengeStore(const std::filesystem::path& file);
    ~SqliteChallengeStore() override;
    SqliteChallengeStore(const SqliteChallengeStore&) = delete;
    SqliteChallengeStore& operator=(const SqliteChallengeStore&) = delete;

    std::optional<ChallengeStored> add(const ChallengeEntry& entry, std::int64_t ricevuto) override;
    std::optional<std::vector<ChallengeRow>> players(const std::string& codice, int count) override;

private:
    void release();
    std::optional<ChallengeStored> write(const ChallengeEntry& entry, std::int64_t ricevuto);

    std::mutex m_writeMutex;
    sqlite3* m_writer = nullptr;
    sqlite3_stmt* m_find = nullptr;
    sqlite3_stmt* m_insert = nullptr;
    sqlite3_stmt* m_remove = nullptr;
    std::mutex m_readMutex;
    sqlite3* m_reader = nullptr;
    sqlite3_stmt* m_players = nullptr;
};

} // namespace griglione
