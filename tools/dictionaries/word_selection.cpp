#include "tools/dictionaries/word_selection.h"

#include <algorithm>
#include <tuple>
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

void WordSelection::setUse(std::map<std::string, long> use) {
    m_use = std::move(use);
}

long WordSelection::use(const std::string& word) const {
    const auto found = m_use.find(word);
    return found == m_use.end() ? 0 : found->second;
}

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
        for (const std::string& word : fresh[i])
            m_cut.erase(word);
        const std::size_t room = m_wordsPerLength - std::min(m_wordsPerLength, m_words[i].size());
        if (fresh[i].size() <= room) {
            m_words[i].merge(fresh[i]);
            continue;
        }
        // Most used first; among words used as much, the smallest wordHash: a spread over the
        // alphabet that stays the same from run to run.
        std::vector<std::tuple<long, std::uint32_t, std::string>> ranked;
        ranked.reserve(fresh[i].size());
        for (const std::string& word : fresh[i])
            ranked.emplace_back(-use(word), wordHash(word), word);
        std::sort(ranked.begin(), ranked.end());
        for (std::size_t k = 0; k < ranked.size(); ++k) {
            auto& [negativeUse, hash, word] = ranked[k];
            if (k < room)
                m_words[i].insert(std::move(word));
            else
                m_cut[word] = {k + 1, ranked.size(), -negativeUse};
        }
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
