#include "dictionary/dictionary_format.h"

#include "core/number_text.h"

namespace griglione {
namespace {

// A position as the index stores it: right-aligned in 8 characters, a blank for the sign.
std::string indexField(std::int64_t position) {
    return rightAligned(numberText(position), 8);
}

void put(std::string& file, std::int64_t position, std::string_view bytes) {
    const auto offset = static_cast<std::size_t>(position - 1);
    if (file.size() < offset + bytes.size()) file.resize(offset + bytes.size(), '\0');
    file.replace(offset, bytes.size(), bytes);
}

} // namespace

std::string dictionaryFileName(int numDizionario) {
    return "SLESSICO." + std::to_string(numDizionario);
}

std::int64_t parseIndexField(std::string_view field) {
    std::size_t i = 0;
    while (i < field.size() && field[i] == ' ')
        ++i;
    std::int64_t value = 0;
    for (; i < field.size() && field[i] >= '0' && field[i] <= '9'; ++i) {
        value = value * 10 + (field[i] - '0');
        if (value > kLargestPosition * 10) break; // garbage of many digits: far past any file
    }
    return value;
}

DictionaryIndex parseIndex(std::string_view head) {
    DictionaryIndex index;
    const auto field = [head](std::int64_t position) {
        const auto offset = static_cast<std::size_t>(position - 1);
        if (offset >= head.size()) return std::string_view{};
        return head.substr(offset, 8);
    };
    for (int length = kMinWordLength; length <= kMaxIndexedLength; ++length) {
        const std::int64_t start = parseIndexField(field(indexEntryPosition(length)));
        const std::int64_t end = parseIndexField(field(indexEntryPosition(length) + 8));
        const int i = length - kMinWordLength;
        index.inizio[i] = static_cast<std::int32_t>(start);
        // An end before its start, as in a damaged file, means no words.
        index.conta[i] = end > start ? static_cast<std::int32_t>((end - start) / length) : 0;
    }
    return index;
}

std::string noticeText(std::string_view text) {
    std::string notice(text.substr(0, kNoticeLength));
    notice.resize(kNoticeLength, ' ');
    return notice;
}

std::string buildDictionaryFile(std::string_view notice, const WordLists& words) {
    std::string file(kMinimumFileSize, '\0');
    put(file, 1, noticeText(notice));
    std::int64_t p = kFirstBlockPosition;
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        bool written = false;
        for (const std::string& word : words[length - kMinWordLength]) {
            if (static_cast<int>(word.size()) != length) continue;
            if (!written) put(file, indexEntryPosition(length), indexField(p));
            written = true;
            put(file, p, word);
            p += length;
            if (p > kLargestPosition) return {};
        }
        if (written) put(file, indexEntryPosition(length) + 8, indexField(p));
    }
    return file;
}

} // namespace griglione
