// The generator's compiled half: trims a Hunspell affix file before expansion, judges the Latin
// forms by WORDS's analyses, counts how much words are used, and writes a dictionary file
// SLESSICO.<n> from plain UTF-8 word lists with the game's own writer, leaving out the excluded
// words and, where a length is full, the least used.
// make_dictionaries.sh drives it; run without arguments for the usage.
#include "core/addresses.h"
#include "core/atomic_file.h"
#include "dictionary/dictionary_format.h"
#include "tools/dictionaries/affix_trim.h"
#include "tools/dictionaries/stem_ranking.h"
#include "tools/dictionaries/use_counts.h"
#include "tools/dictionaries/whitaker_check.h"
#include "tools/dictionaries/word_exclusion.h"
#include "tools/dictionaries/word_filter.h"
#include "tools/dictionaries/word_selection.h"
#include "tools/dictionaries/wordnet_abbreviations.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace griglione;

namespace {

int usage() {
    std::fputs(
        "usage:\n"
        "  make_dictionary trim-affixes italian|latin IN.aff OUT.aff\n"
        "  make_dictionary split-stems lemmes|list FILE IN.dic OUT_PREFIX COUNT,COUNT...\n"
        "    writes OUT_PREFIX1.dic (stems whose count is at least the first COUNT),\n"
        "    OUT_PREFIX2.dic... and one more with the other stems; the counts come from\n"
        "    Collatinus's lemmes.la, or are 1 for each word of a plain list\n"
        "  make_dictionary school-stems IN.dic OUT.dic\n"
        "    keeps the first of the Latin dictionary's spellings, the school one\n"
        "  make_dictionary admitted LANGUAGE TIER...\n"
        "    prints the admitted words of the tiers once each, in lower case\n"
        "  make_dictionary wordnet-abbreviations WORDNET_DIR COMMON_LIST SOURCE[,SOURCE]\n"
        "    prints the abbreviations of the English sources that WordNet shows\n"
        "  make_dictionary list FILE\n"
        "    prints the words of a dictionary file, one a line, for review\n"
        "  make_dictionary whitaker-setup\n"
        "    prints the answers that set whitakers-words up for latin-check\n"
        "  make_dictionary latin-check WORDS RUNS LEMMAS ACCEPTED REFUSED LEMMES USE\n"
        "    keeps the WORDS whose whitakers-words analysis is classical and decent;\n"
        "    RUNS is a folder of NAME.words (the words of a run) and NAME.out (its output);\n"
        "    LEMMAS has lines \"rude HEADWORD...\", \"decent HEADWORD...\" and\n"
        "    \"common HEADWORD...\" (capitalised headwords that are common nouns too) and\n"
        "    \"archaic HEADWORD...\" (archaic spellings WORDS does not mark);\n"
        "    writes to USE how much each kept word is used (Collatinus's LEMMES counts)\n"
        "  make_dictionary use-counts LANGUAGE FORMS_LEMMAS TOKEN_COUNTS HEADWORDS\n"
        "    prints \"WORD<TAB>USE\" for every word the lemma counts over a text give\n"
        "  make_dictionary build LANGUAGE NOTICE OUT [OPTION]... TIER...\n"
        "    LANGUAGE  1 (Italian), 2 (English) or 3 (Latin)\n"
        "    NOTICE    the description, ASCII; {count} stands for the number of words;\n"
        "              the maker's notice with our addresses follows it\n"
        "    --block=LIST    a plain UTF-8 list of words to leave out (slurs, obscenities)\n"
        "    --own=FILE      our own list of \"block LANGS word\" and \"allow LANGS word\"\n"
        "    --refused=FILE  writes the words left out, with the reason, for review\n"
        "    --names=LIST    names, refused unless a trusted tier has them\n"
        "    --abbreviations=LIST  abbreviations, refused\n"
        "    --only=LIST     the only words that may pass (checked by another tool)\n"
        "    --use=LIST      lines \"WORD<TAB>USE\", WORD in capitals: a full length keeps\n"
        "                    the most used\n"
        "    --trusted=N     the first N tiers are curated: names and the Italian\n"
        "                    spelling rule do not overrule them\n"
        "    TIER      one or more UTF-8 word lists joined by commas; earlier tiers win\n"
        "              when a length has more words than the editor can hold\n",
        stderr);
    return 2;
}

int fail(const std::string& message) {
    std::fprintf(stderr, "make_dictionary: %s\n", message.c_str());
    return 1;
}

int trimAffixFile(const std::string& language, const std::string& in, const std::string& out) {
    AffixRules rules;
    if (language == "italian")
        rules = italianAffixRules();
    else if (language == "latin")
        rules = latinAffixRules();
    else
        return usage();
    const auto text = readWholeFile(in);
    if (!text) return fail("cannot read " + in);
    const AffixTrim trim = trimAffixes(*text, rules);
    if (!writeFileAtomically(out, trim.text)) return fail("cannot write " + out);
    std::printf("%s: %zu affix entries kept, %zu dropped\n", out.c_str(), trim.kept, trim.dropped);
    return 0;
}

// The words of each file in a comma-separated list, one a line.
bool forEachLine(const std::string& files, const std::function<void(std::string_view)>& take) {
    std::stringstream names(files);
    std::string name;
    while (std::getline(names, name, ',')) {
        const auto text = readWholeFile(name);
        if (!text) {
            fail("cannot read " + name);
            return false;
        }
        std::stringstream in(*text);
        std::string line;
        while (std::getline(in, line)) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            take(line);
        }
    }
    return true;
}

