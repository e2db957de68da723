// A word typed on the board: the letters typed so far and the paths of touching dice (each die
// once) that spell them, so that a later letter may continue whichever of them can take it.
#pragma once

#include "core/game_state.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace griglione {

// The letter of every cell, A to Z; any other byte is a die that spells nothing.
using CellLetters = std::array<char, kCells>;

class TypedTrace {
public:
    // The most paths kept after one letter. Paths that use the same dice and end on the same die
    // continue alike, so they count once; on ordinary boards every path fits. When more exist
    // (a board of many equal letters), and none of those kept can take a letter, the word is
    // searched for afresh, so a letter is refused only when no path at all can take it.
    static constexpr std::size_t kPathLimit = 256;

    explicit TypedTrace(std::size_t limit = kPathLimit);

    // Adds `letter` (A–Z) to the word on `board`; false, with nothing changed, when no path of
    // touching dice spells the word with it.
    bool type(const CellLetters& board, char letter);

    // Takes back the last letter, with the paths it had before; false when the word is empty.
    bool back();

    // Goes on from exactly this path, as traced by presses on the dice.
    void follow(const CellLetters& board, const std::vector<int>& path);

    void clear();

    const std::string& letters() const { return m_letters; }

    // The live paths, cell by cell; the one shown on the board comes first. Empty for no word.
    std::vector<std::vector<int>> paths() const;
    std::vector<int> shown() const;

private:
    struct Trace {
        std::array<std::int8_t, kCells> cells{};
        std::int8_t size = 0;
        std::uint32_t used = 0; // bit n set when cell n is on the path
    };
    struct Level {
        std::vector<Trace> traces;
        bool partial = false; // some paths were left out, here or at an earlier letter
    };

    std::vector<Trace> extend(const std::vector<Trace>& from, const CellLetters& board, char letter,
                              bool& partial) const;
    std::vector<Trace> search(const CellLetters& board, const std::string& word,
                              bool& partial) const;
    static std::vector<int> cellsOf(const Trace& trace);

    std::size_t m_limit;
    std::string m_letters;
    std::vector<Level> m_levels; // one per letter typed
};

} // namespace griglione
