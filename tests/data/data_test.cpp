#include "core/addresses.h"
#include "core/atomic_file.h"
#include "dictionary/dictionary_format.h"
#include "tools/dictionaries/affix_trim.h"
#include "tools/dictionaries/stem_ranking.h"
#include "tools/dictionaries/word_exclusion.h"
#include "tools/dictionaries/word_filter.h"
#include "tools/dictionaries/word_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>

namespace griglione {
namespace {

// Trimming Hunspell affix files before expansion: which entries go, which stay, and the file
// that is left (class counts, empty classes, untouched lines).

// Trims the file made of the lines and checks each entry marked + (kept) or - (dropped); the
// other lines, headers among them, are checked apart. Returns the lines of the result.
std::vector<std::string> trimmedLines(const std::vector<std::string>& file,
                                      const AffixRules& rules) {
    std::string text;
    for (const std::string& line : file)
        text += (line[0] == '+' || line[0] == '-' ? line.substr(1) : line) + '\n';
    std::vector<std::string> out;
    std::stringstream in(trimAffixes(text, rules).text);
    for (std::string line; std::getline(in, line);)
        out.push_back(line);
    for (const std::string& line : file) {
        if (line[0] != '+' && line[0] != '-') continue;
        EXPECT_EQ(std::find(out.begin(), out.end(), line.substr(1)) != out.end(), line[0] == '+')
            << line;
    }
    return out;
}

bool has(const std::vector<std::string>& all, const std::string& line) {
    return std::find(all.begin(), all.end(), line) != all.end();
}

TEST(AffixTrim, ItalianDropsEncliticPronounsAndKeepsTheTensesThatLookLikeThem) {
    const auto out = trimmedLines(
        {"SET UTF-8", "PFX T Y 2", "-PFX T 0 l' [aeiou]", "+PFX T 0 ri .", // elided article
         "SFX A Y 8", "+SFX A are o are", "+SFX A re 0 are", "+SFX A re vo are", "+SFX A re va are",
         // mangiavi: imperfect beside mangiavo, mangiava; mangiate: "te" alone is no pronoun;
         // mangiamo + ci goes.
         "+SFX A re vi are", "+SFX A re te are", "+SFX A are iamo are", "-SFX A are iamoci are",
         // mangia + mi goes, "mangia" coming from class A.
         "SFX G Y   2", "+SFX G are ando are", "-SFX G re mi are",
         // finiti: participle beside finito, finita.
         "SFX t Y 4", "+SFX t re to ire", "+SFX t re ta ire", "+SFX t re ti ire",
         "-SFX t re tolo ire",
         // traduci: "ci" after a strip is an ending; pone.
         "SFX V Y 3", "+SFX V rre co urre", "+SFX V rre ci urre", "+SFX V rre ne orre",
         // Gerund + mi: a class of nothing else goes whole; Roman numerals.
         "SFX D Y 2", "-SFX D 0 mi ndo", "-SFX D 0 melo ndo", "SFX £ Y 1", "-SFX £ 0 i [ivx]"},
        italianAffixRules());
    EXPECT_TRUE(has(out, "SET UTF-8") && has(out, "PFX T Y 1") && has(out, "SFX A Y 7"));
    EXPECT_FALSE(has(out, "SFX D Y 0") || has(out, "SFX D Y 2")); // an emptied class goes whole
}

TEST(AffixTrim, LatinDropsQueNeVeAndContractedPerfectsAndLeavesOtherLinesAlone) {
    const auto out = trimmedLines(
        // Nothing but -que, whatever it strips.
        {"SFX a Y 6", "+SFX a a a a", "+SFX a a ae a", "-SFX a a aque a", "-SFX a a ane a",
         "-SFX a a aue a", "-SFX a us que us [^i]us",
         // The ligature is the ending ae; legione, ablative, takes -que itself.
         "SFX d Y 6", "+SFX d o o o", "+SFX d o ae o", "-SFX d o æque o", "+SFX d o one o",
         "-SFX d o oneque o", "-SFX d o ove o",
         // consilui would give consilusti; a twin only under the same condition; amavi → amasti
         // is right.
         "SFX P Y 10", "+SFX P i isti i", "-SFX P i sti i", "+SFX P i erunt i", "-SFX P i runt i",
         "+SFX P i runt [^v]i", "+SFX P vi sti vi",
         // amavit, not amait; audiit beside audivit is right.
         "+SFX P o avit o", "-SFX P o ait o", "+SFX P o ivit o", "+SFX P o iit o",
         // tenete is no contraction of tenetve, which is tenet + ve.
         "SFX B Y 3", "+SFX B o t eo", "-SFX B o tve eo", "+SFX B o te eo"},
        latinAffixRules());
    EXPECT_TRUE(has(out, "SFX a Y 2") && has(out, "SFX d Y 3") && has(out, "SFX P Y 7"));
    // Other lines and Windows line ends are left alone.
    const std::string text = "TRY abc\r\nSFX x Y 2\r\nSFX x 0 s .\r\nSFX x 0 sque .\r\nREP 0";
    EXPECT_EQ(trimAffixes(text, latinAffixRules()).text,
              "TRY abc\r\nSFX x Y 1\r\nSFX x 0 s .\r\nREP 0");
    EXPECT_EQ(trimAffixes("", latinAffixRules()).text, "");
}

// The dictionaries and the word rules shipped in data/: exactly what the game's own writer makes
// of sorted words of the language, within the editor's limits, with the words each rule of
// tools/README.md keeps and without those it refuses.

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
        {Language::Italian, 130'000}, {Language::English, 85'000}, {Language::Latin, 140'000}};
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
        {1, "ECCO", "HTTP TBC ECC ETC ING"},
        {2, "HMM CWM GYM MYTH SKY ADZ CORPS ZOO", "MPH LTD ADJ AVG HWY QTY ZOOL OCEANOG"},
        {3, "LYNX", "PLT ETC"},
        // Roman numerals, unless they are words too.
        {2, "MIX CIVIL LIVID", "XIV XXXVIII"},
        {3, "DII", "VII"},
        // Latin: one spelling, U for the vowel and V for the consonant, no -ait perfects.
        {3, "TUA DUO SILVA VIVUS SERVUS VOLVERIT", "TVA DVO INFLVA DOMINVS AMAUIT"},
        {3, "AMAVIT AIT AUDIIT LEGIONEM ROSARUM", "AMAIT ROSAQUE"},
        // Derived forms and compounds of a list word; abbreviations by WordNet.
        {2, "SHAGGY COCKPIT CUNNING GYPSUM PRETTY", "WANKED WHORING SHITTIER BITCHED CRAPPING"},
        {2, "CRYSTAL SYSTEM", "ASAP AKA AWOL CRYST SYST SYND ARCHEOL"},
        // Italian: common long words ranked by Morph-it; names, un-Italian words, shortened
        // infinitives, insults out.
        {1, "MAGLIETTA CARAMELLA PALLONCINI CILIEGIE RAGAZZINI MERENDINE BAR TRAM",
         "ORGOSOLO BUSSOLENO UEMURA ARANDA PARRILLO ASPASIA SENHAL TIME BRIDGE QUIMADO"},
        {1, "BACIARE ARDIRE", "PASTRANA PROCACIA BACIAR ARDIR DONAR VAFFA PUTTANELLA NEGROIDE"},
        // Latin checked by whitakers-words: textbook forms in, non-forms, K and obscenities out.
        {3, "TENETE HABETE VIDETE VALETE SALVETE POSSUMUS POTESTIS POSSUNT POTERAT VOLUMUS",
         "FERRAM ADMOT IUGAM PLEBO TULAR NOCEANTUR KARUS KASA FUTUITE IRRUMA PEDICEM CULAT"},
        {3, "VOLEBAM NOLUMUS PARAVIT PARABAT SECUTUS LOCUTUS PULCHER PULCHRIOR MAGISTRI", ""},
        {3, "PUERORUM FORTITUDO MAVULT TULIT EUNT MELIOR ALTIOR MUTO ARVUM NERVUS MEI", ""},
        // Italian: a verb's forms only as a lexicon lists them, none cut short by poetry but the
        // ordinary apocopes; common long words kept by use.
        {1, "PRESE SCOSSI CONCORSI OBBEDISCO ESCO ODO AVREI SAREI CADREBBE BUON GRAN",
         "PRENDEI METTETTE SCRIVETTE CHIEDETTE NASCETTE PIACETTE ESSEI ESSERONO AVETTE AVEREI"},
        {1, "SIGNOR VUOL BAR FILM CARAMELLA PRENDEMMO",
         "SAPEREI VEDEREI ESSERAI CADEREBBE OBBEDO SUBO SPEDONO UBBIDO USCO UDO SAPONO"},
        {1, "",
         "VOLONO SCUOTETTI CONCORREI SCONFIGGEI INGOBBO SPIRITUAL RAGION EME SPICCACE DICON"},
        {1, "",
         "DOVEVAN FACEVAN SARAN ABBIAN STAN CUOR MUOR ONOR ODOR ANCOR CIEL PARTICOLAR EGUAL"},
        {1, "", "FRAL DIR FAR AVER APPENNINO APPENNINI MONGOLIA"},
        {2, "FARTHER SHEENIER", "SHEENY MONGOLOID MONGOLOIDS MONGOLISM MONGOL MONGOLS JEW JEWED"},
        {2, "", "TTYS SCHMUCK NOOKY FART FARTS"},
        // Latin: every textbook form, at every length; no archaic gerundive or infinitive, no
        // active deponent, no passive of a semi-deponent or of a verb without object.
        {3, "DEI DEO DEOS DEORUM IDEM EIUSDEM EANDEM EISDEM MIROR NOSTRUM NOSTRAM NOSTRIS NOSTROS",
         "ABDUCUNDA DIFFERUNDE REFUGIER IMPELLIER MENTIUNT HORTAT SEQUIT NASCIT PATIT AUDEBATUR"},
        {3, "NOSTRORUM ILLORUM IPSORUM QUAEDAM QUODDAM QUENDAM ALIQUID NULLIUS ALTERIUS MILIBUS",
         "FIDOR PATENTUR CAREMUR VENIOR PLACEOR LICETOTE VOLABIMUR EGEBAMINI"},
        {3, "VERITUS HORTATUS EGREDIOR MORITURUS MEMENTO IUBEBAT IUSSERUNT IACIUNT CONIECIT", ""},
        {3, "PARABANT PARAVERAT PARAVERUNT AUDIREMUS SCIREMUS HORTATUR SEQUITUR VENITUR CARET", ""},
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

// Common Italian verbs whose forms the regular endings get wrong, by the way they go wrong:
// a strong past (presi, not prendei or prendetti), a future without its vowel (avrò, not
// averò), -isc- in the present (obbedisco, not obbedo), another stem in the present (esco, not
// usco). The wrong forms are made by rule and none may be in the Italian dictionary.
TEST(ShippedDictionary, HasNoRegularFormOfAnIrregularItalianVerb) {
    const std::pair<const char*, const char*> verbs[] = {
        {"RF", "AVERE ESSERE SAPERE VEDERE VIVERE CADERE TENERE VALERE RIMANERE OTTENERE"},
        {"RF", "MANTENERE SOSTENERE CONTENERE PREVEDERE"},
        {"R", "VOLERE PARERE DOLERE"}, // their regular futures are those of volare, parare...
        {"F", "DOVERE GODERE VENIRE DIVENIRE AVVENIRE CONVENIRE INTERVENIRE PROVENIRE SVENIRE"},
        {"F", "APPARTENERE TRATTENERE RIVEDERE"},
        {"R", "PRENDERE METTERE SCRIVERE CHIEDERE NASCERE PIACERE RISPONDERE LEGGERE CONOSCERE"},
        {"R", "DECIDERE RIDERE CORRERE CHIUDERE DIVIDERE MUOVERE PIANGERE ROMPERE SCEGLIERE"},
        {"R", "SPEGNERE SPINGERE BERE CRESCERE GIUNGERE PORGERE RAGGIUNGERE SCENDERE SORRIDERE"},
        {"R", "SOSPENDERE SPENDERE TACERE TINGERE TOGLIERE TORCERE UCCIDERE VINCERE VOLGERE"},
        {"R", "ASSUMERE DIPINGERE DISCUTERE DISTINGUERE ESPRIMERE FINGERE FRIGGERE MORDERE"},
        {"R", "NASCONDERE OFFENDERE PERSUADERE PROTEGGERE RADERE REGGERE SCUOTERE SCONFIGGERE"},
        {"R", "SPARGERE STRINGERE TENDERE EMERGERE ACCENDERE AGGIUNGERE APPENDERE ATTENDERE"},
        {"R", "COMPRENDERE CONVINCERE CORREGGERE COSTRINGERE DELUDERE DIFENDERE DIRIGERE"},
        {"R", "DIPENDERE DISTRUGGERE ELEGGERE ESCLUDERE ESTENDERE EVADERE ILLUDERE INCLUDERE"},
        {"R", "INTERROMPERE INVADERE OCCORRERE PERCORRERE PROMETTERE RICHIEDERE RICONOSCERE"},
        {"R", "RIPRENDERE SCIOGLIERE SOCCORRERE SORPRENDERE STENDERE SVOLGERE CONCORRERE"},
        {"R", "COGLIERE COINCIDERE CONDIVIDERE"},
        {"I", "OBBEDIRE SUBIRE SUGGERIRE SPEDIRE UBBIDIRE CAPIRE FINIRE PREFERIRE PULIRE"},
        {"I", "COLPIRE COSTRUIRE DISTRIBUIRE FORNIRE GESTIRE GUARIRE IMPEDIRE INSERIRE ISTRUIRE"},
        {"I", "PUNIRE REAGIRE RESTITUIRE RIFERIRE SPARIRE STABILIRE SOSTITUIRE TRADIRE UNIRE"},
        {"I", "TRASFERIRE AGIRE ARRICCHIRE CHIARIRE DEFINIRE DEMOLIRE DIMINUIRE ESAURIRE"},
        {"I", "FAVORIRE FERIRE FIORIRE GARANTIRE IMPAZZIRE INFLUIRE PERCEPIRE PROIBIRE RAPIRE"},
        {"I", "SMARRIRE STUPIRE ADERIRE ATTRIBUIRE CONTRIBUIRE CUSTODIRE DIGERIRE FALLIRE"},
        {"I", "GRADIRE INGERIRE INTUIRE RIUNIRE SEPPELLIRE ZITTIRE"},
        {"P", "USCIRE UDIRE SALIRE MORIRE SEDERE GIACERE"},
    };
    // Regular endings that are words of their own: nouns (capo, forno, colpo, cadetti), another
    // verb (sparo, salo, fallano, ridette of ridire, suggerò of suggere), adjectives (zitto).
    const std::set<std::string> words = {
        "CAPO",      "FINO",    "UNO",    "AGO",     "GESTO",   "FORNO",    "COLPO",   "SPARO",
        "VOLO",      "SALO",    "MORO",   "SEDO",    "PARO",    "DOLO",     "TACO",    "VEDETTE",
        "CORRETTE",  "FERO",    "BEI",    "CADETTI", "CADETTE", "CORRETTI", "RIDETTI", "RIDETTE",
        "RIDETTERO", "SUGGERO", "CAPONO", "CAPANO",  "SPARANO", "CHIARO",   "IMPAZZO", "IMPAZZANO",
        "RAPO",      "RAPANO",  "FALLO",  "FALLANO", "GRADO",   "ZITTO"};
    const std::map<char, std::vector<const char*>> endings = {
        {'R', {"EI", "ETTI", "ETTE", "ETTERO", "ERONO"}},
        {'F', {"AI", "EMO", "ETE", "ANNO", "EI", "ESTI", "EBBE", "EMMO", "ESTE", "EBBERO"}},
        {'I', {"O", "ONO", "ANO"}},
        {'P', {"O", "ONO"}}};
    const std::string file = shippedFile(1);
    std::size_t tried = 0;
    for (const auto& [kinds, list] : verbs) {
        std::istringstream in(list);
        for (std::string verb; in >> verb;) {
            const std::string stem = verb.substr(0, verb.size() - 3); // PREND(ERE)
            for (const char kind : std::string(kinds)) {
                // The future keeps the infinitive less its final E: AVER-AI, VENIR-EI.
                const std::string base = kind == 'F' ? verb.substr(0, verb.size() - 1) : stem;
                for (const char* ending : endings.at(kind)) {
                    const std::string wrong = base + ending;
                    if (wrong.size() < 3 || wrong.size() > 10 || words.contains(wrong)) continue;
                    const auto block = wordsOf(file, static_cast<int>(wrong.size()));
                    EXPECT_FALSE(std::binary_search(block.begin(), block.end(), wrong))
                        << wrong << " of " << verb;
                    ++tried;
                }
            }
        }
    }
    EXPECT_GT(tried, 600u);
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

// Reading Collatinus's lemma counts and splitting Hunspell stems into groups by them.

// Lines as lemmes.la writes them: quantity marks, combining breves, homograph numbers,
// radical lists, proper names, comments.
const char* const lemmes =
    "! lemmes.la\n!Version 1\nămo|amo|||as, are|809\n"
    "lĕgo|lego|lēg|lēct|is, ere, legi, lectum|619\nlēgo2|amo|||as, are|12\n"
    "lĕgĭo=lĕgĭō̆|miles|lĕgĭōn||onis, f.|1283\r\nĕo|eo|ĭ,īv|ĭt|is, ire, iui, itum|1447\n"
    "ā=ā,ăb,ābs|inv|||prép. + abl.|5874\nĂbās|ciuis|Ăbānt||antis, m.|5\n"
    "broken line\nvĭr|puer|||uiri, m.|2702\n";

TEST(StemRanking, CountsEveryFormAStemOfTheLemmaMayTake) {
    const auto counts = latinLemmaCounts(lemmes);
    const std::pair<const char*, long> cases[] = {
        {"AMO", 809},    {"LEGO", 619},      // the larger count of two homographs
        {"LEGI", 619},   {"LECTUM", 619},    // perfect and supine from the radicals
        {"LEGIO", 1283}, {"LEGIONIS", 1283}, // genitive from the radical
        {"II", 1447},    {"IVI", 1447},      {"ITUM", 1447}, {"ABS", 5874}, {"VIR", 2702}};
    for (const auto& [form, count] : cases)
        EXPECT_EQ(counts.contains(form) ? counts.at(form) : -1, count) << form;
    for (const char* form : {"ABAS", "LEGO2", "BROKEN LINE"}) // a proper name, a homograph number
        EXPECT_FALSE(counts.contains(form)) << form;
}

TEST(StemRanking, KeepsTheFirstSpellingOfTheLatinStems) {
    const std::string dic = "7\n# header\namo/APS\nZeus/q\n\nabacvs/b\nzythvm/c\nabauia/a\nuir/q\n";
    EXPECT_EQ(schoolSpellingStems(dic), "3\n# header\namo/APS\nZeus/q\n");
    EXPECT_EQ(schoolSpellingStems("2\nab\nzona\r\nAbas\n"), "2\nab\nzona\r\n");
    EXPECT_EQ(schoolSpellingStems(""), "0\n");
}

// Which source words become dictionary words: folding, refusals, alphabets, Latin spelling, the
// excluded words and their forms.

TEST(WordFilter, AdmitsFoldsAndRefusesSourceWords) {
    const Language it = Language::Italian, la = Language::Latin;
    // Folded: combining accents dropped, the length counted after folding.
    for (const auto& [source, expected] :
         {std::pair{"perché", "PERCHE"}, {"cafe\xCC\x81", "CAFE"}, {"piùùùùùùùù", "PIUUUUUUUU"}})
        EXPECT_EQ(admitWord(source, it).value_or(""), expected) << source;
    // Refused: a capital, accented or not, marks a name; too short, 11 letters; a cut UTF-8
    // sequence, a stray continuation byte, another script.
    for (const char* word :
         {"ÀNCORA", "dell'acqua", "mp3", "re", "abbassavate", "yoga", "\xC3", "ab\x80z", "слово"})
        EXPECT_FALSE(admitWord(word, it)) << word;
    // Latin in all 26 letters and in the school spelling, V for the consonant and U for the vowel;
    // both where a letter after a consonant and before a vowel can be either.
    for (const char* word : {"yoga", "amavit", "suavis", "silva", "silua", "divus", "vulgus"})
        EXPECT_TRUE(admitWord(word, la)) << word;
    for (const char* word : {"amauit", "uirum", "virvm", "amatv", "qvae", "iuuenis", "ivuisset"})
        EXPECT_FALSE(admitWord(word, la)) << word;
}

TEST(WordExclusion, RefusesListWordsWithTheirFormsWholeWordsOnlyUnlessAllowed) {
    WordExclusion english(Language::English), italian(Language::Italian);
    for (const char* word :
         {"slut", "bitch", "hussy", "dago", "spic", "shag", "whore", "gyp", "shit"})
        english.block(word);
    english.readList("allow en shaggy\nabbrev en pret cryst\n");
    english.setVocabulary({"HEAD", "SUM", "TY"});
    for (const char* word : {"NEGRO", "mona lisa", "fottere", "cagare", "pisciare", "chiavare"})
        italian.block(word); // a list in capitals; a phrase is no word
    italian.block("puttana");
    italian.setVocabulary({"SVANIRE", "BARE", "CUORE", "SARANNO", "BUONO", "TRAMA"});
    italian.name("orgosolo");
    WordExclusion latin(Language::Latin);
    latin.restrictTo({"AMO"});
    // Lines 5 and 6 are not understood.
    EXPECT_EQ(italian.readList("# comment\nblock it,la  crucco terrone # the rest is a comment\n"
                               "block en frocio\nallow * chiavare\r\nallow it\nkeep it casa\n"
                               "allow la,it brr vii\nallow it buon tram\n"),
              (std::vector<int>{5, 6}));
    const std::tuple<const WordExclusion&, const char*, Refusal> cases[] = {
        {english, "SLUT SLUTS BITCHES HUSSIES DAGOS DAGOES SPICS", Refusal::Listed},
        // Derived forms with doubled consonant, dropped E, Y as I; a compound of a list word of
        // four letters or more; an abbreviation stands alone.
        {english, "SHAGGED SHAGGING WHORING WHORISH BITCHIER SHITTIER SHITHEAD", Refusal::Listed},
        {english, "SPICES SWOP DAYS SHAGGY GYPSUM PRETTY CRYSTAL", Refusal::None},
        {english, "PRET CRYST", Refusal::Abbreviation},
        {italian, "PUTTANELLA PUTTANONE", Refusal::Listed},
        {latin, "AMAS", Refusal::NotChecked},
        {italian, "NEGRI CRUCCHI CRUCCA CRUCCHE TERRONI TERRONA", Refusal::Listed},
        {italian, "FOTTEI FOTTUTO CAGHERO CAGHI PISCIAMO PISCI", Refusal::Listed},
        {italian, "CRUCCI CAGERO PISCIIAMO FOTTERELLO MONA FROCIO", Refusal::None},
        {italian, "CHIAVARE CHIAVI BRR VII", Refusal::None}, // allowed, with their forms
        {italian, "TBC HTTP", Refusal::NoVowel},
        {english, "III XIV XXXVIII DIV MMMCMXCIX MIX CIV", Refusal::RomanNumeral},
        {english, "IIII IC VIIII CIVIL LIVID MILD DIM", Refusal::None},
    };
    for (const auto& [exclusion, list, refusal] : cases) {
        std::istringstream words(list);
        for (std::string word; words >> word;)
            EXPECT_EQ(exclusion.refusal(word), refusal) << word;
    }
    // A curated source keeps names and loanwords that end in a consonant; a cluster no Italian
    // word has is refused from every source.
    const std::tuple<const char*, bool, Refusal> italianCases[] = {
        {"ORGOSOLO", false, Refusal::Name},
        {"ORGOSOLO", true, Refusal::None},
        {"BACIAR", false, Refusal::NotItalian},
        {"BRIDGE", true, Refusal::NotItalian},
        {"QATAR", true, Refusal::NotItalian},
        {"BIANCHO", true, Refusal::NotItalian},
        {"BIANCHE", false, Refusal::None},
        {"QUASI", false, Refusal::None},
        // Cut short by poetry beside the whole word, from every source, unless allowed; BAR
        // beside BARE is one only to the rule.
        {"SVANIR", true, Refusal::Truncated},
        {"CUOR", true, Refusal::Truncated},
        {"SARAN", true, Refusal::Truncated},
        {"BAR", true, Refusal::Truncated},
        {"BUON", true, Refusal::None},
        {"TRAM", true, Refusal::None},
        {"SARA", true, Refusal::None}};
    for (const auto& [word, curated, refusal] : italianCases)
        EXPECT_EQ(italian.refusal(word, curated), refusal) << word << curated;
}

} // namespace
} // namespace griglione