const char* reasonText(Refusal refusal) {
    switch (refusal) {
    case Refusal::Listed:
        return "listed";
    case Refusal::NoVowel:
        return "no vowel";
    case Refusal::RomanNumeral:
        return "Roman numeral";
    case Refusal::Name:
        return "name";
    case Refusal::NotItalian:
        return "not Italian spelling";
    case Refusal::Truncated:
        return "cut short";
    case Refusal::NotChecked:
        return "not classical";
    case Refusal::Abbreviation:
        return "abbreviation";
    case Refusal::None:
        break;
    }
    return "";
}

// The description, then the maker's notice with the addresses of the program's own links.
std::string noticeText(std::string description, std::size_t count) {
    const std::size_t mark = description.find("{count}");
    if (mark != std::string::npos) description.replace(mark, 7, std::to_string(count));
    return description + " A cura di Il Griglione: " + kSitoWebTesto + ", " + kEmailAutore + ".";
}

int buildDictionary(int argc, char** argv) {
    const std::string number = argv[2];
    if (number != "1" && number != "2" && number != "3") return usage();
    const auto language = static_cast<Language>(std::stoi(number));
    const std::string out = argv[4];

    WordExclusion exclusion(language);
    WordSelection selection;
    std::string refusedFile;
    std::size_t trusted = 0;
    int next = 5;
    for (; next < argc && std::string_view(argv[next]).starts_with("--"); ++next) {
        const std::string option = argv[next];
        const std::size_t equals = option.find('=');
        const std::string name = option.substr(0, equals);
        const std::string value = equals == std::string::npos ? "" : option.substr(equals + 1);
        bool read = true;
        if (name == "--block") {
            read = forEachLine(value, [&](std::string_view w) { exclusion.block(w); });
        } else if (name == "--names") {
            read = forEachLine(value, [&](std::string_view w) { exclusion.name(w); });
        } else if (name == "--abbreviations") {
            read = forEachLine(value, [&](std::string_view w) { exclusion.abbreviation(w); });
        } else if (name == "--only") {
            std::set<std::string> checked;
            read = forEachLine(value, [&](std::string_view w) { checked.emplace(w); });
            exclusion.restrictTo(std::move(checked));
        } else if (name == "--own") {
            const auto text = readWholeFile(value);
            if (!text) return fail("cannot read " + value);
            for (const int line : exclusion.readList(*text))
                std::fprintf(stderr, "%s:%d: not an entry\n", value.c_str(), line);
        } else if (name == "--use") {
            std::map<std::string, long> use;
            read = forEachLine(value, [&](std::string_view line) {
                const std::size_t tab = line.find('\t'); // the word is in capitals already
                if (tab != std::string_view::npos)
                    use[std::string(line.substr(0, tab))] =
                        std::stol(std::string(line.substr(tab + 1)));
            });
            selection.setUse(std::move(use));
        } else if (name == "--refused") {
            refusedFile = value;
        } else if (name == "--trusted") {
            trusted = std::stoul(value);
        } else {
            return usage();
        }
        if (!read) return 1;
    }
    if (next == argc) return usage();
    std::printf("  %zu words and forms blocked\n", exclusion.blockedCount());

    // Every tier is read before any word is judged: a compound of a blocked word is found by
    // its second half, which may come from any source.
    std::vector<std::vector<std::string>> tiers;
    std::vector<std::size_t> lineCounts;
    std::set<std::string> vocabulary;
    for (int i = next; i < argc; ++i) {
        std::vector<std::string>& words = tiers.emplace_back();
        std::size_t& lines = lineCounts.emplace_back(0);
        const bool read = forEachLine(argv[i], [&](std::string_view line) {
            ++lines;
            if (auto word = admitWord(line, language))
                words.push_back(std::move(*word));
            else if (auto longer = foldedCapitals(line); longer && longer->size() == 11)
                vocabulary.insert(std::move(*longer)); // PARTICOLARE shows PARTICOLAR cut short
        });
        if (!read) return 1;
        vocabulary.insert(words.begin(), words.end());
    }
    exclusion.setVocabulary(std::move(vocabulary));

    std::map<std::string, Refusal> refused;
    for (std::size_t i = 0; i < tiers.size(); ++i) {
        std::vector<std::string> words;
        for (std::string& word : tiers[i]) {
            if (const Refusal why = exclusion.refusal(word, i < trusted); why != Refusal::None)
                refused.emplace(std::move(word), why);
            else
                words.push_back(std::move(word));
        }
        const WordLists before = selection.lists();
        const std::size_t taken = selection.addTier(words);
        const WordLists after = selection.lists();
        std::printf("  tier %zu: %zu of %zu lines admitted, %zu new words taken; by length:", i + 1,
                    words.size(), lineCounts[i], taken);
        for (std::size_t k = 0; k < after.size(); ++k)
            std::printf(" %zu", after[k].size() - before[k].size());
        std::printf("\n");
    }
    const WordLists lists = selection.lists();
    std::printf("  %zu words refused\n", refused.size());
    if (!refusedFile.empty()) {
        std::string text;
        for (const auto& [word, why] : refused) // a word another tier brought in is not listed
            if (!selection.contains(word)) text += word + '\t' + reasonText(why) + '\n';
        // The words a full length left out, with their rank among the new words of their tier
        // and length (most used first) and their use.
        for (const auto& [word, cut] : selection.cut())
            text += word + "\tcut: rank " + std::to_string(cut.rank) + " of " +
                    std::to_string(cut.of) + ", use " + std::to_string(cut.use) + '\n';
        if (!writeFileAtomically(refusedFile, text)) return fail("cannot write " + refusedFile);
    }

    const std::string notice = noticeText(argv[3], selection.size());
    if (notice.size() > static_cast<std::size_t>(kNoticeLength))
        return fail("the notice has " + std::to_string(notice.size()) + " characters, more than " +
                    std::to_string(kNoticeLength) + ": " + notice);
    if (std::any_of(notice.begin(), notice.end(),
                    [](char c) { return c < ' ' || static_cast<unsigned char>(c) > 126; }))
        return fail("the notice must be printable ASCII");

    const std::string file = buildDictionaryFile(notice, lists);
    if (file.empty()) return fail("too many words: a position would pass 9,999,999");
    if (!writeFileAtomically(out, file)) return fail("cannot write " + out);

    // One row of the table in tools/README.md.
    std::printf("%s: %zu bytes\n| %s |", out.c_str(), file.size(), number.c_str());
    for (const auto& words : lists)
        std::printf(" %zu |", words.size());
    std::printf(" %zu |\n", selection.size());
    return 0;
}

