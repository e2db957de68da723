// Judges whitakers-words analyses line by line: inflection lines ("am.o  V  1 1 PRES ACTIVE IND
// 1 S"), dictionary lines ("amo, amare, amavi, amatus  V (1st)  [XXXAO]") with their meaning
// lines after them, and TACKON lines that glue an enclitic or complete a pronoun (quisque).
#include "tools/dictionaries/whitaker_check.h"

#include <algorithm>
#include <regex>

namespace griglione {
namespace {

std::vector<std::string_view> tokens(std::string_view line) {
    std::vector<std::string_view> out;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t start = line.find_first_not_of(" \t\r", at);
        if (start == std::string_view::npos) break;
        const std::size_t end = std::min(line.find_first_of(" \t\r", start), line.size());
        out.push_back(line.substr(start, end - start));
        at = end;
    }
    return out;
}

bool has(const std::vector<std::string_view>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

const std::set<std::string_view> kPartsOfSpeech = {
    "N", "V", "ADJ", "VPAR", "SUPINE", "ADV", "PRON", "NUM", "PREP", "CONJ", "INTERJ", "PACK", "X"};

// The five codes of a dictionary line: age, area, place, frequency, source ([XXXAO]).
std::string dictionaryCodes(std::string_view line) {
    static const std::regex codes(R"(\[([A-Z]{5})\])");
    std::match_results<std::string_view::const_iterator> match;
    return std::regex_search(line.begin(), line.end(), match, codes) ? match[1].str() : "";
}

// One analysis: a dictionary entry with the inflections it was reached by.
struct Analysis {
    std::vector<std::vector<std::string_view>> inflections;
    std::string_view entry;
    std::string meaning;
    bool tackon = false; // after a TACKON line: the form carries an enclitic or a pronoun ending
    bool packon = false; // the TACKON completes a pronoun (quis + que: quisque)
};

bool lateInflection(const std::vector<std::string_view>& t) {
    // WORDS marks the -endus gerundive (and so the gerund) of the third and fourth
    // conjugations Late, though legendo, agendi, audiendi are the classical forms.
    if (t[1] == "VPAR" && has(t, "FUT") && has(t, "PASSIVE")) return false;
    return has(t, "Late") || has(t, "Later") || has(t, "Medieval") || has(t, "Scholar") ||
           has(t, "Modern");
}

// A verb form with a person: "form V conj var TENSE VOICE MOOD PERSON NUMBER".
bool personal(const std::vector<std::string_view>& t) {
    return t.size() >= 9 && t[1] == "V" && t[6] != "INF";
}

bool thirdSingular(const std::vector<std::string_view>& t) {
    return t[7] == "3" && t[8] == "S";
}

bool acceptable(const Analysis& a) {
    const std::string codes = dictionaryCodes(a.entry);
    const auto words = tokens(a.entry);
    if (codes.size() != 5 || words.empty()) return false;
    if (std::string_view("XBC").find(codes[0]) == std::string_view::npos) return false; // late
    // Met once (F), or only in inscriptions, graffiti or Pliny.
    if (std::string_view("FIMN").find(codes[3]) != std::string_view::npos) return false;
    if (words[0][0] >= 'A' && words[0][0] <= 'Z') return false; // a name: Caesar, Roma
    // The inscription spelling of carus; a stem that only stands in compounds (-plus: triplus).
    if (words[0].find('k') != std::string_view::npos) return false;
    if (a.meaning.find("(only w/") != std::string::npos) return false;
    if (a.tackon) {
        if (a.packon) return has(words, "PACK");
        // -que after a word that takes it as its own ending: uterque, plerusque.
        return a.meaning.find("w/que") != std::string::npos ||
               a.meaning.find("w/-que") != std::string::npos;
    }
    const bool impersonal = has(words, "IMPERS");
    // WORDS marks few verbs INTRANS; a verb with the dative, or one glossed as a state ("be
    // strong", valeo; "be stunned", stupeo), takes no object either.
    const bool intransitive = has(words, "INTRANS") ||
                              a.meaning.find("(with DAT)") != std::string::npos ||
                              a.meaning.starts_with("be ");
    return std::any_of(a.inflections.begin(), a.inflections.end(), [&](const auto& t) {
        if (lateInflection(t)) return false;
        // The gerundive of a verb without object is impersonal, neuter only (saeviendum).
        if (intransitive && t[1] == "VPAR" && has(t, "FUT") && has(t, "PASSIVE"))
            return t.size() > 6 && t[6] == "N";
        if (!personal(t)) return true;
        if (impersonal) return thirdSingular(t);
        return !(intransitive && has(t, "PASSIVE") && !thirdSingular(t));
    });
}

std::string headword(std::string_view entry) {
    const auto words = tokens(entry);
    if (words.empty()) return "";
    std::string word(words[0]);
    if (!word.empty() && word.back() == ',') word.pop_back();
    return word;
}

} // namespace

std::string whitakerSetup() {
    // "#": TRIM_OUTPUT N, output file N, unknowns only N, unknowns file N, ignore unknown names
    // and capitals Y Y, compounds N, fixes N, tricks N, dictionary forms Y, age N, frequency N,
    // examples N, only meanings N, stems for unknowns N, save N.
    // "!": statistics N, initial word N, dictionary N, dictionary line N, codes Y, Pearse N,
    // prefixes N, suffixes N, tackons Y, syncope Y, two words N, unknown context N, no meanings
    // N, omit archaic Y, omit medieval Y, omit uncommon Y, I for J N, U for V N, pause N; a blank
    // skips the rest.
    return "#\nN\nN\nN\nN\nY\nY\nN\nN\nN\nY\nN\nN\nN\nN\nN\nN\n"
           "!\nN\nN\nN\nN\nY\nN\nN\nN\nY\nY\nN\nN\nN\nY\nY\nY\nN\nN\nN\n \n";
}

std::vector<std::string_view> whitakerBlocks(std::string_view output, std::size_t words) {
    std::vector<std::string_view> blocks;
    std::size_t at = output.starts_with("=>") ? 0 : output.find("\n=>");
    while (at != std::string_view::npos) {
        const std::size_t start = at + (output[at] == '\n' ? 3 : 2);
        const std::size_t next = output.find("\n=>", start);
        const std::string_view block = output.substr(start, next - start);
        if (!block.starts_with("To set") && block.find("Raised END_ERROR") == std::string::npos)
            blocks.push_back(block);
        at = next;
    }
    if (blocks.size() != words) blocks.clear();
    return blocks;
}

LatinVerdict judgeWhitakerBlock(std::string_view block, const WhitakerRules& rules) {
    if (block.find("UNKNOWN") != std::string_view::npos &&
        block.find('\n') >= block.find("UNKNOWN"))
        return LatinVerdict::Unknown;
    std::vector<Analysis> analyses;
    std::vector<std::vector<std::string_view>> inflections;
    bool lastWasInflection = false, tackon = false, packon = false, afterTackon = false;
    for (std::size_t start = 0; start < block.size();) {
        const std::size_t end = std::min(block.find('\n', start), block.size());
        const std::string_view line = block.substr(start, end - start);
        start = end + 1;
        const auto t = tokens(line);
        if (t.empty()) continue;
        if (t.size() >= 2 && t[1] == "TACKON") {
            tackon = afterTackon = true;
            lastWasInflection = false;
            continue;
        }
        if (afterTackon) { // the line that says what the TACKON is
            packon = line.starts_with("PACKON");
            afterTackon = false;
            continue;
        }
        if (!dictionaryCodes(line).empty()) {
            analyses.push_back({inflections, line, "", tackon, packon});
            lastWasInflection = false;
        } else if (t.size() >= 2 && kPartsOfSpeech.contains(t[1]) && t[0] != "Syncope") {
            if (!lastWasInflection) inflections.clear();
            inflections.push_back(t);
            lastWasInflection = true;
        } else if (!analyses.empty()) {
            analyses.back().meaning += std::string(line) + '\n';
            lastWasInflection = false;
        }
    }
    bool classical = false;
    for (const Analysis& a : analyses) {
        const std::string lemma = headword(a.entry);
        // "(rude)", "(rude?)", "(Sex rude)"; not "rude, rough" (rudis).
        const bool rude = a.meaning.find("(rude") != std::string::npos ||
                          a.meaning.find("rude)") != std::string::npos;
        if (rules.rudeLemmas.contains(lemma) || (rude && !rules.decentLemmas.contains(lemma)))
            return LatinVerdict::Rude;
        classical = classical || acceptable(a);
    }
    return classical ? LatinVerdict::Classical : LatinVerdict::NotClassical;
}

} // namespace griglione
