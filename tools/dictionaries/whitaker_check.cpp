// Judges whitakers-words analyses line by line: inflection lines ("am.o  V  1 1 PRES ACTIVE IND
// 1 S"), dictionary lines ("amo, amare, amavi, amatus  V (1st)  [XXXAO]") with their meaning
// lines after them, and TACKON lines that glue an enclitic or complete a pronoun (quisque).
#include "tools/dictionaries/whitaker_check.h"

#include <algorithm>
#include <regex>
#include <utility>

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
    bool tackon = false;    // after a TACKON line: the form carries an enclitic or a pronoun ending
    bool packon = false;    // the TACKON completes a pronoun (quis + que: quisque)
    bool completes = false; // a TACKON of one word (i + dem: idem; eius + dem: eiusdem)
    bool syncope = false;   // read as a contracted perfect (amasti for amavisti)
    bool guessed = false;   // read after one of WORDS's spelling tricks (co for con)
};

bool lateInflection(const std::vector<std::string_view>& t) {
    // WORDS marks the -endus gerundive (and so the gerund) of the third and fourth
    // conjugations Late, though legendo, agendi, audiendi are the classical forms; their early
    // twins in -undus (abducunda) and the passive infinitive in -ier (refugier) are archaic.
    // A deponent's gerundive has no voice on its line (sequ.endi VPAR ... FUT PPL).
    const bool gerundive = t[1] == "VPAR" && has(t, "FUT") && !has(t, "ACTIVE");
    // Other early inflections are classical (ingeni, artubus, doceare), unless rare too (faxim).
    if (has(t, "Early") && (gerundive || has(t, "INF") || has(t, "infreq") || has(t, "uncommon") ||
                            has(t, "rare") || has(t, "veryrare")))
        return true;
    if (gerundive) return false;
    return has(t, "Late") || has(t, "Later") || has(t, "Medieval") || has(t, "Scholar") ||
           has(t, "Modern");
}

// A verb line with its voice in place: "form V conj var TENSE VOICE MOOD PERSON NUMBER".
// WORDS leaves the voice of a deponent's forms blank ("hort.atur V 1 1 PRES IND 3 S").
std::vector<std::string_view> withVoice(std::vector<std::string_view> t) {
    if (t[1] == "V" && t.size() > 5 && t[5] != "ACTIVE" && t[5] != "PASSIVE")
        t.insert(t.begin() + 5, "");
    return t;
}

bool thirdSingular(const std::vector<std::string_view>& t) {
    return t[7] == "3" && t[8] == "S";
}

std::string headword(std::string_view entry) {
    const auto words = tokens(entry);
    if (words.empty()) return "";
    std::string word(words[0]);
    if (!word.empty() && word.back() == ',') word.pop_back();
    return word;
}

// The form itself: the inflection line's first token without the dot between stem and ending.
std::string formOf(const std::vector<std::string_view>& t) {
    std::string form(t[0]);
    form.erase(std::remove(form.begin(), form.end(), '.'), form.end());
    return form;
}

// A deponent's forms are passive in shape: amor, hortaris, hortare, sequitur, hortamini,
// hortari, sequi. WORDS gives its entries active endings too (hortat, mentiunt, sequit).
bool passiveShape(const std::vector<std::string_view>& t) {
    const std::string form = formOf(t);
    if (t[6] == "INF") return form.ends_with("i");
    return form.ends_with("r") || form.ends_with("ris") || form.ends_with("re") ||
           form.ends_with("mini");
}

// The first sense of the meaning, up to its first ';'.
std::string_view firstSense(std::string_view meaning) {
    return meaning.substr(0, std::min(meaning.find(';'), meaning.find('\n')));
}