int schoolStems(const std::string& in, const std::string& out) {
    const auto text = readWholeFile(in);
    if (!text) return fail("cannot read " + in);
    const std::string stems = schoolSpellingStems(*text);
    if (!writeFileAtomically(out, stems)) return fail("cannot write " + out);
    std::printf("%s: %zu stem lines kept\n", out.c_str(),
                static_cast<std::size_t>(std::count(stems.begin(), stems.end(), '\n')));
    return 0;
}

// The admitted words of the tiers, each once, in lower case, for an outside checker.
int admittedWords(int argc, char** argv) {
    const std::string number = argv[2];
    if (number != "1" && number != "2" && number != "3") return usage();
    const auto language = static_cast<Language>(std::stoi(number));
    std::set<std::string> words;
    for (int i = 3; i < argc; ++i)
        if (!forEachLine(argv[i], [&](std::string_view line) {
                if (auto word = admitWord(line, language)) words.insert(std::move(*word));
            }))
            return 1;
    for (std::string word : words) {
        std::transform(word.begin(), word.end(), word.begin(),
                       [](char c) { return static_cast<char>(c - 'A' + 'a'); });
        std::puts(word.c_str());
    }
    return 0;
}

// Reads a whole file without readWholeFile's cap (WORDS's analyses run to some 140 MB).
std::optional<std::string> readLargeFile(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    std::optional<std::string> text =
        in ? std::optional(std::string(std::istreambuf_iterator<char>(in), {})) : std::nullopt;
    return in.bad() ? std::nullopt : text;
}

