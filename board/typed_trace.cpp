#include "board/typed_trace.h"

#include <unordered_set>

namespace griglione {
namespace {

struct Neighbours {
    std::array<std::int8_t, 8> cells{};
    int count = 0;
};

const std::array<Neighbours, kCells>& neighbours() {
    static const auto table = [] {
        std::array<Neighbours, kCells> t{};
        for (int p = 0; p < kCells; ++p)
            for (int n = 0; n < kCells; ++n)
                if (n != p && celleAdiacenti(p, n))
                    t[p].cells[t[p].count++] = static_cast<std::int8_t>(n);
        return t;
    }();
    return table;
}

// Paths with the same dice and the same last die are one for every letter still to come.
std::uint64_t stateKey(std::uint32_t used, int last) {
    return (static_cast<std::uint64_t>(used) << 5) | static_cast<std::uint64_t>(last);
}

// A search afresh gives up after this many steps, so that a key never hangs the window; only a
// board built to defeat it could need more.
constexpr std::size_t kSearchSteps = std::size_t{1} << 20;

} // namespace

TypedTrace::TypedTrace(std::size_t limit) : m_limit(limit < 1 ? 1 : limit) {}

bool TypedTrace::type(const CellLetters& board, char letter) {
    if (letter < 'A' || letter > 'Z') return false;
    Level level;
    if (m_levels.empty()) {
        for (int c = 0; c < kCells; ++c) {
            if (board[c] != letter) continue;
            if (level.traces.size() == m_limit) {
                level.partial = true;
                break;
            }
            Trace t;
            t.cells[0] = static_cast<std::int8_t>(c);
            t.size = 1;
            t.used = 1u << c;
            level.traces.push_back(t);
        }
    } else {
        level.partial = m_levels.back().partial;
        level.traces = extend(m_levels.back().traces, board, letter, level.partial);
        if (level.traces.empty() && level.partial) {
            level.partial = false;
            level.traces = search(board, m_letters + letter, level.partial);
        }
    }
    if (level.traces.empty()) return false;
    m_letters += letter;
    m_levels.push_back(std::move(level));
    return true;
}

std::vector<TypedTrace::Trace> TypedTrace::extend(const std::vector<Trace>& from,
                                                  const CellLetters& board, char letter,
                                                  bool& partial) const {
    // The paths that continue the shown one come first, so the path on the board stays put
    // while it can.
    std::vector<Trace> next;
    std::unordered_set<std::uint64_t> seen;
    seen.reserve(m_limit * 2);
    for (const Trace& t : from) {
        const Neighbours& around = neighbours()[t.cells[t.size - 1]];
        for (int i = 0; i < around.count; ++i) {
            const int n = around.cells[i];
            const std::uint32_t bit = 1u << n;
            if (board[n] != letter || (t.used & bit)) continue;
            if (!seen.insert(stateKey(t.used | bit, n)).second) continue;
            if (next.size() == m_limit) {
                partial = true;
                return next;
            }
            Trace longer = t;
            longer.cells[longer.size++] = static_cast<std::int8_t>(n);
            longer.used |= bit;
            next.push_back(longer);
        }
    }
    return next;
}

std::vector<TypedTrace::Trace> TypedTrace::search(const CellLetters& board, const std::string& word,
                                                  bool& partial) const {
    std::vector<Trace> found;
    std::unordered_set<std::uint64_t> seen;
    // Dice and last die from which the rest of the word cannot be spelt.
    std::unordered_set<std::uint64_t> dead;
    std::size_t steps = 0;
    const auto stop = [&] { return found.size() == m_limit || steps > kSearchSteps; };
    const auto walk = [&](auto&& self, Trace& t) -> bool {
        const int last = t.cells[t.size - 1];
        if (static_cast<std::size_t>(t.size) == word.size()) {
            if (seen.insert(stateKey(t.used, last)).second) found.push_back(t);
            return true;
        }
        ++steps;
        const std::uint64_t key = stateKey(t.used, last);
        if (dead.count(key)) return false;
        bool any = false;
        const Neighbours& around = neighbours()[last];
        for (int i = 0; i < around.count && !stop(); ++i) {
            const int n = around.cells[i];
            const std::uint32_t bit = 1u << n;
            if (board[n] != word[t.size] || (t.used & bit)) continue;
            t.cells[t.size++] = static_cast<std::int8_t>(n);
            t.used |= bit;
            any = self(self, t) || any;
            --t.size;
            t.used &= ~bit;
        }
        if (!any && !stop()) dead.insert(key);
        return any;
    };
    for (int c = 0; c < kCells && !stop(); ++c) {
        if (board[c] != word[0]) continue;
        Trace t;
        t.cells[0] = static_cast<std::int8_t>(c);
        t.size = 1;
        t.used = 1u << c;
        walk(walk, t);
    }
    partial = stop();
    return found;
}

bool TypedTrace::back() {
    if (m_levels.empty()) return false;
    m_levels.pop_back();
    m_letters.pop_back();
    return true;
}

void TypedTrace::follow(const CellLetters& board, const std::vector<int>& path) {
    clear();
    Trace t;
    for (const int c : path) {
        if (c < 0 || c >= kCells) break;
        t.cells[t.size++] = static_cast<std::int8_t>(c);
        t.used |= 1u << c;
        m_letters += board[c];
        m_levels.push_back(Level{{t}, false});
    }
}

void TypedTrace::clear() {
    m_letters.clear();
    m_levels.clear();
}

std::vector<int> TypedTrace::cellsOf(const Trace& trace) {
    return {trace.cells.begin(), trace.cells.begin() + trace.size};
}

std::vector<std::vector<int>> TypedTrace::paths() const {
    std::vector<std::vector<int>> all;
    if (m_levels.empty()) return all;
    for (const Trace& t : m_levels.back().traces)
        all.push_back(cellsOf(t));
    return all;
}

std::vector<int> TypedTrace::shown() const {
    if (m_levels.empty()) return {};
    return cellsOf(m_levels.back().traces.front());
}

} // namespace griglione
