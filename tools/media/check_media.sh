#!/usr/bin/env bash
# Checks the pictures and sounds that make_media.sh writes: every file present under its exact
# name, pictures of the right kind and size beside a vector source of that size, sounds short, in
# the agreed format and click-free.
# Usage: tools/media/check_media.sh [folder, default data/ of this repository]
set -uo pipefail
export LC_ALL=C

HERE=$(cd "$(dirname "$0")" && pwd)
DIR=${1:-$HERE/../../data}

for tool in identify soxi sox awk md5sum; do
    command -v $tool >/dev/null ||
        { echo "check_media: $tool is missing (apt-get install -y imagemagick sox)" >&2; exit 2; }
done

failures=0
fail() {
    echo "check_media: $*" >&2
    failures=$((failures + 1))
}

# picture <file> <width> <height> [colour of the top-left pixel]
picture() {
    local f=$DIR/$1 got frames
    [ -f "$f" ] || { fail "$1 is missing"; return; }
    got=$(identify -format '%m %w %h\n' "$f" 2>/dev/null)
    frames=$(printf '%s\n' "$got" | grep -c .)
    [ "$frames" = 1 ] || fail "$1 should hold one picture, holds $frames"
    [ "$(printf '%s\n' "$got" | head -1)" = "GIF $2 $3" ] ||
        fail "$1 should be a GIF of $2x$3 pixels, is '$(printf '%s' "$got" | head -1)'"
    local source=$DIR/${1%.gif}.svg
    if [ ! -f "$source" ]; then
        fail "${1%.gif}.svg, the vector source of $1, is missing"
    elif ! head -1 "$source" | grep -q "width=\"$2\" height=\"$3\""; then
        fail "${1%.gif}.svg should be $2x$3 like $1"
    fi
    if [ $# -ge 4 ]; then
        got=$(identify -format '%[pixel:p{0,0}]' "$f" 2>/dev/null)
        [ "$got" = "$4" ] || fail "$1 should have $4 in its corner (the board's green), has $got"
    fi
}

# sound <file>: 16-bit mono PCM WAV at 22050 Hz, 0.08 s to 1.2 s, peak near -3 dBFS, and faded
# at both ends (an abrupt first or last sample clicks).
sound() {
    local f=$DIR/$1 v
    [ -f "$f" ] || { fail "$1 is missing"; return; }
    [ "$(soxi -t "$f" 2>/dev/null)" = wav ] || { fail "$1 is not a WAV file"; return; }
    local opt want what got
    while read -r opt want what; do # soxi's option, the value wanted, what it is
        got=$(soxi "$opt" "$f" | tr " " _) # one word, as in the table below
        [ "$got" = "$want" ] || fail "$1: $what is $got, should be $want"
    done <<'PROPS'
-r 22050 sample rate
-c 1 number of channels
-b 16 bits per sample
-e Signed_Integer_PCM encoding
PROPS
    v=$(soxi -D "$f")
    awk -v d="$v" 'BEGIN { exit !(d >= 0.0795 && d <= 1.2) }' ||
        fail "$1 lasts $v s, should be 0.08 to 1.2"
    v=$(sox "$f" -n stats 2>&1 | awk '/^Pk lev dB/ { print $4 }')
    awk -v p="$v" 'BEGIN { exit !(p >= -4 && p <= -2) }' ||
        fail "$1 peaks at $v dBFS, should be near -3"
    for edge in "0 0.0005" "-0.0005"; do
        # shellcheck disable=SC2086
        v=$(sox "$f" -n trim $edge stat 2>&1 |
            awk '/^Maximum amplitude/ { a = $3 } /^Minimum amplitude/ { b = -$3 }
                 END { print (a > b ? a : b) }')
        awk -v m="$v" 'BEGIN { exit !(m < 0.1) }' ||
            fail "$1 starts or ends abruptly (amplitude $v within 0.5 ms of an end)"
    done
}

GREEN='srgb(0,64,0)'
for L in {A..Z}; do
    for n in 1 2 3 4; do picture "zarMmg$L$n.gif" 64 64 "$GREEN"; done
done
picture zarMolo.gif 64 64 "$GREEN"
picture griglione.gif 160 84 "$GREEN"
picture okbutton.gif 32 32
picture azzera.gif 32 32
picture manina.gif 32 32
[ -f "$DIR/icona.svg" ] || fail "icona.svg, the program's icon, is missing"

# Every die differs from every other: no face or letter was left out or drawn twice.
dupes=$(cd "$DIR" && md5sum zarMmg??.gif zarMolo.gif 2>/dev/null | sort | uniq -w32 -D |
    awk '{ print $2 }')
# shellcheck disable=SC2086 # one name per word
[ -z "$dupes" ] || fail "these dice are identical: $(printf '%s ' $dupes)"

for s in COLLAPSE.WAV SND0002.wav SND0230.wav DOOLANE.WAV SHOOT1.WAV ROCHAN3.WAV perdi.wav \
    vinci.wav explode2.wav SND0012.WAV; do
    sound "$s"
done

if [ $failures -gt 0 ]; then
    echo "check_media: $failures problem(s) in $DIR" >&2
    exit 1
fi
echo "check_media: all 108 pictures and 10 sounds in $DIR are as expected"