int latinCheck(const std::string& wordFile, const std::string& runsFolder,
               const std::string& lemmaFile, const std::string& acceptedFile,
               const std::string& refusedFile, const std::string& lemmesFile,
               const std::string& useFile) {
    const auto lemmes = readWholeFile(lemmesFile);
    if (!lemmes) return fail("cannot read " + lemmesFile);
    const auto lemmaCounts = latinLemmaCounts(*lemmes);
    std::vector<std::string> words;
    if (!forEachLine(wordFile, [&](std::string_view w) { words.emplace_back(w); })) return 1;
    WhitakerRules rules;
    rules.lemmaCounts = lemmaCounts;
    const bool lemmas = forEachLine(lemmaFile, [&](std::string_view line) {
        std::istringstream in{std::string(line.substr(0, line.find('#')))};
        std::string kind, lemma;
        in >> kind;
        while (in >> lemma)
            (kind == "rude"      ? rules.rudeLemmas
             : kind == "common"  ? rules.commonNames
             : kind == "archaic" ? rules.archaicLemmas
                                 : rules.decentLemmas)
                .insert(lemma);
    });
    if (!lemmas) return 1;
    // Each run of WORDS left NAME.words (its words, one a line) and NAME.out (its output); a
    // remake only runs it on the forms no run has seen.
    std::vector<std::filesystem::path> runs;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(runsFolder, error))
        if (entry.path().extension() == ".words") runs.push_back(entry.path());
    std::sort(runs.begin(), runs.end());
    std::vector<std::string> outputs;
    outputs.reserve(runs.size());
    std::map<std::string, std::string_view> analysis;
    for (const auto& run : runs) {
        std::vector<std::string> ran;
        if (!forEachLine(run.string(), [&](std::string_view w) { ran.emplace_back(w); })) return 1;
        auto output = readLargeFile(std::filesystem::path(run).replace_extension(".out"));
        if (!output) continue; // a run cut short: its words go to WORDS again
        const std::string& kept = outputs.emplace_back(std::move(*output));
        const auto blocks = whitakerBlocks(kept, ran.size());
        if (blocks.empty()) return fail(run.string() + " has not one analysis per word");
        for (std::size_t i = 0; i < ran.size(); ++i)
            analysis.emplace(ran[i], blocks[i]);
    }
    static const char* const names[] = {"classical", "unknown", "not classical", "rude"};
    std::size_t counts[4] = {};
    std::string accepted, refused, use;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto found = analysis.find(words[i]);
        if (found == analysis.end()) return fail(words[i] + " has no analysis in " + runsFolder);
        const std::string_view block = found->second;
        const LatinVerdict verdict = judgeWhitakerBlock(block, rules);
        ++counts[static_cast<int>(verdict)];
        std::string capitals = words[i];
        std::transform(capitals.begin(), capitals.end(), capitals.begin(),
                       [](char c) { return static_cast<char>(c >= 'a' ? c - 'a' + 'A' : c); });
        if (verdict == LatinVerdict::Classical) {
            accepted += capitals + '\n';
            use += capitals + '\t' + std::to_string(latinUse(block, rules, lemmaCounts)) + '\n';
        } else
            refused += capitals + '\t' + names[static_cast<int>(verdict)] + '\n';
    }
    if (!writeFileAtomically(acceptedFile, accepted)) return fail("cannot write " + acceptedFile);
    if (!writeFileAtomically(refusedFile, refused)) return fail("cannot write " + refusedFile);
    if (!writeFileAtomically(useFile, use)) return fail("cannot write " + useFile);
    for (int k = 0; k < 4; ++k)
        std::printf("  %s: %zu\n", names[k], counts[k]);
    return 0;
}

