// Where the world table lives. SQLite is the one implementation today; a table that outgrew one
// machine would give this interface a PostgreSQL one.
#pragma once

#include "server/world_record.h"

#include <optional>
#include <vector>

namespace griglione {

struct Stored {
    bool nuovo = false;  // false: the same submission was already there
    std::int64_t id = 0; // the record's row, new or old
};

// A record's place and the rows around it.
struct Neighbourhood {
    int posto = 0;
    std::vector<TableRow> righe;
};

class RecordStore {
public:
    virtual ~RecordStore() = default;
    // Returns once the record is durably stored; nothing when the storage failed.
    virtual std::optional<Stored> add(const WorldRecord& record) = 0;
    // Best first; equal scores in the order they arrived.
    virtual std::optional<std::vector<TableRow>> best(int lingua, int tempo, int count) = 0;
    // The place of record `id` in its table and up to `span` rows above and below it.
    virtual std::optional<Neighbourhood> around(std::int64_t id, int span) = 0;
};

} // namespace griglione
