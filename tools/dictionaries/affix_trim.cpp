#include "tools/dictionaries/affix_trim.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace griglione {
namespace {

std::vector<std::string_view> fields(std::string_view line) {
    std::vector<std::string_view> out;
    std::size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t' || line[i] == '\r'))
            ++i;
        const std::size_t start = i;
        while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r')
            ++i;
        if (i > start) out.push_back(line.substr(start, i - start));
    }
    return out;
}

bool isAffixKind(std::string_view f) {
    return f == "PFX" || f == "SFX";
}

bool isHeader(const std::vector<std::string_view>& f) {
    return f.size() == 4 && isAffixKind(f[0]) && (f[2] == "Y" || f[2] == "N") &&
           std::all_of(f[3].begin(), f[3].end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Hunspell writes an empty strip or affix as "0"; continuation flags follow a slash.
std::string affixText(std::string_view f) {
    f = f.substr(0, f.find('/'));
    return f == "0" ? std::string{} : std::string(f);
}

struct Entry {
    std::size_t line;
    std::string kind, flag, strip, add, condition;
};

using ClassKey = std::pair<std::string, std::string>; // kind, flag
using Pair = std::pair<std::string, std::string>;     // strip, add

bool endsWith(std::string_view s, std::string_view end) {
    return s.size() >= end.size() && s.substr(s.size() - end.size()) == end;
}

// The ending as the word filter will spell it: the ligatures æ and œ as ae and oe, so that
// "atæque" is found to be "atae" + "que".
std::string spelt(std::string_view add) {
    std::string out;
    for (std::size_t i = 0; i < add.size(); ++i) {
        if (add.substr(i, 2) == "\xC3\xA6") {
            out += "ae";
            ++i;
        } else if (add.substr(i, 2) == "\xC5\x93") {
            out += "oe";
            ++i;
        } else {
            out += add[i];
        }
    }
    return out;
}

bool onlyLetters(std::string_view s) {
    // Bytes from 0x80 up belong to accented letters of the UTF-8 files.
    return std::all_of(s.begin(), s.end(), [](char c) {
        const auto b = static_cast<unsigned char>(c);
        return b >= 0x80 || (b >= 'a' && b <= 'z') || (b >= 'A' && b <= 'Z');
    });
}

class Classifier {
public:
    Classifier(const std::vector<Entry>& entries, const AffixRules& rules) : m_rules(rules) {
        for (const Entry& e : entries) {
            m_pairs[{e.kind, e.flag}].insert({e.strip, spelt(e.add)});
            m_triples[{e.kind, e.flag}].insert({e.strip, e.add, e.condition});
            if (e.kind == "SFX") m_allSuffixes.insert({e.strip, e.add});
            bool& pure = m_pure.try_emplace({e.kind, e.flag}, true).first->second;
            pure = pure && endsInEnclitic(e.add);
        }
    }

    bool drops(const Entry& e) const {
        if (std::find(m_rules.droppedFlags.begin(), m_rules.droppedFlags.end(), e.flag) !=
            m_rules.droppedFlags.end())
            return true;
        if (!onlyLetters(e.add)) return true;
        if (e.kind != "SFX") return false;
        if (m_pure.at({e.kind, e.flag})) return true;
        return isEnclitic(e) || isContraction(e);
    }

private:
    bool endsInEnclitic(std::string_view add) const {
        return std::any_of(m_rules.enclitics.begin(), m_rules.enclitics.end(),
                           [add](const std::string& c) { return endsWith(add, c); });
    }

    bool classHas(const Entry& e, const std::string& add) const {
        return m_pairs.at({e.kind, e.flag}).contains({e.strip, spelt(add)});
    }

    bool isEnclitic(const Entry& e) const {
        bool glued = false;
        for (const std::string& enclitic : m_rules.enclitics) {
            if (!endsWith(e.add, enclitic)) continue;
            const std::string base = e.add.substr(0, e.add.size() - enclitic.size());
            const bool shared =
                std::any_of(m_rules.sharedStrips.begin(), m_rules.sharedStrips.end(),
                            [&](const std::string& s) { return endsWith(e.strip, s); });
            if ((base.empty() && (e.strip.empty() || m_rules.encliticAloneAfterAnyStrip)) ||
                classHas(e, base) || (shared && m_allSuffixes.contains({e.strip, base})))
                glued = true;
        }
        if (!glued) return false;
        const std::string stem = e.add.substr(0, e.add.size() - 1);
        for (const std::string& ending : m_rules.tenseEndings)
            if (endsWith(e.add, ending) && classHas(e, stem + "o") && classHas(e, stem + "a"))
                return false;
        return m_rules.fullFormMarker.empty() || !classHas(e, e.add + m_rules.fullFormMarker);
    }

    bool isContraction(const Entry& e) const {
        const auto& triples = m_triples.at({e.kind, e.flag});
        if (m_rules.contractedV && e.add.size() >= 2 && e.add[0] != 'i') {
            Entry longer = e;
            longer.add = e.add.substr(0, 1) + 'v' + e.add.substr(1);
            // "tve" is tenet + ve, not a perfect: tenete beside it is the plural imperative.
            if (triples.contains({e.strip, longer.add, e.condition}) && !isEnclitic(longer))
                return true;
        }
        if (m_rules.contractedStrip.empty() || !endsWith(e.strip, m_rules.contractedStrip))
            return false;
        for (const char vowel : std::string_view("ie"))
            if (triples.contains({e.strip, vowel + e.add, e.condition})) return true;
        return false;
    }

    const AffixRules& m_rules;
    std::map<ClassKey, std::set<Pair>> m_pairs;
    std::map<ClassKey, std::set<std::tuple<std::string, std::string, std::string>>> m_triples;
    std::set<Pair> m_allSuffixes;
    std::map<ClassKey, bool> m_pure; // every suffix of the class ends in an enclitic
};

} // namespace

AffixRules italianAffixRules() {
    AffixRules rules;
    rules.enclitics = {"mi", "ti", "ci", "vi", "si", "lo", "la", "li", "le", "ne", "gli"};
    for (const char* first : {"me", "te", "ce", "ve", "se", "glie"})
        for (const char* second : {"lo", "la", "li", "le", "ne"})
            rules.enclitics.push_back(std::string(first) + second);
    for (const char* first : {"mi", "ti", "ci", "vi", "gli", "le"})
        for (const char* second : {"ci", "si"})
            rules.enclitics.push_back(std::string(first) + second);
    rules.sharedStrips = {"re", "rsi"};
    rules.tenseEndings = {"vi", "ti"};
    rules.droppedFlags = {"£", "$"};
    return rules;
}

AffixRules latinAffixRules() {
    AffixRules rules;
    rules.enclitics = {"que", "qve", "ne", "ve", "ue"};
    rules.encliticAloneAfterAnyStrip = true;
    rules.fullFormMarker = "que";
    rules.contractedStrip = "i";
    rules.contractedV = true;
    return rules;
}

AffixTrim trimAffixes(std::string_view affixFile, const AffixRules& rules) {
    std::vector<std::string_view> lines;
    for (std::size_t start = 0; start <= affixFile.size();) {
        const std::size_t end = std::min(affixFile.find('\n', start), affixFile.size());
        lines.push_back(affixFile.substr(start, end - start));
        start = end + 1;
    }

    std::set<ClassKey> classes;
    std::vector<Entry> entries;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto f = fields(lines[i]);
        if (isHeader(f)) {
            classes.insert({std::string(f[0]), std::string(f[1])});
        } else if (f.size() >= 5 && isAffixKind(f[0]) &&
                   classes.contains({std::string(f[0]), std::string(f[1])})) {
            entries.push_back({i, std::string(f[0]), std::string(f[1]), affixText(f[2]),
                               affixText(f[3]), std::string(f[4])});
        }
    }

    const Classifier classifier(entries, rules);
    AffixTrim trim;
    std::set<std::size_t> droppedLines;
    std::map<ClassKey, std::size_t> keptInClass;
    for (const Entry& e : entries) {
        if (classifier.drops(e)) {
            droppedLines.insert(e.line);
            ++trim.dropped;
        } else {
            ++keptInClass[{e.kind, e.flag}];
            ++trim.kept;
        }
    }

    std::vector<std::string> out;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (droppedLines.contains(i)) continue;
        const auto f = fields(lines[i]);
        if (!isHeader(f)) {
            out.emplace_back(lines[i]);
            continue;
        }
        const auto kept = keptInClass.find({std::string(f[0]), std::string(f[1])});
        if (kept == keptInClass.end()) continue;
        out.push_back(std::string(f[0]) + ' ' + std::string(f[1]) + ' ' + std::string(f[2]) + ' ' +
                      std::to_string(kept->second));
        if (lines[i].ends_with('\r')) out.back() += '\r';
    }
    for (std::size_t i = 0; i < out.size(); ++i) {
        if (i > 0) trim.text += '\n';
        trim.text += out[i];
    }
    return trim;
}

} // namespace griglione