// A verb that takes no object: so marked (INTRANS, or with the dative, genitive or ablative,
// DAT or "(w/DAT)"), glossed as a state ("be strong", valeo) or a motion or way of being that
// takes no object (come, fly, run), or without a perfect passive participle (pateo, patui, -;
// careo, carui, cariturus).
bool takesNoObject(const std::vector<std::string_view>& entry, std::string_view meaning) {
    if (has(entry, "INTRANS") || has(entry, "DAT") || has(entry, "GEN") || has(entry, "ABL"))
        return true;
    for (const char* mark : {"(with DAT", "(w/DAT", "with dat"})
        if (meaning.find(mark) != std::string_view::npos) return true;
    // The genitive or the ablative only when the first sense takes it (egeo, need w/GEN/ABL):
    // impleo fills something (w/ABL) in a later sense.
    const std::string_view sense = firstSense(meaning);
    for (const char* mark : {"(w/GEN", "(w/ABL"})
        if (sense.find(mark) != std::string_view::npos) return true;
    static const char* const motions[] = {"be ",    "come", "go",    "fly",    "run",    "walk",
                                          "sleep",  "die",  "live",  "arrive", "fall",   "flow",
                                          "stand",  "sit",  "shine", "swim",   "wander", "hurry",
                                          "hasten", "lie ", "float", "resound"};
    for (const char* motion : motions) {
        const std::string_view m(motion);
        if (sense.starts_with(m) &&
            (m.back() == ' ' || sense.size() == m.size() || sense[m.size()] == ' ' ||
             sense[m.size()] == ',' || sense[m.size()] == '/' || sense[m.size()] == ';'))
            return true;
    }
    // "pateo, patere, patui, -  V": the fourth principal part, before the part of speech.
    const auto v = std::find(entry.begin(), entry.end(), "V");
    if (v - entry.begin() == 4) {
        const std::string_view supine = entry[3];
        return supine == "-" || supine.ends_with("urus");
    }
    return false;
}

// Whether the entry's perfect is its present stem, a vowel and -vi ("amo, amare, amavi": am +
// a + vi; "audio, audire, audivi"), the perfect whose v a contraction drops.
bool viPerfect(const std::vector<std::string_view>& entry) {
    if (entry.size() < 3) return false;
    std::string_view present = entry[0], perfect = entry[2];
    for (std::string_view* part : {&present, &perfect})
        if (part->ends_with(",")) part->remove_suffix(1);
    for (const std::string_view ending : {"eo", "io", "o"})
        if (present.ends_with(ending)) {
            present.remove_suffix(ending.size());
            break;
        }
    return perfect.size() == present.size() + 3 && perfect.starts_with(present) &&
           perfect.ends_with("vi") &&
           std::string_view("aeio").find(perfect[present.size()]) != std::string_view::npos &&
           !present.ends_with("v");
}

bool acceptable(const Analysis& a, const WhitakerRules& rules) {
    const std::string codes = dictionaryCodes(a.entry);
    const auto words = tokens(a.entry);
    if (codes.size() != 5 || words.empty()) return false;
    // Early (B, Plautus), late and medieval entries.
    if (codes[0] != 'X' && codes[0] != 'C') return false;
    // Met once (F), or only in inscriptions, graffiti or Pliny.
    if (std::string_view("EFIMN").find(codes[3]) != std::string_view::npos) return false;
    if (words[0][0] >= 'A' && words[0][0] <= 'Z' && !rules.commonNames.contains(headword(a.entry)))
        return false; // a name: Caesar, Roma
    // The inscription spelling of carus; a stem that only stands in compounds (-plus: triplus).
    if (words[0].find('k') != std::string_view::npos) return false;
    if (a.meaning.find("(only w/") != std::string::npos) return false;
    if (a.guessed || rules.archaicLemmas.contains(headword(a.entry))) return false;
    if (a.tackon) {
        // Quisquam has no plural (quasquam).
        if (a.packon)
            return has(words, "PACK") &&
                   !(a.meaning.find("no pl.") != std::string::npos &&
                     std::any_of(a.inflections.begin(), a.inflections.end(),
                                 [](const auto& t) { return t.size() > 5 && t[5] == "P"; }));
        if (a.completes) return a.meaning.find("(w/-") != std::string::npos;
        // -que after a word that takes it as its own ending: uterque, plerusque.
        return a.meaning.find("w/que") != std::string::npos ||
               a.meaning.find("w/-que") != std::string::npos;
    }
    const bool impersonal = has(words, "IMPERS");
    const bool deponent = has(words, "DEP");
    const bool semiDeponent = has(words, "SEMIDEP");
    const bool intransitive = takesNoObject(words, a.meaning);
    // The future imperative (amato, amatote) is a form of laws and formulae: only common verbs.
    const bool common = std::string_view("ABC").find(codes[3]) != std::string_view::npos;
    // A contracted perfect of a -vi perfect (amasti, amarunt, amaram, amasse, amassem), not of
    // a stem that ends in v (caveo: carit) or a perfect of another stem (lino, levi: lestis),
    // nor a future perfect or perfect subjunctive (calaro).
    if (a.syncope && !viPerfect(words)) return false;
    return std::any_of(a.inflections.begin(), a.inflections.end(), [&](const auto& line) {
        if (lateInflection(line)) return false;
        const auto t = withVoice(line);
        if (a.syncope && (has(t, "FUTP") || (has(t, "PERF") && has(t, "SUB")))) return false;
        // The gerundive of a verb without object is impersonal, neuter only (saeviendum).
        if (intransitive && !deponent && t[1] == "VPAR" && has(t, "FUT") && has(t, "PASSIVE"))
            return t.size() > 6 && t[5] == "S" && t[6] == "N";
        if (t[1] != "V" || t.size() < 7) return true;
        if (deponent && !passiveShape(t)) return false;
        // Audeo, gaudeo, fido: active in the present system, no passive at all, and a perfect
        // of passive shape only (ausus sum, not ausisset).
        if (semiDeponent &&
            (has(t, "PASSIVE") || has(t, "PERF") || has(t, "PLUP") || has(t, "FUTP")))
            return false;
        // A deponent's passive shapes are its active forms (miror, morimur).
        const bool passive = has(t, "PASSIVE") && !deponent;
        if (t[6] == "INF") return !(intransitive && passive);
        if (t.size() < 9) return true;
        if (has(t, "IMP") && has(t, "FUT") && !common) return false;
        if (impersonal) return thirdSingular(t);
        // The impersonal passive is a statement (itur, eatur), not a command (fluitor).
        return !(intransitive && passive && (!thirdSingular(t) || has(t, "IMP")));
    });
}

