#include "dictionary/open_file_table.h"

#include <system_error>

namespace griglione {

bool OpenFileTable::open(FileSlot slot, const std::filesystem::path& path) {
    close(slot);
    // A folder of that name opens as a stream whose first read throws.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return false;
    auto file = std::make_unique<std::ifstream>(path, std::ios::binary);
    if (!*file) return false;
    Entry& e = entry(slot);
    e.file = std::move(file);
    e.next = 1;
    ++e.generation;
    return true;
}

void OpenFileTable::close(FileSlot slot) {
    Entry& e = entry(slot);
    if (!e.file) return;
    e.file.reset();
    e.next = -1;
    ++e.generation;
}

void OpenFileTable::closeAll() {
    close(FileSlot::Scan);
    close(FileSlot::Opponent);
}

bool OpenFileTable::read(FileSlot slot, std::int64_t position, std::size_t length,
                         std::string& out) {
    Entry& e = entry(slot);
    if (!e.file || position < 1) return false;
    if (position != e.next) {
        e.file->clear();
        e.file->seekg(position - 1);
    }
    out.resize(length);
    e.file->read(out.data(), static_cast<std::streamsize>(length));
    const bool complete = static_cast<std::size_t>(e.file->gcount()) == length;
    e.next = complete ? position + static_cast<std::int64_t>(length) : -1;
    return complete;
}

} // namespace griglione
