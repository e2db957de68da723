#include "tools/dictionaries/use_counts.h"

#include "tools/dictionaries/word_filter.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <sstream>

namespace griglione {
namespace {

template <typename Take> void eachLine(std::string_view text, Take take) {
    std::istringstream in{std::string(text)};
    for (std::string line; std::getline(in, line);) {
        std::istringstream fields(line);
        std::string first, second;
        fields >> first >> second;
        if (!first.empty()) take(first, second);
    }
}

} // namespace

std::map<std::string, long> lemmaUse(std::string_view formsOfLemmas, std::string_view tokenCounts,
                                     std::string_view headwords, Language language) {
    std::map<std::string, long> count;
    eachLine(tokenCounts, [&](const std::string& number, const std::string& token) {
        long n = 0;
        std::from_chars(number.data(), number.data() + number.size(), n);
        if (auto word = admitWord(token, language)) count[*word] += n;
    });
    std::map<std::string, std::set<std::string>> forms, lemmas;
    eachLine(formsOfLemmas, [&](const std::string& form, const std::string& lemma) {
        auto f = admitWord(form, language);
        auto l = admitWord(lemma, language);
        if (!f || !l) return;
        forms[*l].insert(*f);
        lemmas[*f].insert(*l);
    });
    std::set<std::string> headword;
    eachLine(headwords, [&](const std::string& word, const std::string&) {
        if (auto w = admitWord(word, language)) headword.insert(std::move(*w));
    });
    const auto countOf = [&](const std::string& w) {
        const auto found = count.find(w);
        return found == count.end() ? 0L : found->second;
    };
    const auto lemmaTotal = [&](const std::string& lemma) {
        std::set<std::string> all = forms.contains(lemma) ? forms[lemma] : std::set<std::string>{};
        all.insert(lemma);
        long total = headword.contains(lemma) ? 1 : 0;
        for (const std::string& form : all)
            total += countOf(form);
        return total;
    };
    std::set<std::string> words(headword);
    for (const auto& [word, n] : count)
        words.insert(word);
    for (const auto& [form, of] : lemmas)
        words.insert(form);
    std::map<std::string, long> use;
    for (const std::string& word : words) {
        long best = lemmas.contains(word) ? 0 : lemmaTotal(word);
        if (const auto found = lemmas.find(word); found != lemmas.end())
            for (const std::string& lemma : found->second)
                best = std::max(best, lemmaTotal(lemma));
        use[word] = best * 1000 + std::min(countOf(word), 999L);
    }
    return use;
}

} // namespace griglione