std::vector<Analysis> analysesOf(std::string_view block) {
    std::vector<Analysis> analyses;
    std::vector<std::vector<std::string_view>> inflections;
    bool lastWasInflection = false, tackon = false, packon = false, afterTackon = false,
         completes = false, lastWasEntry = false;
    // A reading note ("Syncope r => v.r", "Word mod co/con") holds for the group of inflections
    // and entries that follows it.
    bool syncope = false, guessed = false, groupSyncope = false, groupGuessed = false;
    std::size_t firstWithoutMeaning = 0;
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
        // The notes and the lines that explain them ("Syncopated perfect often drops the 'v'",
        // "An initial 'co' may be rendered by 'con'"). Of the contractions only those of a -vi
        // perfect count (amarunt, amasti, audierat, audisti), not dixti for dixisti.
        if (t[0] == "Syncope") {
            (line.find("s/x") == std::string_view::npos ? syncope : guessed) = true;
            continue;
        }
        if (line.starts_with("Word mod")) {
            guessed = true;
            continue;
        }
        if (line.starts_with("Syncopated") || line.starts_with("An initial")) continue;
        if (afterTackon) { // the line that says what the TACKON is
            packon = line.starts_with("PACKON");
            completes = line.starts_with("TACKON w/");
            afterTackon = false;
            continue;
        }
        if (!dictionaryCodes(line).empty()) {
            // Entries listed one after the other share the meaning that follows them (careo,
            // careor: "be without").
            if (!lastWasEntry) firstWithoutMeaning = analyses.size();
            analyses.push_back(
                {inflections, line, "", tackon, packon, completes, groupSyncope, groupGuessed});
            lastWasInflection = false;
            lastWasEntry = true;
            continue;
        } else if (t.size() >= 2 && kPartsOfSpeech.contains(t[1])) {
            if (!lastWasInflection) {
                inflections.clear();
                groupSyncope = std::exchange(syncope, false);
                groupGuessed = std::exchange(guessed, false);
            }
            inflections.push_back(t);
            lastWasInflection = true;
        } else if (!analyses.empty()) {
            for (std::size_t k = firstWithoutMeaning; k < analyses.size(); ++k)
                analyses[k].meaning += std::string(line) + '\n';
            lastWasInflection = false;
        }
        lastWasEntry = false;
    }
    return analyses;
}

