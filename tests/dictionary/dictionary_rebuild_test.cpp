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
    const std::string bytes = folder.read("SLESSICO.1");
    const DictionaryIndex index = parseIndex(bytes);
    DictionaryBlocks blocks(folder.path() / "SLESSICO.1");
    WordLists lists;
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        const std::string block = blocks.block(index, length);
        for (std::size_t at = 0; at < block.size(); at += length)
            lists[length - kMinWordLength].push_back(block.substr(at, length));
    }
    return lists;
}

TEST(DictionaryRebuild, AnUnchangedRebuildGivesTheSameBytesFromPosition200) {
    TempFolder folder;
    WordLists words;
    words[0] = {"ABC", "ACE", "ZIO"};
    words[2] = {"CASTA", "MARCO"}; // length 4 has no words
    words[7] = {"ABBANDONAI"};
    const std::string old = buildDictionaryFile("a different notice", words);
    folder.write("SLESSICO.1", old);
    ASSERT_TRUE(rebuildDictionary(folder.path(), 1, "Il Griglione", loadLists(folder)));
    const std::string rebuilt = folder.read("SLESSICO.1");
    EXPECT_EQ(rebuilt.substr(199), old.substr(199));
    EXPECT_EQ(rebuilt.substr(0, 12), "Il Griglione");
    EXPECT_FALSE(folder.exists("SLESSICO.new"));
}

TEST(DictionaryRebuild, LaysBlocksOutFrom440InLengthOrderAndDropsWhatTheListsLack) {
    // Blocks out of order, length 3 unsorted, a 6-letter block cut short by the end of the file,
    // a 5-letter block the player emptied, and a 12-letter word the editor never loads.
    std::string old = noticeText("old") + '\0';
    old += field("500") + field("506");    // 3
    old += field("440") + field("444");    // 4
    old += field("444") + field("449");    // 5
    old += field("506") + field("518");    // 6: two words claimed, one and a half there
    old += std::string(5 * 16, '\0');      // 7 to 11
    old += field("449") + field("461");    // 12
    old += std::string(3 * 16 + 31, '\0'); // 13 to 15, then the gap
    old += "ABBA"
           "CASTA"
           "INCOMPRESSO"; // 440: lengths 4, 5 and 12 (cut to fit)
    old.resize(499, '\0');
    old += "ACEABC"
           "CASTELFRA";
    TempFolder folder;
    folder.write("SLESSICO.1", old);
    WordLists lists = loadLists(folder);
    EXPECT_EQ(lists[0], (std::vector<std::string>{"ABC", "ACE"}));
    EXPECT_EQ(lists[3], (std::vector<std::string>{"CASTEL"}));
    lists[2].clear();
    ASSERT_TRUE(rebuildDictionary(folder.path(), 1, "n", lists));

    std::string expected = noticeText("n") + '\0';
    expected += field("440") + field("446") + field("446") + field("450");
    expected += std::string(16, '\0') + field("450") + field("456");
    expected += std::string(9 * 16 + 31, '\0');
    expected += "ABCACE"
                "ABBA"
                "CASTEL";
    EXPECT_EQ(folder.read("SLESSICO.1"), expected);
}

TEST(DictionaryRebuild, AFailedWriteLeavesTheOldDictionaryUntouched) {
    const std::string old = buildDictionaryFile("old", {});
    struct Case {
        const char* what;
        const char* kept; // the file that must not change
        std::function<void(const TempFolder&)> setUp;
        WordLists words;
    };
    const Case cases[] = {
        {"SLESSICO.new is a folder with files",
         "SLESSICO.1",
         [](const TempFolder& f) {
             std::filesystem::create_directory(f.path() / "SLESSICO.new");
             f.write("SLESSICO.new/x", "x");
         },
         {}},
        {"the dictionary is a folder with files",
         "SLESSICO.1/x",
         [](const TempFolder& f) {
             std::filesystem::remove(f.path() / "SLESSICO.1");
             std::filesystem::create_directory(f.path() / "SLESSICO.1");
             f.write("SLESSICO.1/x", "x");
         },
         {}},
    };
    for (const Case& c : cases) {
        TempFolder folder;
        folder.write("SLESSICO.1", old);
        c.setUp(folder);
        const std::string kept = c.kept;
        const std::string before = folder.read(kept);
        EXPECT_FALSE(rebuildDictionary(folder.path(), 1, "new", c.words)) << c.what;
        EXPECT_EQ(folder.read(kept), before) << c.what;
        EXPECT_TRUE(!folder.exists("SLESSICO.new") ||
                    std::filesystem::is_directory(folder.path() / "SLESSICO.new"))
            << c.what;
    }
    EXPECT_FALSE(rebuildDictionary("/nonexistent-griglione-folder", 1, "new", {}));
}

} // namespace
} // namespace griglione
