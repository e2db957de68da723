// The dictionaries and the word rules shipped in data/: readable by the game, consistent, in
// their language, within the format's and the editor's limits, and exactly what the game's own
// writer makes of their words.
#include "core/atomic_file.h"
#include "dictionary/dictionary_format.h"
#include "tools/dictionaries/word_filter.h"
#include "tools/dictionaries/word_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace griglione {
namespace {

const std::filesystem::path dataDir = GRIGLIONE_DATA_DIR;

struct Shipped {
    int number;
    Language language;
    std::size_t minimumWords;
};

class ShippedDictionary : public testing::TestWithParam<Shipped> {
protected:
    void SetUp() override {
        const auto file = readWholeFile(dataDir / dictionaryFileName(GetParam().number));
        ASSERT_TRUE(file) << "missing " << dictionaryFileName(GetParam().number);
        m_file = *file;
        m_index = parseIndex(m_file);
    }
    std::string_view block(int length) const {
        return std::string_view(m_file).substr(
            static_cast<std::size_t>(m_index.inizioGruppo(length) - 1),
            static_cast<std::size_t>(m_index.contaGruppo(length) * length));
    }

    std::string m_file;
    DictionaryIndex m_index;
};

TEST_P(ShippedDictionary, IndexDescribesBlocksThatFollowEachOtherFrom440) {
    ASSERT_GE(m_file.size(), kMinimumFileSize);
    ASSERT_LE(m_file.size(), static_cast<std::size_t>(kLargestPosition));
    EXPECT_EQ(m_file[199], '\0');
    EXPECT_EQ(m_file.substr(408, 31), std::string(31, '\0'));
    std::int64_t next = kFirstBlockPosition;
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        SCOPED_TRACE(length);
        ASSERT_GT(m_index.contaGruppo(length), 0);
        EXPECT_EQ(m_index.inizioGruppo(length), next);
        const std::string entry = m_file.substr(200 + 16 * (length - 3), 16);
        const std::int64_t end = next + std::int64_t{length} * m_index.contaGruppo(length);
        EXPECT_EQ(parseIndexField(entry.substr(8)), end); // no bytes left over
        EXPECT_EQ(entry[0], ' ');                         // right-aligned with blanks
        next = end;
    }
    for (int length = kMaxWordLength + 1; length <= kMaxIndexedLength; ++length)
        EXPECT_EQ(m_file.substr(200 + 16 * (length - 3), 16), std::string(16, '\0')) << length;
    EXPECT_EQ(m_file.size(), std::max<std::size_t>(kMinimumFileSize, next - 1));
}

TEST_P(ShippedDictionary, BlocksAreSortedUniqueWordsOfTheLanguage) {
    const std::string_view alphabet = alphabetOf(GetParam().language);
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        SCOPED_TRACE(length);
        const std::string_view words = block(length);
        EXPECT_LE(static_cast<std::size_t>(m_index.contaGruppo(length)), kEditorWordsPerLength);
        EXPECT_EQ(words.find_first_not_of(alphabet), std::string_view::npos);
        for (std::size_t at = length; at < words.size(); at += length)
            ASSERT_LT(words.substr(at - length, length), words.substr(at, length))
                << "at byte " << at;
        if (GetParam().language != Language::Latin) continue;
        for (std::size_t at = 0; at < words.size(); at += length)
            ASSERT_TRUE(schoolLatinSpelling(words.substr(at, length))) << words.substr(at, length);
    }
}

TEST_P(ShippedDictionary, IsExactlyWhatTheWriterMakesOfItsWords) {
    WordLists lists;
    std::size_t total = 0;
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
        const std::string_view words = block(length);
        for (std::size_t at = 0; at < words.size(); at += length)
            lists[length - kMinWordLength].emplace_back(words.substr(at, length));
        total += lists[length - kMinWordLength].size();
    }
    const std::string notice = m_file.substr(0, kNoticeLength);
    EXPECT_TRUE(buildDictionaryFile(notice, lists) == m_file);
    EXPECT_GE(total, GetParam().minimumWords);
    // The notice is plain ASCII and tells the number of words it describes.
    EXPECT_TRUE(
        std::all_of(notice.begin(), notice.end(), [](char c) { return c >= ' ' && c <= '~'; }));
    EXPECT_NE(notice.find(' ' + std::to_string(total) + " parole"), std::string::npos) << notice;
}

