#include "tools/dictionaries/word_selection.h"

#include <algorithm>
#include <utility>

namespace griglione {

std::uint32_t wordHash(const std::string& word) {
    std::uint32_t hash = 2166136261u;
    for (const char c : word) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 16777619u;
    }
    return hash;
}

WordSelection::WordSelection(std::size_t wordsPerLength) : m_wordsPerLength(wordsPerLength) {}

std::size_t WordSelection::addTier(const std::vector<std::string>& words) {
    const std::size_t before = size();
    std::array<std::set<std::string>, kMaxWordLength - kMinWordLength + 1> fresh;
    for (const std::string& word : words) {
        const auto length = static_cast<int>(word.size());
        if (length < kMinWordLength || length > kMaxWordLength) continue;
        const std::size_t i = static_cast<std::size_t>(length - kMinWordLength);
        if (!m_words[i].contains(word)) fresh[i].insert(word);
    }
    for (std::size_t i = 0; i < fresh.size(); ++i) {
        const std::size_t room = m_wordsPerLength - std::min(m_wordsPerLength, m_words[i].size());
        if (fresh[i].size() <= room) {
            m_words[i].merge(fresh[i]);
            continue;
        }
        std::vector<std::pair<std::uint32_t, std::string>> ranked;
        ranked.reserve(fresh[i].size());
        for (const std::string& word : fresh[i])
            ranked.emplace_back(wordHash(word), word);
        std::partial_sort(ranked.begin(), ranked.begin() + static_cast<std::ptrdiff_t>(room),
                          ranked.end());
        for (std::size_t k = 0; k < room; ++k)
            m_words[i].insert(std::move(ranked[k].second));
    }
    return size() - before;
}

WordLists WordSelection::lists() const {
    WordLists lists;
    for (std::size_t i = 0; i < m_words.size(); ++i)
        lists[i].assign(m_words[i].begin(), m_words[i].end());
    return lists;
}

std::size_t WordSelection::size() const {
    std::size_t total = 0;
    for (const auto& words : m_words)
        total += words.size();
    return total;
}

bool WordSelection::contains(const std::string& word) const {
    const std::size_t length = word.size();
    return length >= kMinWordLength && length <= kMaxWordLength &&
           m_words[length - kMinWordLength].contains(word);
}

} // namespace griglione
