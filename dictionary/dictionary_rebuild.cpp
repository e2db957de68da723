#include "dictionary/dictionary_rebuild.h"

#include "core/atomic_file.h"
#include "core/file_names.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <vector>

namespace griglione {

DictionaryBlocks::DictionaryBlocks(const std::filesystem::path& file) {
    std::error_code error;
    if (std::filesystem::is_regular_file(file, error)) m_in.open(file, std::ios::binary);
}

std::string DictionaryBlocks::block(const DictionaryIndex& index, int length) {
    const std::int64_t count = index.contaGruppo(length);
    const std::int64_t start = index.inizioGruppo(length);
    if (!m_in.is_open() || count <= 0 || start < 1) return {};
    std::string bytes(static_cast<std::size_t>(count * length), '\0');
    m_in.clear();
    m_in.seekg(start - 1);
    m_in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    const auto got = m_in.gcount() > 0 ? static_cast<std::size_t>(m_in.gcount()) : 0;
    bytes.resize(got - got % static_cast<std::size_t>(length));

    // The shipped files are sorted; a file sorted otherwise is shown in order all the same.
    const auto size = static_cast<std::size_t>(length);
    std::vector<std::string_view> records;
    records.reserve(bytes.size() / size);
    for (std::size_t at = 0; at < bytes.size(); at += size)
        records.emplace_back(bytes.data() + at, size);
    if (std::is_sorted(records.begin(), records.end())) return bytes;
    std::sort(records.begin(), records.end());
    std::string sorted;
    sorted.reserve(bytes.size());
    for (const std::string_view record : records)
        sorted.append(record);
    return sorted;
}

std::string rebuiltNotice(const std::filesystem::path& oldFile, std::string_view fallback) {
    std::error_code error;
    std::ifstream in;
    if (std::filesystem::is_regular_file(oldFile, error)) in.open(oldFile, std::ios::binary);
    std::string notice(kNoticeLength, '\0');
    if (in.is_open() && in.read(notice.data(), kNoticeLength) &&
        notice.find('\0') == std::string::npos)
        return notice;
    return noticeText(fallback);
}

std::filesystem::path rebuiltFileName(const std::filesystem::path& folder, int numDizionario) {
    // A shipped dictionary read from the installed data folder is rebuilt into the player's own.
    return writableFileName(resolveFileName(folder, dictionaryFileName(numDizionario)));
}

bool rebuildDictionary(const std::filesystem::path& folder, int numDizionario,
                       std::string_view notice, const WordLists& words, std::error_code* why) {
    const auto fail = [why](std::error_code reason) {
        if (why) *why = reason;
        return false;
    };
    const std::string bytes = buildDictionaryFile(notice, words);
    if (bytes.empty()) return fail(std::make_error_code(std::errc::file_too_large));
    const auto target = rebuiltFileName(folder, numDizionario);
    const auto fresh = writableFileName(resolveFileName(folder, kNewDictionaryFileName));
    // A write-protected dictionary stays as it is, although the rename could replace it.
    if (const std::error_code refusal = writeRefusal(target)) return fail(refusal);
    std::error_code error;
    // A leftover of an interrupted rebuild goes first; anything else in its way stops the work.
    if (std::filesystem::exists(std::filesystem::symlink_status(fresh, error)) &&
        !std::filesystem::remove(fresh, error))
        return fail(error);
    if (!writeFileAtomically(fresh, bytes, why)) return false;
    return renameDurably(fresh, target, why);
}

} // namespace griglione
