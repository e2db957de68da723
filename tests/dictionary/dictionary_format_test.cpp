// The dictionary file byte for byte: the notice, the index fields, the blocks from 440.
#include "dictionary/dictionary_format.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

TEST(DictionaryFormat, WritesTheSmallestExampleExactly) {
    WordLists words;
    words[0] = {"ABC", "ACE"};
    words[1] = {"ABBA"};
    const std::string file = buildDictionaryFile("Prova", words);
    ASSERT_EQ(file.size(), 455u);
    EXPECT_EQ(file.substr(0, 199), "Prova" + std::string(194, ' '));
    EXPECT_EQ(file[199], '\0');
    EXPECT_EQ(file.substr(200, 16), "     440     446");
    EXPECT_EQ(file.substr(216, 16), "     446     450");
    EXPECT_EQ(file.substr(232, 439 - 232), std::string(439 - 232, '\0'));
    EXPECT_EQ(file.substr(439, 10), "ABCACEABBA");
    EXPECT_EQ(file.substr(449), std::string(6, '\0'));
}

TEST(DictionaryFormat, EmptyLengthsKeepZeroEntriesAndBlocksFollowEachOther) {
    WordLists words;
    words[2] = {"CASAL", "WORDS", "XY"}; // a word of the wrong length is skipped
    words[7] = {"ABCDEFGHIJ"};
    const std::string file = buildDictionaryFile("", words);
    EXPECT_EQ(file.substr(200, 32), std::string(32, '\0'));
    EXPECT_EQ(file.substr(232, 16), "     440     450");
    EXPECT_EQ(file.substr(312, 16), "     450     460");
    EXPECT_EQ(file.size(), 459u);
    EXPECT_EQ(file.substr(439), "CASALWORDSABCDEFGHIJ");
    EXPECT_EQ(buildDictionaryFile("", {}).size(), 455u);
}

TEST(DictionaryFormat, NoticeIsCutOrPaddedTo199) {
    EXPECT_EQ(noticeText(std::string(250, 'x')), std::string(199, 'x'));
    EXPECT_EQ(noticeText("ab").size(), 199u);
}

TEST(DictionaryFormat, ReadsFieldsOfBlanksDigitsAndZeroBytes) {
    const std::pair<std::string, std::int64_t> cases[] = {
        {"     440", 440},
        {std::string(8, '\0'), 0},
        {"440     ", 440},
        {"  12ab34", 12},
        {"xx", 0},
        {"        ", 0},
        {" 9999999", 9999999},
        {"", 0},
        {"99999999", 99999999},
    };
    for (const auto& [field, value] : cases)
        EXPECT_EQ(parseIndexField(field), value) << field;
}

TEST(DictionaryFormat, DamagedIndexesGiveNoWords) {
    std::string head(440, '\0');
    head.replace(200, 16, "     500     440"); // end before start
    head.replace(216, 16, "garbage!garbage!");
    const DictionaryIndex index = parseIndex(head);
    EXPECT_EQ(index.contaGruppo(3), 0);
    EXPECT_EQ(index.contaGruppo(4), 0);
    EXPECT_EQ(parseIndex("short").contaGruppo(3), 0);
}

TEST(DictionaryFormat, RefusesPositionsPastTheIndexLimit) {
    WordLists words;
    for (int i = 0; i < 1'000'000; ++i) {
        std::string w(10, 'A');
        for (int k = 9, n = i; k >= 0 && n; --k, n /= 26)
            w[k] = static_cast<char>('A' + n % 26);
        words[7].push_back(w);
    }
    EXPECT_TRUE(buildDictionaryFile("", words).empty());
    words[7].resize(999'000);
    EXPECT_FALSE(buildDictionaryFile("", words).empty());
}

} // namespace
} // namespace griglione
