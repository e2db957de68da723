#include "dictionary/dictionary.h"
#include "review/board_review.h"
#include "review/word_finder.h"
#include "review/word_list.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace griglione {
namespace {

// The review's three lists: who found what, the order, the points, and the die filter.

std::vector<std::string> words(const std::vector<const ReviewEntry*>& entries) {
    std::vector<std::string> out;
    for (const ReviewEntry* e : entries)
        out.push_back(e->word);
    return out;
}

using Words = std::vector<std::string>;

TEST(BoardReview, SplitsSortsCountsAndFiltersTheThreeLists) {
    BoardLetters letters{};
    std::string("CASE\0ROTTA", 10).copy(letters.data(), 10);
    const auto found = [](const char* word, std::vector<int> path) {
        FoundWord f{word, path, 0};
        for (int n : path)
            f.dice |= 1u << n;
        return f;
    };
    // "case" and "orca" scored for both players, "ase" for the computer only; "tor" the board
    // spells but the dictionary did not give it (a vocabulary since changed); "eco" the board does
    // not spell.
    const BoardReview review = reviewBoard(
        {found("ROTTA", {5, 6, 7, 8, 9}), found("CASE", {0, 1, 2, 3}), found("ASE", {1, 2, 3}),
         found("ARCO", {1, 5, 0, 6}), found("ORCA", {6, 5, 0, 1}), found("OCA", {6, 0, 1})},
        letters, {"case", "eco", "tor", "orca"}, {"orca", "ase", "case"});
    EXPECT_EQ(words(throughCell(review.player, -1)), (Words{"case", "orca", "eco", "tor"}));
    EXPECT_EQ(words(throughCell(review.cpu, -1)), (Words{"case", "orca", "ase"}));
    EXPECT_EQ(words(throughCell(review.missed, -1)), (Words{"rotta", "arco", "oca"}));
    EXPECT_EQ(std::tuple(review.player.points, review.missed.points, review.words, review.points),
              std::tuple(1000, 1000, 8, 2180));
    EXPECT_EQ(review.player.entries[3].path, (std::vector<int>{7, 6, 5}));

    const std::tuple<int, Words, Words> filters[] = {
        {0, {"case", "orca"}, {"arco", "oca"}}, {7, {"tor"}, {"rotta"}}, {2, {"case"}, {}}};
    for (const auto& [cell, player, missed] : filters) {
        EXPECT_EQ(words(throughCell(review.player, cell)), player) << cell;
        EXPECT_EQ(words(throughCell(review.missed, cell)), missed) << cell;
    }
}

// The finder against the dictionary's own lookup and a word-by-word search of the board, on
// random boards of few letters, where words of every length abound.

using namespace griglione::testing;

TEST(WordFinder, FindsExactlyTheWordsThatHaveAPathAndAreKnown) {
    std::mt19937 random(7);
    const auto pick = [&](int n) { return static_cast<int>(random() % n); };
    for (int round = 0; round < 4; ++round) {
        BoardLetters letters{};
        std::generate(letters.begin(), letters.end(), [&] { return "AEIST"[pick(5)]; });
        letters[pick(kCells)] = '\0'; // a blank die spells nothing
        // Words walked on the board, and as many made up, of every length; some go to the
        // personal vocabulary, in lower case as a player may write them there.
        std::set<std::string> candidates;
        for (int i = 0; i < 400; ++i) {
            std::string word;
            for (int cell = pick(kCells), n = 3 + pick(8); n > 0; --n) {
                word += i % 2 ? "AEIST"[pick(5)] : letters[cell];
                cell = std::clamp(cell + std::array{-6, -5, -4, -1, 1, 4, 5, 6}[pick(8)], 0, 24);
            }
            if (word.find('\0') == std::string::npos) candidates.insert(word);
        }
        WordLists blocks;
        std::string personal;
        for (const std::string& w : candidates) {
            if (pick(5) == 0)
                personal += w + "\r\n";
            else
                blocks[w.size() - kMinWordLength].push_back(w);
        }
        std::transform(personal.begin(), personal.end(), personal.begin(), ::tolower);
        TempFolder folder;
        folder.write("SLESSICO.1", buildDictionaryFile("test", blocks));
        folder.write("ZarmPriv.1", personal);
        std::set<std::string> found;
        for (const FoundWord& f : findWords(readWordList(folder.path(), 1), letters)) {
            EXPECT_TRUE(found.insert(f.word).second) << f.word << " twice";
            EXPECT_TRUE(candidates.contains(f.word)) << f.word;
            ASSERT_EQ(f.path.size(), f.word.size());
            for (std::size_t i = 0; i < f.path.size(); ++i) {
                EXPECT_EQ(letters[f.path[i]], f.word[i]);
                EXPECT_EQ(std::count(f.path.begin(), f.path.end(), f.path[i]), 1);
                EXPECT_TRUE(i == 0 || celleAdiacenti(f.path[i - 1], f.path[i])) << f.word;
            }
            for (int n = 0; n < kCells; ++n)
                EXPECT_EQ(f.dice >> n & 1u, tracePath(letters, f.word, n).empty() ? 0u : 1u)
                    << f.word << " through " << n;
        }
        for (const std::string& w : candidates)
            EXPECT_EQ(found.count(w), tracePath(letters, w).empty() ? 0u : 1u) << w;
    }
}

TEST(WordList, KeepsTheWholeRecordsOfACutOrMissingFile) {
    const std::string file =
        buildDictionaryFile("test", WordLists{{{"ASA", "ESE"}, {}, {"SESTA", "TESTA"}}});
    const std::size_t end = file.find("TESTA") + 5;
    const std::pair<std::string, std::size_t> cases[] = {
        {file.substr(0, end), 4}, {file.substr(0, end - 1), 3}, {file.substr(0, 300), 0}};
    for (const auto& [bytes, expected] : cases) {
        std::size_t words = 0;
        for (const WordBlock& block : wordListFrom(bytes, {}).blocks)
            words += block.count();
        EXPECT_EQ(words, expected) << bytes.size();
    }
    TempFolder folder;
    std::filesystem::create_directory(folder.path() / "SLESSICO.1");
    EXPECT_TRUE(readWordList(folder.path(), 1).blocks.empty());
}

} // namespace
} // namespace griglione
