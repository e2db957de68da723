// The review's three lists: who found what, the order, the points, and the die filter.
#include "review/board_review.h"

#include <gtest/gtest.h>

using namespace griglione;

namespace {

std::vector<std::string> words(const ReviewList& list) {
    std::vector<std::string> out;
    for (const ReviewEntry& e : list.entries)
        out.push_back(e.word);
    return out;
}

std::uint32_t cells(std::initializer_list<int> ns) {
    std::uint32_t mask = 0;
    for (int n : ns)
        mask |= 1u << n;
    return mask;
}

} // namespace

TEST(BoardReview, SplitsSortsAndCountsTheThreeLists) {
    BoardLetters letters{};
    std::string("CASE\0ROTTA", 10).copy(letters.data(), 10);
    const std::vector<FoundWord> found = {{"ROTTA", {5, 6, 7, 8, 9}, cells({5, 6, 7, 8, 9})},
                                          {"CASE", {0, 1, 2, 3}, cells({0, 1, 2, 3})},
                                          {"ASE", {1, 2, 3}, cells({1, 2, 3})},
                                          {"ARCO", {1, 5, 0, 6}, cells({0, 1, 5, 6})},
                                          {"ORCA", {6, 5, 0, 1}, cells({0, 1, 5, 6})},
                                          {"OCA", {6, 0, 1}, cells({0, 1, 6})}};
    // "case" and "orca" scored for both players; "tor" the board spells but the dictionary did
    // not give it (a vocabulary since changed); "eco" the board does not spell.
    const BoardReview review =
        reviewBoard(found, letters, {"case", "eco", "tor", "orca"}, {"orca", "case"});
    EXPECT_EQ(words(review.player), (std::vector<std::string>{"case", "orca", "eco", "tor"}));
    EXPECT_EQ(words(review.cpu), (std::vector<std::string>{"case", "orca"}));
    EXPECT_EQ(words(review.missed), (std::vector<std::string>{"rotta", "arco", "ase", "oca"}));
    EXPECT_EQ(review.player.points, 1000);
    EXPECT_EQ(review.missed.points, 1180);
    EXPECT_EQ(review.words, 8);
    EXPECT_EQ(review.points, 2180);
    EXPECT_TRUE(review.player.entries[2].path.empty());
    EXPECT_EQ(review.player.entries[3].path, (std::vector<int>{7, 6, 5}));
    EXPECT_EQ(review.player.entries[3].dice, cells({5, 6, 7}));
}

TEST(BoardReview, FiltersTheWordsThroughADie) {
    ReviewList list;
    list.entries = {{"arco", 320, {}, cells({0, 1, 5, 6})},
                    {"ase", 180, {}, cells({1, 2, 3})},
                    {"rotta", 500, {}, cells({5, 6, 7, 8, 9})}};
    const struct {
        int cell;
        std::vector<std::string> words;
    } cases[] = {{-1, {"arco", "ase", "rotta"}},
                 {1, {"arco", "ase"}},
                 {6, {"arco", "rotta"}},
                 {24, {}},
                 {0, {"arco"}}};
    for (const auto& c : cases) {
        std::vector<std::string> shown;
        for (const ReviewEntry* e : throughCell(list, c.cell))
            shown.push_back(e->word);
        EXPECT_EQ(shown, c.words) << c.cell;
    }
}
