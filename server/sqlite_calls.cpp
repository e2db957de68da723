#include "server/sqlite_calls.h"

#include <stdexcept>

namespace griglione::sqlite {

void fail(sqlite3* db, const std::string& what) {
    const char* file = db ? sqlite3_db_filename(db, "main") : nullptr;
    throw std::runtime_error(std::string("Database ") + (file && *file ? file : "") +
                             " non utilizzabile (" + what +
                             "): " + (db ? sqlite3_errmsg(db) : "memoria esaurita"));
}

void exec(sqlite3* db, const char* sql) {
    if (sqlite3_exec(db, sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail(db, sql);
}

sqlite3_stmt* prepare(sqlite3* db, const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(db, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK)
        fail(db, "istruzione SQL non valida");
    return statement;
}

sqlite3* open(const std::filesystem::path& file, int flags) {
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(file.c_str(), &db, flags | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
        const std::string message = db ? sqlite3_errmsg(db) : "memoria esaurita";
        sqlite3_close(db);
        throw std::runtime_error("Impossibile aprire il database " + file.string() + ": " +
                                 message);
    }
    sqlite3_busy_timeout(db, 5000);
    return db;
}

void ensureSchema(sqlite3* writer, const std::filesystem::path& file, const char* schema,
                  int version) {
    // One transaction: two services starting on one new file cannot both create the tables.
    exec(writer, "BEGIN IMMEDIATE");
    sqlite3_stmt* statement = prepare(writer, "PRAGMA user_version");
    sqlite3_step(statement);
    const int found = sqlite3_column_int(statement, 0);
    sqlite3_finalize(statement);
    if (found > version) {
        exec(writer, "ROLLBACK");
        throw std::runtime_error("Il database " + file.string() + " è della versione " +
                                 std::to_string(found) +
                                 " dello schema, più recente di questo programma.");
    }
    if (found == 0) exec(writer, schema);
    exec(writer, "COMMIT");
}

void bindText(sqlite3_stmt* statement, int at, const std::string& text) {
    sqlite3_bind_text(statement, at, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

std::string text(sqlite3_stmt* statement, int column) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return bytes ? std::string(bytes,
                               static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
                 : std::string();
}

} // namespace griglione::sqlite
