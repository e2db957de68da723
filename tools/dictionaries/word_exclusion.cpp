#include "tools/dictionaries/word_exclusion.h"

#include "dictionary/dictionary_format.h"

#include <algorithm>
#include <regex>

namespace griglione {
namespace {

bool isVowel(char c) {
    return c == 'A' || c == 'E' || c == 'I' || c == 'O' || c == 'U' || c == 'Y';
}

std::string_view trimmed(std::string_view s) {
    const std::size_t first = s.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return s.substr(first, s.find_last_not_of(" \t\r") - first + 1);
}

// The word of a list in capitals when it could be a dictionary word at all. Entries are written
// in lower case, but a list may well write one in capitals (NEGRO): fold those too.
std::optional<std::string> listWord(std::string_view source, Language language) {
    std::string lower(source);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return admitWord(lower, language);
}

bool endsWith(std::string_view s, std::string_view end) {
    return s.size() >= end.size() && s.substr(s.size() - end.size()) == end;
}

// The regular forms of an Italian verb: present, imperfect, past, future, conditional,
// subjunctives, imperative, gerund and participles (fottere: fotto, fottei, fottuto...).
void addConjugation(const std::string& infinitive, std::vector<std::string>& forms) {
    static const char* const are[] = {
        "o",      "i",      "a",        "iamo",  "ate",   "ano",    "avo",  "avi",    "ava",
        "avamo",  "avate",  "avano",    "ai",    "asti",  "o",      "ammo", "aste",   "arono",
        "ero",    "erai",   "era",      "eremo", "erete", "eranno", "erei", "eresti", "erebbe",
        "eremmo", "ereste", "erebbero", "iate",  "ino",   "assi",   "asse", "assimo", "assero",
        "ando",   "ante",   "anti",     "ato",   "ata",   "ati",    "ate",  "are",    "ar"};
    static const char* const ere[] = {
        "o",     "i",      "e",     "iamo",   "ete",    "ono",    "evo",    "evi",
        "eva",   "evamo",  "evate", "evano",  "ei",     "etti",   "esti",   "e",
        "emmo",  "este",   "erono", "ettero", "ero",    "erai",   "era",    "eremo",
        "erete", "eranno", "erei",  "eresti", "erebbe", "eremmo", "ereste", "erebbero",
        "a",     "iate",   "ano",   "essi",   "esse",   "essimo", "essero", "endo",
        "ente",  "enti",   "uto",   "uta",    "uti",    "ute",    "ere",    "er"};
    static const char* const ire[] = {
        "o",      "i",      "e",        "iamo",  "ite",    "ono",    "ivo",   "ivi",    "iva",
        "ivamo",  "ivate",  "ivano",    "ii",    "isti",   "i",      "immo",  "iste",   "irono",
        "iro",    "irai",   "ira",      "iremo", "irete",  "iranno", "irei",  "iresti", "irebbe",
        "iremmo", "ireste", "irebbero", "a",     "iate",   "ano",    "issi",  "isse",   "issimo",
        "issero", "endo",   "ente",     "enti",  "ito",    "ita",    "iti",   "ite",    "ire",
        "ir",     "isco",   "isci",     "isce",  "iscono", "isca",   "iscano"};
    const std::string stem = infinitive.substr(0, infinitive.size() - 3);
    const auto add = [&](const auto& endings, bool hardSound) {
        for (const char* lower : endings) {
            std::string ending(lower);
            for (char& c : ending)
                c = static_cast<char>(c - 'a' + 'A');
            std::string base = stem;
            // cagare: caghi, cagherò; pisciare: pisci, pisciamo (one I).
            if (hardSound && (ending[0] == 'E' || ending[0] == 'I')) base += 'H';
            if (base.back() == 'I' && ending[0] == 'I') ending.erase(0, 1);
            forms.push_back(base + ending);
        }
    };
    const char kind = infinitive[infinitive.size() - 3];
    const bool hard = stem.back() == 'C' || stem.back() == 'G';
    if (kind == 'A') add(are, hard);
    if (kind == 'E') add(ere, false);
    if (kind == 'I') add(ire, false);
}

// -s, -es, -ed, -ing, -er, -est, -ier, -iest, -ish, -ily, -iness, -y and their plurals, on the
// word as it is, with its last consonant doubled (shag: shagged), without its final E (whore:
// whoring) or with its final Y turned I (hussy: hussies).
void addEnglishDerivations(const std::string& word, std::vector<std::string>& forms) {
    static const char* const endings[] = {"S",   "ED",  "ING",     "INGS", "ER",  "ERS",
                                          "EST", "IER", "IEST",    "ISH",  "ILY", "INESS",
                                          "Y",   "IES", "INESSES", "EY",   "EYS", "IERS"};
    std::vector<std::string> stems{word};
    const char last = word.back();
    // -es only where English spells it: after a sibilant or an O (bitches, dagoes; not spices).
    if (last == 'S' || last == 'X' || last == 'Z' || last == 'O' || endsWith(word, "CH") ||
        endsWith(word, "SH"))
        forms.push_back(word + "ES");
    if (!isVowel(last) && last != 'W' && last != 'X') stems.push_back(word + last);
    if (last == 'E') stems.push_back(word.substr(0, word.size() - 1));
    for (const std::string& stem : stems)
        for (const char* ending : endings)
            forms.push_back(stem + ending);
    // Y turns I before an ending (hussies, bitchier); a stem without Y takes no other ending,
    // as limey gives no lime.
    if (last == 'Y')
        for (const char* ending : endings)
            if (ending[0] == 'I') forms.push_back(word.substr(0, word.size() - 1) + ending);
}

} // namespace

bool foreignItalianSpelling(std::string_view w, bool curated) {
    if (w.empty() || (!curated && !isVowel(w.back()))) return true;
    for (const char* cluster : {"DG", "SH", "TH", "PH"})
        if (w.find(cluster) != std::string_view::npos) return true;
    // CH and GH stand only before E and I (BIANCHE; not BIANCHO, MACHO, CHALET).
    for (std::size_t h = w.find('H'); h != std::string_view::npos; h = w.find('H', h + 1))
        if (h > 0 && (w[h - 1] == 'C' || w[h - 1] == 'G') &&
            (h + 1 == w.size() || (w[h + 1] != 'E' && w[h + 1] != 'I')))
            return true;
    for (std::size_t q = w.find('Q'); q != std::string_view::npos; q = w.find('Q', q + 1))
        if (q + 1 >= w.size() || w[q + 1] != 'U') return true;
    return false;
}

bool hasVowel(std::string_view capitals) {
    for (const char c : capitals)
        if (isVowel(c)) return true;
    return false;
}

bool isRomanNumeral(std::string_view capitals) {
    static const std::regex numeral("M{0,3}(CM|CD|D?C{0,3})(XC|XL|L?X{0,3})(IX|IV|V?I{0,3})");
    return !capitals.empty() && std::regex_match(capitals.begin(), capitals.end(), numeral);
}

std::vector<std::string> inflectedForms(std::string_view capitals, Language language) {
    const std::string word(capitals);
    std::vector<std::string> forms{word};
    if (word.size() < 2) return forms;
    const char last = word.back();
    const std::string stem = word.substr(0, word.size() - 1);
    if (language == Language::English) {
        addEnglishDerivations(word, forms);
    } else if (language == Language::Italian) {
        // -co, -ga keep their hard sound: crucco, crucchi; checca, checche.
        const bool hard =
            (stem.back() == 'C' || stem.back() == 'G') && (last == 'O' || last == 'A');
        const std::string plural = hard ? stem + "H" : stem;
        if (last == 'O') {
            // frocio: froci, not frocii.
            const std::string masculine = plural.back() == 'I' ? plural : plural + "I";
            forms.insert(forms.end(), {masculine, stem + "A", plural + "E"});
        } else if (last == 'A') {
            forms.push_back(plural + "E");
        }
        // Diminutives and augmentatives, in both genders and numbers: puttanella, culone.
        if ((last == 'O' || last == 'A') && word.size() >= 4)
            for (const char* ending : {"ELL", "ETT", "IN", "ON", "ACC", "OTT", "UCC"})
                for (const char* tail : {"O", "A", "I", "E"})
                    forms.push_back(plural + ending + tail);
        else if (word.size() > 5 &&
                 (endsWith(word, "ARE") || endsWith(word, "ERE") || endsWith(word, "IRE"))) {
            addConjugation(word, forms);
            forms.push_back(stem + "I"); // or a noun: puttaniere, puttanieri
        } else if (last == 'E') {
            forms.push_back(stem + "I");
            // -one names a person, and has a feminine: terrone, terrona.
            if (endsWith(word, "ONE")) forms.push_back(stem + "A");
        }
    }
    return forms;
}

void WordExclusion::block(std::string_view sourceWord) {
    const auto word = listWord(sourceWord, m_language);
    if (!word) return;
    m_entries.insert(*word);
    for (std::string& form : inflectedForms(*word, m_language)) {
        auto& entries = m_blocked[std::move(form)];
        if (std::find(entries.begin(), entries.end(), *word) == entries.end())
            entries.push_back(*word);
    }
}

void WordExclusion::name(std::string_view sourceWord) {
    if (const auto word = listWord(sourceWord, m_language)) m_names.insert(*word);
}

void WordExclusion::abbreviation(std::string_view sourceWord) {
    if (const auto word = listWord(sourceWord, m_language)) m_abbreviations.insert(*word);
}

bool WordExclusion::blockedEntry(const std::string& entry) const {
    return m_entries.contains(entry) && !m_allowed.contains(entry);
}

// A list word of four letters or more followed by a word of three letters or more of the
// sources (SHIT + HEAD). Three-letter list words would take too many ordinary words with them
// (GYP + SUM).
bool WordExclusion::isCompound(const std::string& w) const {
    constexpr auto shortest = static_cast<std::size_t>(kMinWordLength);
    for (std::size_t cut = shortest + 1; cut + shortest <= w.size(); ++cut)
        if (blockedEntry(w.substr(0, cut)) && m_vocabulary.contains(w.substr(cut))) return true;
    return false;
}

void WordExclusion::allow(std::string_view sourceWord) {
    if (const auto word = listWord(sourceWord, m_language)) m_allowed.insert(*word);
}

std::vector<int> WordExclusion::readList(std::string_view text) {
    static const char* const codes[] = {"", "it", "en", "la"};
    const std::string_view ours = codes[static_cast<int>(m_language)];
    std::vector<int> unread;
    int number = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        std::string_view line = text.substr(start, end - start);
        start = end + 1;
        ++number;
        line = trimmed(line.substr(0, line.find('#')));
        if (line.empty()) continue;
        std::vector<std::string_view> words;
        for (std::size_t at = 0; at < line.size();) {
            const std::size_t gap = std::min(line.find_first_of(" \t", at), line.size());
            if (gap > at) words.push_back(line.substr(at, gap - at));
            at = gap + 1;
        }
        if (words.size() < 3 ||
            (words[0] != "block" && words[0] != "allow" && words[0] != "abbrev")) {
            unread.push_back(number);
            continue;
        }
        bool mine = false;
        for (std::size_t at = 0; at <= words[1].size();) {
            const std::size_t comma = std::min(words[1].find(',', at), words[1].size());
            const std::string_view code = words[1].substr(at, comma - at);
            mine = mine || code == "*" || code == ours;
            at = comma + 1;
        }
        for (std::size_t i = 2; mine && i < words.size(); ++i) {
            if (words[0] == "block")
                block(words[i]);
            else if (words[0] == "abbrev")
                abbreviation(words[i]);
            else
                allow(words[i]);
        }
    }
    return unread;
}

