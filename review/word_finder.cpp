#include "review/word_finder.h"

#include "board/board_layout.h"
#include "dictionary/dictionary_format.h"

#include <unordered_map>

namespace griglione {
namespace {

struct Neighbours {
    std::array<std::array<int, 8>, kCells> cells{};
    std::array<int, kCells> count{};
    Neighbours() {
        for (int p = 0; p < kCells; ++p)
            for (int n = 0; n < kCells; ++n)
                if (n != p && celleAdiacenti(p, n)) cells[p][count[p]++] = n;
    }
};
const Neighbours kNeighbours;

bool isLetter(char c) {
    return c >= 'A' && c <= 'Z';
}

struct Range {
    std::size_t lo = 0, hi = 0;
};

class Search {
public:
    Search(const WordList& words, const BoardLetters& letters)
        : m_blocks(words.blocks), m_letters(letters),
          m_ranges((kMaxWordLength + 1) * words.blocks.size()) {
        for (std::size_t b = 0; b < m_blocks.size(); ++b)
            m_ranges[b] = {0, m_blocks[b].count()};
    }

    std::vector<FoundWord> run() {
        for (int n = 0; n < kCells; ++n)
            if (isLetter(m_letters[n])) visit(n, 0);
        return std::move(m_found);
    }

private:
    // The records of `range`, which share their first `depth` letters, whose next one is `c`.
    static Range narrow(const WordBlock& block, Range range, int depth, char c) {
        const auto at = [&](std::size_t i) {
            return static_cast<unsigned char>(block.records[i * block.length + depth]);
        };
        const auto key = static_cast<unsigned char>(c);
        const auto partition = [](std::size_t lo, std::size_t hi, auto before) {
            while (lo < hi) {
                const std::size_t mid = lo + (hi - lo) / 2;
                if (before(mid))
                    lo = mid + 1;
                else
                    hi = mid;
            }
            return lo;
        };
        const std::size_t lo =
            partition(range.lo, range.hi, [&](std::size_t i) { return at(i) < key; });
        return {lo, partition(lo, range.hi, [&](std::size_t i) { return at(i) <= key; })};
    }

    void visit(int cell, int depth) {
        const std::size_t blocks = m_blocks.size();
        const Range* in = &m_ranges[depth * blocks];
        Range* out = &m_ranges[(depth + 1) * blocks];
        const int length = depth + 1;
        bool prefix = false;
        bool word = false;
        for (std::size_t b = 0; b < blocks; ++b) {
            out[b] = {};
            if (m_blocks[b].length < length || in[b].lo >= in[b].hi) continue;
            out[b] = narrow(m_blocks[b], in[b], depth, m_letters[cell]);
            if (out[b].lo < out[b].hi) {
                prefix = true;
                word = word || m_blocks[b].length == length;
            }
        }
        if (!prefix) return;
        m_path[depth] = cell;
        m_used |= 1u << cell;
        if (word && length >= kMinWordLength) record(length);
        if (length < kMaxWordLength)
            for (int i = 0; i < kNeighbours.count[cell]; ++i) {
                const int next = kNeighbours.cells[cell][i];
                if (!(m_used & (1u << next)) && isLetter(m_letters[next])) visit(next, depth + 1);
            }
        m_used &= ~(1u << cell);
    }

    void record(int length) {
        std::string word(length, ' ');
        for (int i = 0; i < length; ++i)
            word[i] = m_letters[m_path[i]];
        auto [it, added] = m_index.try_emplace(word, m_found.size());
        if (added)
            m_found.push_back({word, std::vector<int>(m_path.begin(), m_path.begin() + length), 0});
        for (int i = 0; i < length; ++i)
            m_found[it->second].dice |= 1u << m_path[i];
    }

    const std::vector<WordBlock>& m_blocks;
    const BoardLetters& m_letters;
    std::vector<Range> m_ranges; // per depth, one range per block
    std::array<int, kMaxWordLength> m_path{};
    std::uint32_t m_used = 0;
    std::unordered_map<std::string, std::size_t> m_index;
    std::vector<FoundWord> m_found;
};

bool trace(const BoardLetters& letters, std::string_view word, int through, std::uint32_t used,
           std::vector<int>& path) {
    if (path.size() == word.size()) return through < 0 || (used & (1u << through));
    const std::size_t depth = path.size();
    for (int n = 0; n < kCells; ++n) {
        if ((used & (1u << n)) || letters[n] != word[depth]) continue;
        if (depth > 0 && !celleAdiacenti(path.back(), n)) continue;
        path.push_back(n);
        if (trace(letters, word, through, used | (1u << n), path)) return true;
        path.pop_back();
    }
    return false;
}

} // namespace

BoardLetters boardLetters(const GameState& state) {
    BoardLetters letters{};
    for (int n = 0; n < kCells; ++n)
        letters[n] = letteraCella(state, n);
    return letters;
}

std::vector<FoundWord> findWords(const WordList& words, const BoardLetters& letters) {
    return Search(words, letters).run();
}

std::vector<int> tracePath(const BoardLetters& letters, std::string_view word, int through) {
    std::vector<int> path;
    if (word.empty() || !trace(letters, word, through, 0, path)) path.clear();
    return path;
}

} // namespace griglione