INSTANTIATE_TEST_SUITE_P(Languages, ShippedDictionary,
                         testing::Values(Shipped{1, Language::Italian, 100'000},
                                         Shipped{2, Language::English, 60'000},
                                         Shipped{3, Language::Latin, 60'000}),
                         [](const auto& info) {
                             return "SLESSICO_" + std::to_string(info.param.number);
                         });

TEST(ShippedDictionary, CommonWordsAreInAndEncliticFormsOut) {
    struct Case {
        int number;
        const char* word;
        bool present;
    };
    const Case cases[] = {
        {1, "CITTA", true},        {1, "PERCHE", true},  {1, "MANGIAVI", true},
        {1, "ANDATI", true},       {1, "TRADUCI", true}, {1, "ROMA", false},
        {1, "MANGIANDOLO", false}, {2, "COLOUR", true},  {2, "COLOR", true},
        {2, "JAZZ", true},         {2, "NASA", false},   {3, "AMAVIT", true},
        {3, "LEGIONEM", true},     {3, "ROSARUM", true}, {3, "DOMINUS", true},
        {3, "ROSAQUE", false},     {3, "AMAUIT", false}, {3, "DOMINVS", false},
    };
    for (const Case& c : cases) {
        const auto file = readWholeFile(dataDir / dictionaryFileName(c.number));
        ASSERT_TRUE(file);
        const DictionaryIndex index = parseIndex(*file);
        const int length = static_cast<int>(std::string_view(c.word).size());
        bool found = false;
        for (std::int32_t k = 0; k < index.contaGruppo(length) && !found; ++k)
            found =
                file->compare(static_cast<std::size_t>(index.inizioGruppo(length) - 1 + k * length),
                              length, c.word) == 0;
        EXPECT_EQ(found, c.present) << c.number << " " << c.word;
    }
}

TEST(ShippedRules, AreWindows1252LinesEndedByCrLf) {
    const auto text = readWholeFile(dataDir / "REGPAROL.TXT");
    ASSERT_TRUE(text);
    ASSERT_FALSE(text->empty());
    EXPECT_EQ(text->substr(text->size() - 2), "\r\n");
    std::size_t lines = 0;
    for (std::size_t i = 0; i < text->size(); ++i) {
        const auto b = static_cast<unsigned char>((*text)[i]);
        if (b == '\n') {
            ASSERT_GT(i, 0u);
            EXPECT_EQ((*text)[i - 1], '\r') << "line " << lines + 1;
            ++lines;
        }
        if (b == '\r') {
            EXPECT_EQ(i + 1 < text->size() ? (*text)[i + 1] : '\0', '\n');
        }
        // Control bytes other than the line end, and the five codes Windows-1252 leaves out.
        EXPECT_FALSE(b < 0x20 && b != '\r' && b != '\n') << "byte " << i;
        EXPECT_FALSE(b == 0x81 || b == 0x8D || b == 0x8F || b == 0x90 || b == 0x9D) << "byte " << i;
        // A UTF-8 lead byte followed by a continuation byte: à written as C3 A0.
        if (b >= 0xC2 && b <= 0xF4 && i + 1 < text->size()) {
            EXPECT_FALSE((static_cast<unsigned char>((*text)[i + 1]) & 0xC0) == 0x80)
                << "UTF-8 at byte " << i;
        }
    }
    EXPECT_GE(lines, 15u);
    EXPECT_LE(lines, 50u);
    // The message window shows about 32 characters a line: longer lines would wrap raggedly.
    for (std::size_t start = 0, end; (end = text->find("\r\n", start)) != std::string::npos;
         start = end + 2)
        EXPECT_LE(end - start, 32u) << text->substr(start, end - start);
    EXPECT_NE(text->find("3"), std::string::npos);
    EXPECT_NE(text->find("10"), std::string::npos);
    EXPECT_NE(text->find("2000"), std::string::npos);
    EXPECT_NE(text->find("gi\xE0 trovata"), std::string::npos); // à as one byte
}

} // namespace
} // namespace griglione
