#include "records/challenge_words.h"

#include "core/ansi_text.h"

#include <algorithm>

namespace griglione {

std::string packWords(std::vector<std::string> words) {
    for (std::string& word : words)
        word = upperAscii(word);
    std::sort(words.begin(), words.end());
    words.erase(std::unique(words.begin(), words.end()), words.end());
    std::string packed;
    std::string_view previous;
    for (const std::string& word : words) {
        std::size_t shared = 0;
        while (shared < 9 && shared < previous.size() && shared < word.size() &&
               previous[shared] == word[shared])
            ++shared;
        packed += static_cast<char>('0' + shared);
        packed.append(word, shared);
        previous = word;
    }
    return packed;
}

std::optional<std::vector<std::string>> unpackWords(std::string_view packed) {
    std::vector<std::string> words;
    std::size_t i = 0;
    while (i < packed.size()) {
        if (packed[i] < '0' || packed[i] > '9') return std::nullopt;
        const auto shared = static_cast<std::size_t>(packed[i++] - '0');
        const std::string_view previous = words.empty() ? std::string_view() : words.back();
        if (shared > previous.size()) return std::nullopt;
        std::string word(previous.substr(0, shared));
        while (i < packed.size() && packed[i] >= 'A' && packed[i] <= 'Z')
            word += packed[i++];
        if (i < packed.size() && (packed[i] < '0' || packed[i] > '9')) return std::nullopt;
        if (word.empty() || (!words.empty() && word <= previous)) return std::nullopt;
        words.push_back(std::move(word));
    }
    return words;
}

} // namespace griglione
