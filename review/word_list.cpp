#include "review/word_list.h"

#include "core/file_names.h"
#include "dictionary/dictionary_format.h"
#include "dictionary/personal_vocabulary.h"

#include <algorithm>
#include <fstream>
#include <numeric>

namespace griglione {
namespace {

std::string_view record(const WordBlock& block, std::size_t i) {
    return std::string_view(block.records).substr(i * block.length, block.length);
}

// The editor keeps blocks sorted, but a hand-made file may not be, and the search depends on it.
void sortRecords(WordBlock& block) {
    const std::size_t n = block.count();
    bool sorted = true;
    for (std::size_t i = 1; i < n && sorted; ++i)
        sorted = record(block, i - 1) <= record(block, i);
    if (sorted) return;
    std::vector<std::size_t> order(n);
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return record(block, a) < record(block, b); });
    std::string records;
    records.reserve(block.records.size());
    for (std::size_t i : order)
        records += record(block, i);
    block.records = std::move(records);
}

} // namespace

WordList wordListFrom(std::string_view file, const std::vector<std::string>& personal) {
    WordList list;
    const DictionaryIndex index =
        parseIndex(file.substr(0, std::min<std::size_t>(file.size(), kFirstBlockPosition)));
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        const std::int64_t offset = std::int64_t{index.inizioGruppo(length)} - 1;
        std::int64_t count = index.contaGruppo(length);
        if (offset < 0 || count <= 0 || offset >= static_cast<std::int64_t>(file.size())) continue;
        count = std::min<std::int64_t>(count, (std::int64_t(file.size()) - offset) / length);
        WordBlock block{length, std::string(file.substr(offset, count * length))};
        sortRecords(block);
        if (block.count() > 0) list.blocks.push_back(std::move(block));
    }
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        std::vector<std::string_view> words;
        for (const std::string& w : personal)
            if (static_cast<int>(w.size()) == length) words.push_back(w);
        if (words.empty()) continue;
        std::sort(words.begin(), words.end());
        words.erase(std::unique(words.begin(), words.end()), words.end());
        WordBlock block{length, {}};
        for (std::string_view w : words)
            block.records += w;
        list.blocks.push_back(std::move(block));
    }
    return list;
}

WordList readWordList(const std::filesystem::path& folder, int numDizionario) {
    try {
        std::string bytes;
        const auto path = resolveFileName(folder, dictionaryFileName(numDizionario));
        std::error_code error;
        if (std::filesystem::is_regular_file(path, error)) {
            // No index position can pass 9,999,999, so nothing beyond it is ever a word.
            const auto size = std::filesystem::file_size(path, error);
            bytes.resize(error ? 0 : std::min<std::uintmax_t>(size, kLargestPosition));
            std::ifstream in(path, std::ios::binary);
            in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
            bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(in.gcount(), 0)));
        }
        const auto personal = readPersonalVocabulary(
            resolveFileName(folder, personalVocabularyFileName(numDizionario)));
        return wordListFrom(bytes, personal);
    } catch (...) {
        // Out of memory for a huge file: the review shows what the players found and no more.
        return {};
    }
}

} // namespace griglione