int useCounts(char** argv) {
    const std::string number = argv[2];
    if (number != "1" && number != "2" && number != "3") return usage();
    std::string texts[3];
    for (int i = 0; i < 3; ++i) {
        std::ifstream in(argv[3 + i], std::ios::binary); // may pass readWholeFile's cap
        if (!in) return fail(std::string("cannot read ") + argv[3 + i]);
        texts[i].assign(std::istreambuf_iterator<char>(in), {});
    }
    for (const auto& [word, use] :
         lemmaUse(texts[0], texts[1], texts[2], static_cast<Language>(std::stoi(number))))
        std::printf("%s\t%ld\n", word.c_str(), use);
    return 0;
}

int wordNetAbbreviations(const std::string& folder, const std::string& commonList,
                         const std::string& sources) {
    WordNetLexicon lexicon;
    for (const char* part : {"noun", "verb", "adj", "adv"}) {
        const auto data = readWholeFile(folder + "/data." + part);
        const auto exceptions = readWholeFile(folder + "/" + part + ".exc");
        if (!data || !exceptions) return fail("cannot read WordNet's files in " + folder);
        lexicon.addDataFile(*data);
        lexicon.addExceptions(*exceptions);
    }
    std::set<std::string> common, words;
    const auto lowerWord = [](std::string_view line) {
        return line.size() >= 3 && line.size() <= 10 &&
               std::all_of(line.begin(), line.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    };
    if (!forEachLine(commonList, [&](std::string_view w) { common.emplace(w); }) ||
        !forEachLine(sources, [&](std::string_view w) {
            if (lowerWord(w)) words.emplace(w);
        }))
        return 1;
    for (const std::string& word :
         lexicon.abbreviations(std::vector<std::string>(words.begin(), words.end()), common))
        std::puts(word.c_str());
    return 0;
}

int listWords(const std::string& name) {
    const auto file = readWholeFile(name);
    if (!file) return fail("cannot read " + name);
    const DictionaryIndex index = parseIndex(*file);
    for (int length = kMinWordLength; length <= kMaxWordLength; ++length)
        for (std::int32_t k = 0; k < index.contaGruppo(length); ++k) {
            const std::size_t at = static_cast<std::size_t>(index.inizioGruppo(length)) - 1 +
                                   static_cast<std::size_t>(k * length);
            if (at + static_cast<std::size_t>(length) > file->size())
                return fail(name + " is cut short");
            std::printf("%s\n", file->substr(at, static_cast<std::size_t>(length)).c_str());
        }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 5 && std::string(argv[1]) == "trim-affixes")
        return trimAffixFile(argv[2], argv[3], argv[4]);
    if (argc == 4 && std::string(argv[1]) == "school-stems") return schoolStems(argv[2], argv[3]);
    if (argc >= 6 && std::string(argv[1]) == "build") return buildDictionary(argc, argv);
    if (argc >= 4 && std::string(argv[1]) == "admitted") return admittedWords(argc, argv);
    if (argc == 5 && std::string(argv[1]) == "wordnet-abbreviations")
        return wordNetAbbreviations(argv[2], argv[3], argv[4]);
    if (argc == 3 && std::string(argv[1]) == "list") return listWords(argv[2]);
    if (argc == 2 && std::string(argv[1]) == "whitaker-setup") {
        std::fputs(whitakerSetup().c_str(), stdout);
        return 0;
    }
    if (argc == 9 && std::string(argv[1]) == "latin-check")
        return latinCheck(argv[2], argv[3], argv[4], argv[5], argv[6], argv[7], argv[8]);
    if (argc == 6 && std::string(argv[1]) == "use-counts") return useCounts(argv);
    return usage();
}