// Collatinus's count of an entry's headword; a headword WORDS writes with V or J is looked up
// with U and I too (uoluntas).
long lemmaCount(std::string_view entry, const std::map<std::string, long>& counts) {
    std::string lemma;
    for (const char c : headword(entry))
        lemma += static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    auto found = counts.find(lemma);
    if (found == counts.end()) {
        std::replace(lemma.begin(), lemma.end(), 'V', 'U');
        std::replace(lemma.begin(), lemma.end(), 'J', 'I');
        found = counts.find(lemma);
    }
    return found == counts.end() ? 0 : found->second;
}

// The active entries that WORDS lists beside a deponent of the same meaning and that are far
// rarer (miro beside miror, adorio beside adorior: rarer by WORDS's frequency code, or met less
// than a tenth as often in Collatinus's counts): their active endings (mirem, adoriunt) are no
// classical forms. Mereo beside mereor stays.
std::vector<bool> activeTwins(const std::vector<Analysis>& analyses, const WhitakerRules& rules) {
    std::vector<bool> twin(analyses.size(), false);
    for (std::size_t i = 0; i < analyses.size(); ++i)
        for (const Analysis& other : analyses) {
            const Analysis& a = analyses[i];
            if (&other == &a || !has(tokens(other.entry), "DEP") || has(tokens(a.entry), "DEP") ||
                other.meaning.empty() || other.meaning != a.meaning)
                continue;
            const std::string codes = dictionaryCodes(a.entry), its = dictionaryCodes(other.entry);
            twin[i] = twin[i] || codes.size() != 5 || its.size() != 5 || codes[3] > its[3] ||
                      lemmaCount(a.entry, rules.lemmaCounts) * 10 <
                          lemmaCount(other.entry, rules.lemmaCounts);
        }
    return twin;
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
    const std::vector<Analysis> analyses = analysesOf(block);
    const std::vector<bool> twins = activeTwins(analyses, rules);
    bool classical = false;
    for (const Analysis& a : analyses) {
        const std::string lemma = headword(a.entry);
        // "(rude)", "(rude?)", "(Sex rude)"; not "rude, rough" (rudis).
        const bool rude = a.meaning.find("(rude") != std::string::npos ||
                          a.meaning.find("rude)") != std::string::npos;
        if (rules.rudeLemmas.contains(lemma) || (rude && !rules.decentLemmas.contains(lemma)))
            return LatinVerdict::Rude;
        classical = classical || (!twins[&a - analyses.data()] && acceptable(a, rules));
    }
    return classical ? LatinVerdict::Classical : LatinVerdict::NotClassical;
}

long latinUse(std::string_view block, const WhitakerRules& rules,
              const std::map<std::string, long>& lemmaCounts) {
    long best = 0;
    const std::vector<Analysis> analyses = analysesOf(block);
    const std::vector<bool> twins = activeTwins(analyses, rules);
    for (const Analysis& a : analyses) {
        if (twins[&a - analyses.data()] || !acceptable(a, rules)) continue;
        const long count = lemmaCount(a.entry, lemmaCounts);
        const std::string codes = dictionaryCodes(a.entry);
        const long frequency = 'F' - codes[3]; // A 5 ... E 1
        // Collatinus's counts miss some common verbs (paro, to prepare: 1): WORDS's frequency
        // code sets a floor, A about as often met as amo.
        static const long floors[] = {0, 1, 10, 100, 300, 800};
        const long use = std::max(count, floors[std::clamp(frequency, 0L, 5L)]);
        // Forms a reader meets often: not the future perfect, the pluperfect subjunctive, the
        // future imperative, the second person plural passive.
        const bool everyday =
            std::any_of(a.inflections.begin(), a.inflections.end(), [](const auto& line) {
                const auto t = withVoice(line);
                if (lateInflection(t) || t[1] != "V") return true;
                return !(has(t, "FUTP") || (has(t, "PLUP") && has(t, "SUB")) ||
                         (has(t, "FUT") && has(t, "IMP")) ||
                         (has(t, "PASSIVE") && t.size() > 8 && t[7] == "2" && t[8] == "P"));
            });
        best = std::max(best, use * 100 + frequency * 10 + (everyday ? 1 : 0));
    }
    return best;
}

} // namespace griglione
