// The review's three lists: who found what, the order, the points, and the die filter.
#include "review/board_review.h"

#include <gtest/gtest.h>

using namespace griglione;

namespace {

std::vector<std::string> words(const std::vector<const ReviewEntry*>& entries) {
    std::vector<std::string> out;
    for (const ReviewEntry* e : entries)
        out.push_back(e->word);
    return out;
}

using Words = std::vector<std::string>;

} // namespace

TEST(BoardReview, SplitsSortsCountsAndFiltersTheThreeLists) {
    BoardLetters letters{};
    std::string("CASE\0ROTTA", 10).copy(letters.data(), 10);
    const auto found = [](const char* word, std::vector<int> path) {
        FoundWord f{word, path, 0};
        for (int n : path)
            f.dice |= 1u << n;
        return f;
    };
    // "case" and "orca" scored for both players; "tor" the board spells but the dictionary did
    // not give it (a vocabulary since changed); "eco" the board does not spell.
    const BoardReview review = reviewBoard(
        {found("ROTTA", {5, 6, 7, 8, 9}), found("CASE", {0, 1, 2, 3}), found("ASE", {1, 2, 3}),
         found("ARCO", {1, 5, 0, 6}), found("ORCA", {6, 5, 0, 1}), found("OCA", {6, 0, 1})},
        letters, {"case", "eco", "tor", "orca"}, {"orca", "case"});
    EXPECT_EQ(words(throughCell(review.player, -1)), (Words{"case", "orca", "eco", "tor"}));
    EXPECT_EQ(words(throughCell(review.cpu, -1)), (Words{"case", "orca"}));
    EXPECT_EQ(words(throughCell(review.missed, -1)), (Words{"rotta", "arco", "ase", "oca"}));
    EXPECT_EQ(std::tuple(review.player.points, review.missed.points, review.words, review.points),
              std::tuple(1000, 1180, 8, 2180));
    EXPECT_EQ(review.player.entries[3].path, (std::vector<int>{7, 6, 5}));

    const std::tuple<int, Words, Words> filters[] = {{0, {"case", "orca"}, {"arco", "oca"}},
                                                     {7, {"tor"}, {"rotta"}},
                                                     {2, {"case"}, {"ase"}},
                                                     {4, {}, {}}};
    for (const auto& [cell, player, missed] : filters) {
        EXPECT_EQ(words(throughCell(review.player, cell)), player) << cell;
        EXPECT_EQ(words(throughCell(review.missed, cell)), missed) << cell;
    }
}
