// The few SQLite calls both stores make the same way: opening, preparing, binding and reading
// text, each failure thrown with the database's own reason.
#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <string>

namespace griglione::sqlite {

// Throws std::runtime_error naming the database file, `what` was being done, and SQLite's reason.
[[noreturn]] void fail(sqlite3* db, const std::string& what);

// Runs statements that return no rows; throws when one fails.
void exec(sqlite3* db, const char* sql);

// A statement kept for the connection's life; throws when the SQL is wrong.
sqlite3_stmt* prepare(sqlite3* db, const std::string& sql);

// A connection without SQLite's own mutex (each is used by one thread at a time) that waits up
// to 5 s for a lock; throws with the reason when the file cannot be opened.
sqlite3* open(const std::filesystem::path& file, int flags);

// Creates the tables of a new database with `schema`; throws when the file holds a newer
// version of it than `version`, which this program cannot read.
void ensureSchema(sqlite3* writer, const std::filesystem::path& file, const char* schema,
                  int version);

// Binds text that outlives the statement's step, without copying it.
void bindText(sqlite3_stmt* statement, int at, const std::string& text);

// A text column, empty for NULL, embedded zero bytes kept.
std::string text(sqlite3_stmt* statement, int column);

} // namespace griglione::sqlite