Refusal WordExclusion::refusal(const std::string& capitals, bool trusted) const {
    if (m_allowed.contains(capitals)) return Refusal::None;
    if (m_restricted && !trusted && !m_checked.contains(capitals)) return Refusal::NotChecked;
    // The forms of an allowed word stay in with it (allowing CHIAVARE keeps CHIAVI).
    const auto blocked = m_blocked.find(capitals);
    if (blocked != m_blocked.end() &&
        std::any_of(blocked->second.begin(), blocked->second.end(),
                    [this](const std::string& entry) { return !m_allowed.contains(entry); }))
        return Refusal::Listed;
    if (isCompound(capitals)) return Refusal::Listed;
    if (!hasVowel(capitals)) return Refusal::NoVowel;
    if (isRomanNumeral(capitals)) return Refusal::RomanNumeral;
    if (m_abbreviations.contains(capitals)) return Refusal::Abbreviation;
    if (m_language == Language::Italian && foreignItalianSpelling(capitals, trusted))
        return Refusal::NotItalian;
    // A word cut short by poetry (CUOR, CIEL, RAGION, DICON, SARAN, DIR beside CUORE, CIELO,
    // RAGIONE, DICONO, SARANNO... DIRE): an ending L, M, N or R whose word with a final vowel
    // is in the sources, whatever the source. The ordinary apocopes (BUON, GRAN, SIGNOR, VUOL)
    // and the loanwords (BAR, FILM, TRAM) are on the allow-list.
    if (m_language == Language::Italian &&
        std::string_view("LMNR").find(capitals.back()) != std::string_view::npos) {
        for (const char vowel : {'A', 'E', 'I', 'O'})
            if (m_vocabulary.contains(capitals + vowel)) return Refusal::Truncated;
        if (capitals.back() == 'N' && m_vocabulary.contains(capitals + "NO"))
            return Refusal::Truncated; // SARAN, STAN beside SARANNO, STANNO
    }
    if (!trusted && m_names.contains(capitals)) return Refusal::Name;
    return Refusal::None;
}

} // namespace griglione
