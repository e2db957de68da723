// The dictionaries and the word rules shipped in data/: exactly what the game's own writer makes
// of sorted words of the language, within the editor's limits, with the words each rule of
// tools/README.md keeps and without those it refuses.
#include "core/addresses.h"
#include "core/atomic_file.h"
#include "dictionary/dictionary_format.h"
#include "tools/dictionaries/word_filter.h"
#include "tools/dictionaries/word_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace griglione {
namespace {

const std::filesystem::path dataDir = GRIGLIONE_DATA_DIR;

std::string shippedFile(int number) {
    return readWholeFile(dataDir / dictionaryFileName(number)).value_or("");
}

// The words of one length block, as the index gives it.
std::vector<std::string> wordsOf(const std::string& file, int length) {
    const DictionaryIndex index = parseIndex(file);
    std::vector<std::string> words;
    for (std::int32_t k = 0; k < index.contaGruppo(length); ++k)
        words.push_back(file.substr(index.inizioGruppo(length) - 1 + k * length, length));
    return words;
}

TEST(ShippedDictionary, IsWhatTheWriterMakesOfSortedWordsOfTheLanguage) {
    const std::pair<Language, std::size_t> languages[] = {
        {Language::Italian, 140'000}, {Language::English, 85'000}, {Language::Latin, 170'000}};
    for (const auto& [language, minimumWords] : languages) {
        SCOPED_TRACE(static_cast<int>(language));
        const std::string file = shippedFile(static_cast<int>(language));
        WordLists lists;
        std::size_t total = 0;
        for (int length = kMinWordLength; length <= kMaxWordLength; ++length) {
            auto& words = lists[length - kMinWordLength] = wordsOf(file, length);
            total += words.size();
            EXPECT_TRUE(!words.empty() && words.size() <= kEditorWordsPerLength) << length;
            EXPECT_TRUE(std::adjacent_find(words.begin(), words.end(), std::greater_equal<>()) ==
                        words.end()); // sorted, no duplicates
            for (const std::string& word : words)
                ASSERT_TRUE(word.find_first_not_of(alphabetOf(language)) == std::string::npos &&
                            (language != Language::Latin || schoolLatinSpelling(word)))
                    << word;
        }
        const std::string notice = file.substr(0, kNoticeLength);
        EXPECT_TRUE(buildDictionaryFile(notice, lists) == file); // index, gaps, padding, size
        EXPECT_GE(total, minimumWords);
        const std::size_t count = notice.find(' ' + std::to_string(total) + " parole");
        // Plain ASCII: the number of words it describes, then the maker's notice with our
        // addresses.
        EXPECT_TRUE(std::all_of(notice.begin(), notice.end(),
                                [](char c) { return c >= ' ' && c <= '~'; }) &&
                    count < notice.find(kSitoWebTesto) &&
                    notice.find(kSitoWebTesto) < notice.find(kEmailAutore) &&
                    notice.find(kEmailAutore) != std::string::npos)
            << notice;
    }
}

// Each rule of tools/README.md, both ways: words it leaves out, and neighbours that stay in.
TEST(ShippedDictionary, KeepsWhatTheRulesKeepAndLeavesOutWhatTheyRefuse) {
    const std::tuple<int, const char*, const char*> cases[] = {
        // Folding, names, enclitic pronouns.
        {1, "CITTA PERCHE MANGIAVI ANDATI TRADUCI", "ROMA MANGIANDOLO"},
        {2, "COLOUR COLOR JAZZ", "NASA"},
        // Slurs with their plural and feminine, and the verb forms of an obscene verb; a word
        // that merely contains one, or looks like one of its forms, stays.
        {1, "TERRENO CRUCCI PISCINA CACHI CHIAVI", "TERRONE TERRONA CRUCCHI PISCIAVA"},
        {2, "SWOP SPICES ASSESS COCKPIT", "DAGO LIMEYS CHINK"},
        {3, "MENTE", "MENTULA"},
        // Abbreviations: without a vowel by rule, with one by our list; Y is a vowel.
        {1, "PST ECCO", "HTTP TBC ECC ETC ING"},
        {2, "HMM CWM GYM MYTH SKY ADZ CORPS ZOO", "MPH LTD ADJ AVG HWY QTY ZOOL OCEANOG"},
        {3, "LYNX", "PLT ETC"},
        // Roman numerals, unless they are words too.
        {2, "MIX CIVIL LIVID", "XIV XXXVIII"},
        {3, "DII", "VII"},
        // Latin: one spelling, U for the vowel and V for the consonant, no -ait perfects.
        {3, "TUA DUO INFLUA SILVA VIVUS SERVUS VOLVERIT", "TVA DVO INFLVA DOMINVS AMAUIT"},
        {3, "AMAVIT AIT AUDIIT LEGIONEM ROSARUM", "AMAIT ROSAQUE"},
    };
    const std::string files[] = {"", shippedFile(1), shippedFile(2), shippedFile(3)};
    for (const auto& [number, in, out] : cases)
        for (const auto& [list, present] : {std::pair{in, true}, std::pair{out, false}}) {
            std::istringstream words(list);
            for (std::string word; words >> word;) {
                const auto block = wordsOf(files[number], static_cast<int>(word.size()));
                EXPECT_EQ(std::binary_search(block.begin(), block.end(), word), present)
                    << number << " " << word;
            }
        }
}

// Windows-1252 lines ended by CR LF: no control byte (a lone CR or LF), none of the codes
// Windows-1252 leaves out, no UTF-8 (a lead byte and a continuation byte: à written as C3 A0).
TEST(ShippedRules, AreWindows1252LinesEndedByCrLf) {
    const std::string text = readWholeFile(dataDir / "REGPAROL.TXT").value_or("");
    ASSERT_TRUE(text.ends_with("\r\n"));
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto b = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
        const bool crlf = (b == '\r' && next == '\n') || (b == '\n' && i && text[i - 1] == '\r');
        EXPECT_FALSE((b < 0x20 && !crlf) || b == 0x81 || b == 0x8D || b == 0x8F || b == 0x90 ||
                     b == 0x9D || (b >= 0xC2 && b <= 0xF4 && (next & 0xC0) == 0x80))
            << i;
    }
    for (const char* rule : {"3", "10", "2000", "gi\xE0 trovata"}) // à as one byte
        EXPECT_NE(text.find(rule), std::string::npos) << rule;
}

} // namespace
} // namespace griglione
