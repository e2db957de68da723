// WordNet data lines: "offset lex_filenum ss_type w_cnt word lex_id [word lex_id...] p_cnt ...
// | gloss", w_cnt in hexadecimal; a word may carry an adjective marker such as "(a)".
#include "tools/dictionaries/wordnet_abbreviations.h"

#include <algorithm>
#include <sstream>

namespace griglione {
namespace {

bool endsWith(std::string_view s, std::string_view end) {
    return s.size() >= end.size() && s.substr(s.size() - end.size()) == end;
}

bool isVowel(char c) {
    return std::string_view("aeiouy").find(c) != std::string_view::npos;
}

} // namespace

void WordNetLexicon::addDataFile(std::string_view text) {
    std::istringstream in{std::string(text)};
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == ' ') continue; // the licence at the head
        std::istringstream fields(line.substr(0, line.find(" | ")));
        std::string offset, file, type, count;
        fields >> offset >> file >> type >> count;
        const long words = std::strtol(count.c_str(), nullptr, 16);
        for (long i = 0; i < words; ++i) {
            std::string word, lexId;
            if (!(fields >> word >> lexId)) break;
            word = word.substr(0, word.find('('));
            const bool letters = !word.empty() && std::all_of(word.begin(), word.end(), [](char c) {
                return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
            });
            if (!letters) continue;
            const bool lower =
                std::all_of(word.begin(), word.end(), [](char c) { return c >= 'a' && c <= 'z'; });
            const bool upper =
                std::all_of(word.begin(), word.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
            std::transform(word.begin(), word.end(), word.begin(),
                           [](char c) { return static_cast<char>(c | 0x20); });
            if (lower) m_lower.insert(word);
            if (upper) m_capitals.insert(word);
        }
    }
}

void WordNetLexicon::addExceptions(std::string_view text) {
    std::istringstream in{std::string(text)};
    for (std::string line; std::getline(in, line);) {
        std::istringstream fields(line);
        std::string form, lemma;
        fields >> form;
        while (fields >> lemma)
            m_exceptions.insert({form, lemma});
    }
}

bool WordNetLexicon::isLemma(const std::string& word) const {
    return m_lower.contains(word);
}

bool WordNetLexicon::knows(const std::string& w) const {
    if (isLemma(w)) return true;
    for (auto it = m_exceptions.lower_bound({w, ""}); it != m_exceptions.end() && it->first == w;
         ++it)
        if (isLemma(it->second)) return true;
    static const std::pair<const char*, const char*> endings[] = {
        {"s", ""},    {"es", ""},    {"es", "e"},  {"ies", "y"},   {"ied", "y"},
        {"ier", "y"}, {"iest", "y"}, {"ily", "y"}, {"iness", "y"}, {"ed", ""},
        {"ed", "e"},  {"ing", ""},   {"ing", "e"}, {"er", ""},     {"er", "e"},
        {"est", ""},  {"est", "e"},  {"ly", ""},   {"ness", ""},   {"men", "man"}};
    for (const auto& [ending, replacement] : endings) {
        const std::string_view end = ending;
        if (!endsWith(w, end) || w.size() < end.size() + 2) continue;
        const std::string stem = w.substr(0, w.size() - end.size());
        if (isLemma(stem + replacement)) return true;
        // A doubled consonant: shagged, shag.
        if (*replacement == '\0' && stem.size() > 2 && stem.back() == stem[stem.size() - 2] &&
            isLemma(stem.substr(0, stem.size() - 1)))
            return true;
    }
    return false;
}

std::vector<std::string> WordNetLexicon::abbreviations(const std::vector<std::string>& words,
                                                       const std::set<std::string>& common) const {
    static const char* const learned[] = {"al",    "em",  "ics", "icate", "ogy", "ology", "ography",
                                          "ation", "ive", "ure", "ity",   "ian", "ary"};
    std::vector<std::string> found;
    for (const std::string& w : words) {
        if (common.contains(w) || knows(w)) continue;
        const bool acronym = m_capitals.contains(w);
        const bool cut = !isVowel(w.back()) && !endsWith(w, "ic") && !endsWith(w, "ist") &&
                         std::any_of(std::begin(learned), std::end(learned),
                                     [&](const char* end) { return isLemma(w + end); });
        if (acronym || cut) found.push_back(w);
    }
    return found;
}

} // namespace griglione
