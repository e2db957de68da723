// The rebuild of the main dictionary, byte for byte: blocks read back for the editor's lists,
// the new file laid out from position 440 whatever the old one looked like, and failures that
// leave the old file as it was.
#include "dictionary/dictionary_rebuild.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

using testing::TempFolder;

std::string field(const std::string& digits) {
    return std::string(8 - digits.size(), ' ') + digits;
}

// Every length's words as the editor loads them into its lists.
WordLists loadLists(const TempFolder& folder) {
    const DictionaryIndex index = parseIndex(folder.read("SLESSICO.1"));
    DictionaryBlocks blocks(folder.path() / "SLESSICO.1");
    WordLists lists;
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        const std::string block = blocks.block(index, length);
        for (std::size_t at = 0; at < block.size(); at += length)
            lists[length - kMinWordLength].push_back(block.substr(at, length));
    }
    return lists;
}

TEST(DictionaryRebuild, LaysBlocksOutFrom440InLengthOrderAndDropsWhatTheListsLack) {
    // Blocks out of order, length 3 unsorted, a 6-letter block cut short by the end of the file,
    // a 5-letter block the player emptied, and a 12-letter word the editor never loads.
    std::string old = noticeText("old") + '\0';
    // Lengths 3 and 4, then 5 and 6: two 6-letter words claimed, one and a half there.
    old += field("500") + field("506") + field("440") + field("444");
    old += field("444") + field("449") + field("506") + field("518");
    old += std::string(5 * 16, '\0');      // 7 to 11
    old += field("449") + field("461");    // 12
    old += std::string(3 * 16 + 31, '\0'); // 13 to 15, then the gap
    old += "ABBACASTAINCOMPRESSO";         // 440: lengths 4, 5 and 12 (cut to fit)
    old.resize(499, '\0');
    old += "ACEABCCASTELFRA";
    TempFolder folder;
    folder.write("SLESSICO.1", old);
    WordLists lists = loadLists(folder);
    EXPECT_EQ(lists[3], (std::vector<std::string>{"CASTEL"})); // whole records only
    lists[2].clear();
    ASSERT_TRUE(rebuildDictionary(folder.path(), 1, "n", lists));

    EXPECT_EQ(folder.read("SLESSICO.1"), noticeText("n") + '\0' + field("440") + field("446") +
                                             field("446") + field("450") + std::string(16, '\0') +
                                             field("450") + field("456") +
                                             std::string(9 * 16 + 31, '\0') + "ABCACEABBACASTEL");
    EXPECT_FALSE(folder.exists("SLESSICO.new"));
}

TEST(DictionaryRebuild, AFailedWriteLeavesTheOldDictionaryUntouched) {
    const std::string old = buildDictionaryFile("old", {});
    // Something that cannot be removed in the way of the new file, then of the old one.
    for (const char* folderName : {"SLESSICO.new", "SLESSICO.1"}) {
        TempFolder folder;
        folder.write("SLESSICO.1", old);
        std::filesystem::remove(folder.path() / folderName);
        std::filesystem::create_directory(folder.path() / folderName);
        folder.write(std::string(folderName) + "/x", "x");
        const std::string kept = folderName[9] == '1' ? "SLESSICO.1/x" : "SLESSICO.1";
        EXPECT_FALSE(rebuildDictionary(folder.path(), 1, "new", {})) << folderName;
        EXPECT_EQ(folder.read(kept), folderName[9] == '1' ? "x" : old) << folderName;
        EXPECT_TRUE(!folder.exists("SLESSICO.new") ||
                    std::filesystem::is_directory(folder.path() / "SLESSICO.new"))
            << folderName;
    }
    EXPECT_FALSE(rebuildDictionary("/nonexistent-griglione-folder", 1, "new", {}));
}

} // namespace
} // namespace griglione
