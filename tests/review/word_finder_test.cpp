// The finder against the dictionary's own lookup and a word-by-word search of the board, on
// random boards of few letters, where words of every length abound.
#include "dictionary/dictionary.h"
#include "review/word_finder.h"
#include "review/word_list.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

using namespace griglione;
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
