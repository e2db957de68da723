// The dictionary file byte for byte: the notice, the index fields, the blocks from 440.
#include "dictionary/dictionary_format.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

TEST(DictionaryFormat, WritesTheNoticeTheIndexAndTheBlocksFrom440Exactly) {
    WordLists words;
    words[0] = {"ABC", "ACE"};
    words[1] = {"ABBA"};
    const std::string z(1, '\0');
    EXPECT_EQ(buildDictionaryFile("Prova", words),
              "Prova" + std::string(194, ' ') + z + "     440     446     446     450" +
                  std::string(207, '\0') + "ABCACEABBA" + std::string(6, '\0'));
    // Empty lengths keep zero entries; a word of the wrong length is skipped.
    words = {};
    words[2] = {"CASAL", "WORDS", "XY"};
    words[7] = {"ABCDEFGHIJ"};
    EXPECT_EQ(buildDictionaryFile(std::string(250, 'x'), words),
              std::string(199, 'x') + z + std::string(32, '\0') + "     440     450" +
                  std::string(64, '\0') + "     450     460" + std::string(111, '\0') +
                  "CASALWORDSABCDEFGHIJ");
    EXPECT_EQ(buildDictionaryFile("", {}), std::string(199, ' ') + std::string(256, '\0'));
    // Positions past the index limit: no file.
    words[7].assign(1'000'000, std::string(10, 'A'));
    EXPECT_TRUE(buildDictionaryFile("", words).empty());
    words[7].resize(999'000);
    EXPECT_FALSE(buildDictionaryFile("", words).empty());
}

TEST(DictionaryFormat, ReadsFieldsOfBlanksDigitsAndZeroBytesAndDamagedIndexesGiveNoWords) {
    const std::pair<std::string, std::int64_t> cases[] = {
        {"     440", 440},         {"440     ", 440}, {"  12ab34", 12},      {"xx", 0},
        {"        ", 0},           {"", 0},           {" 9999999", 9999999}, {"99999999", 99999999},
        {std::string(8, '\0'), 0},
    };
    for (const auto& [field, value] : cases)
        EXPECT_EQ(parseIndexField(field), value) << field;
    // Damaged indexes give no words.
    std::string head(440, '\0');
    head.replace(200, 16, "     500     440"); // end before start
    head.replace(216, 16, "garbage!garbage!");
    const DictionaryIndex index = parseIndex(head);
    EXPECT_EQ(index.contaGruppo(3), 0);
    EXPECT_EQ(index.contaGruppo(4), 0);
    EXPECT_EQ(parseIndex("short").contaGruppo(3), 0);
}

} // namespace
} // namespace griglione
