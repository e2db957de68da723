// Every dictionary file the game opens is registered here, so that "close every open file" can
// close them all. A lookup that yields to the window finds out afterwards whether its file was
// closed, or opened again by somebody else, under it.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace griglione {

enum class FileSlot { Scan, Opponent };

class OpenFileTable {
public:
    // Closes whatever the slot holds, then opens `path` for binary reading in it.
    bool open(FileSlot slot, const std::filesystem::path& path);
    void close(FileSlot slot);
    void closeAll();

    // Changes at every opening and closing of the slot; a lookup compares it with the value it
    // saw when it opened its file.
    std::uint64_t generation(FileSlot slot) const { return entry(slot).generation; }
    bool isOpen(FileSlot slot) const { return entry(slot).file != nullptr; }

    // Reads `length` bytes at `position` (counted from 1). False when the slot is closed or the
    // file has fewer bytes there.
    bool read(FileSlot slot, std::int64_t position, std::size_t length, std::string& out);

private:
    struct Entry {
        std::unique_ptr<std::ifstream> file;
        std::uint64_t generation = 0;
        // Where the next read starts when it needs no seek: a seek drops the stream's buffer,
        // which would make the scan of a block read the file once per record.
        std::int64_t next = -1;
    };
    Entry& entry(FileSlot slot) { return m_entries[static_cast<std::size_t>(slot)]; }
    const Entry& entry(FileSlot slot) const { return m_entries[static_cast<std::size_t>(slot)]; }

    std::array<Entry, 2> m_entries;
};

} // namespace griglione
