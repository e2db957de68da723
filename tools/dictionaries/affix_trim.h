// Rewrites a Hunspell affix file before its words are expanded (unmunch), so that the expansion
// gives the plain forms a word game wants: no pronoun or particle glued to a full form
// (mangiandolo, portateglielo, rosaque), no elided articles (dell'acqua), no contracted Latin
// perfects that the affix file applies to every perfect stem, and no class named by the caller.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace griglione {

struct AffixRules {
    // Endings glued to a full form: a suffix that is another suffix of its class (same strip)
    // followed by one of these makes an enclitic form. A class made of nothing else goes whole.
    std::vector<std::string> enclitics;
    // A suffix that is an enclitic alone is one whatever it strips (Latin, where "-que" never
    // stands for an ending). Without it, only when nothing is stripped: Italian traduci, venne
    // end in "ci", "ne" after a strip and are plain verb forms.
    bool encliticAloneAfterAnyStrip = false;
    // Strips ending so mark a verb whose forms are spread over several classes: the full form
    // under an enclitic may come from any class (mangia|mi: "mi" in one class, "a" in another).
    std::vector<std::string> sharedStrips;
    // Endings that are a tense, not a pronoun, when the class also has the same suffix ending in
    // -o and -a: "vi" of the imperfect (mangiavi beside mangiavo, mangiava), "ti" of the
    // participle (andati beside andato, andata).
    std::vector<std::string> tenseEndings;
    // A suffix to which the class itself glues this enclitic is a full form, even when it looks
    // like one with an enclitic (Latin legione, the ablative, has legioneque beside it).
    std::string fullFormMarker;
    // Latin perfects: on a strip ending so, a suffix that is another suffix of the class (same
    // strip and condition) without its first i or e ("sti" beside "isti", "runt" beside
    // "erunt") is a contraction the file applies to every perfect stem, fitting or not
    // (consilui gives consilurunt); it is dropped. Empty: no such rule.
    std::string contractedStrip;
    // Latin perfects in -avi, -evi: a suffix that is another suffix of the class (same strip and
    // condition) without the V after its first letter ("ait" beside "avit") makes non-forms
    // (amait beside amavit); dropped. After an I the shorter form is real (audiit, audivit).
    bool contractedV = false;
    // Flags of classes dropped whole.
    std::vector<std::string> droppedFlags;
};

// The rules for hunspell-it: enclitic pronouns; Roman numerals (flags £ and $) dropped.
AffixRules italianAffixRules();
// The rules for the Latin dictionary: -que, -ne, -ve in both spellings; contractions.
AffixRules latinAffixRules();

struct AffixTrim {
    std::string text; // the affix file without the dropped entries, class counts corrected
    std::size_t kept = 0;
    std::size_t dropped = 0;
};

// Every prefix or suffix that adds anything but letters (an apostrophe) is dropped as well.
// Lines that are not affix entries pass unchanged; a class left empty loses its header too.
AffixTrim trimAffixes(std::string_view affixFile, const AffixRules& rules);

} // namespace griglione
