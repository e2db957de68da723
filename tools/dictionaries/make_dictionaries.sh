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
# Lemma counts that split the Latin stems into tiers (Collatinus's corpus counts).
latin_counts=1000,300,100,30,10,3,1

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Word lists and tools come from Debian packages; a tool already on the path (npm from
# Node's own packages, say) is used as it is.
missing=()
for p in witalian hunspell-it wamerican-large wbritish-large collatinus libgtest-dev; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" ||
        missing+=("$p")
done
for tool in unmunch:hunspell-tools npm:npm node:nodejs cmake:cmake ninja:ninja-build g++:g++ \
    iconv:libc-bin; do
    command -v "${tool%%:*}" >/dev/null || missing+=("${tool#*:}")
done
if [ ${#missing[@]} -gt 0 ]; then
    as_root apt-get update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y "${missing[@]}"
fi

version() { dpkg-query -W -f='${Version}' "$1"; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

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
(cd "$work" && for p in "$cuss_package" "$naughty_package"; do
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
# witalian first, then the forms of the stems it lists (all of mangiare, say), then the other
# stems as they stand, then their forms.
"$make_dictionary" split-stems list /usr/share/dict/italian /usr/share/hunspell/it_IT.dic \
    "$work/it-" 1
forms "$work/it-1.dic" "$work/it.aff" >"$work/it-forms-common.txt"
forms "$work/it-2.dic" "$work/it.aff" >"$work/it-forms-other.txt"
"$make_dictionary" build 1 \
    "Dizionario italiano: {count} parole da 3 a 10 lettere (witalian $(version witalian) GPL-3+, hunspell-it $(version hunspell-it) GPL-3)." \
    "$data/SLESSICO.1" --block="$work/offensive-it.txt" "$own" --refused="$build/refused-1.txt" \
    /usr/share/dict/italian "$work/it-forms-common.txt" \
    "$work/it-stems.txt" "$work/it-forms-other.txt"

echo "== English"
"$make_dictionary" build 2 \
    "Dizionario inglese: {count} parole da 3 a 10 lettere (SCOWL $(version wamerican-large): wamerican-large, wbritish-large; licenza SCOWL)." \
    "$data/SLESSICO.2" --block="$work/offensive-en.txt" "$own" --refused="$build/refused-2.txt" \
    /usr/share/dict/american-english-large,/usr/share/dict/british-english-large

echo "== Latin"
(cd "$work" && npm pack --silent "$latin_package" >/dev/null && tar xzf dictionary-la-*.tgz)
"$make_dictionary" trim-affixes latin "$work/package/index.aff" "$work/la.aff"
# One spelling: the stems as the school writes them, without their V-only and U-only twins.
"$make_dictionary" school-stems "$work/package/index.dic" "$work/la-school.dic"
# The stems in groups by the corpus count of their lemma, most frequent first: each group's
# forms make one tier, so common words keep all their forms when a length is full.
"$make_dictionary" split-stems lemmes /usr/share/collatinus/data/lemmes.la "$work/la-school.dic" \
    "$work/la-" "$latin_counts"
latin_tiers=()
for dic in $(ls "$work"/la-[0-9]*.dic | sort -V); do
    forms "$dic" "$work/la.aff" >"${dic%.dic}.txt"
    latin_tiers+=("${dic%.dic}.txt")
done
"$make_dictionary" build 3 \
    "Dizionario latino: {count} parole da 3 a 10 lettere (${latin_package/@/ } GPL-2+; ordine da Collatinus $(version collatinus) GPL)." \
    "$data/SLESSICO.3" "$own" --refused="$build/refused-3.txt" "${latin_tiers[@]}"

echo "== Word rules"
# Windows-1252 with CR LF after every line, as the game reads its text files.
# The English rules go with the English interface.
for rules in REGPAROL.TXT:regparol.txt.in REGPAROL_en.TXT:regparol_en.txt.in; do
    iconv -f UTF-8 -t WINDOWS-1252 "$here/${rules#*:}" | sed 's/$/\r/' >"$work/${rules%%:*}"
    mv "$work/${rules%%:*}" "$data/${rules%%:*}"
    echo "$data/${rules%%:*}: $(wc -l <"$data/${rules%%:*}") lines"
done
