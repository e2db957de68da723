#!/usr/bin/env bash
# Remakes the game's pictures (dice, logo, buttons, link pointer) and sounds in data/, byte for
# byte the same on every run.
# Usage: tools/media/make_media.sh [output folder, default data/ of this repository]
set -euo pipefail
export LC_ALL=C

HERE=$(cd "$(dirname "$0")" && pwd)
OUT=${1:-$HERE/../../data}
mkdir -p "$OUT"
OUT=$(cd "$OUT" && pwd)

FONT_DIR=/usr/share/fonts/truetype/dejavu
BOLD=$FONT_DIR/DejaVuSans-Bold.ttf
SERIF_ITALIC=$FONT_DIR/DejaVuSerif-BoldItalic.ttf

# --- tools -------------------------------------------------------------------------------------

updated=no
install_packages() {
    local run=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            { echo "make_media: need root or sudo to install $*" >&2; exit 1; }
        run=(sudo)
    fi
    if [ $updated = no ]; then
        "${run[@]}" apt-get update
        updated=yes
    fi
    "${run[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y "$@"
}

# The real ImageMagick, not a look-alike that happens to be called convert.
find_convert() {
    local c
    for c in magick convert-im6.q16 convert; do
        if command -v "$c" >/dev/null &&
            "$c" -version 2>/dev/null | grep -q 'Version: ImageMagick'; then
            command -v "$c"
            return 0
        fi
    done
    return 1
}

find_convert >/dev/null || install_packages imagemagick
command -v sox >/dev/null || install_packages sox
if [ ! -f "$BOLD" ] || [ ! -f "$SERIF_ITALIC" ]; then install_packages fonts-dejavu-core; fi
IM=$(find_convert) || { echo "make_media: ImageMagick's convert is still missing" >&2; exit 1; }

WORK=$(mktemp -d)
trap 'rm -rf "$WORK"' EXIT

im() { "$IM" "$@"; }

GREEN='rgb(0,64,0)' # the board's background

# Writes a GIF without anything that changes from run to run (comments, dates, other chunks).
# GIF holds 256 colours: the picture is reduced to 255 of them, without dithering (which would
# speckle the soft gradients), and the board's green is then put back exactly where it was, so
# that dice and logo sit seamlessly on the window's background.
gif() {
    im "${@:1:$#-1}" +dither +geometry +gravity -compose Over \
        \( -clone 0 -colors 255 \) \
        \( -clone 0 -alpha off -fill black +opaque "$GREEN" -fill white -opaque "$GREEN" \) \
        \( -clone 1 -clone 0 -clone 2 -composite \) -delete 0-2 \
        -strip "GIF:${!#}"
}

calc() { awk "BEGIN { print $1 }"; }

# --- dice ----------------------------------------------------------------------------------------

INK='#2a1808'          # the letters: very dark brown, almost black
SIZE=64
CAP_PT=52              # DejaVu Sans Bold at 52 px has capitals 38 px high
MAX_W=46               # wider capitals (W, M) are narrowed to this width so they keep a margin

# Faces 1 to 4 of a letter: ivory, pale yellow, pale blue, pale pink; the blank die is ivory.
# Each has the top face's colour, its lighter centre, the side seen at the bevel, and the rim.
FACE=(''  '#fbf5e2' '#fcefb8' '#dbe7f6' '#f8dce4')
CENTRE=('' '#fffdf4' '#fff8d8' '#eef4fc' '#fdeef2')
SIDE=(''  '#cdbf98' '#d4be6c' '#9fb3cf' '#cfa2b0')
EDGE=(''  '#6f6244' '#75622a' '#4e6079' '#775060')

# A die without a letter: rounded body with a light upper-left and a shaded lower-right bevel,
# a slightly domed top face, a thin dark rim so neighbouring dice stay apart.
make_body() {
    local n=$1 out=$2
    im -size ${SIZE}x${SIZE} xc:"$GREEN" \
        \( -size ${SIZE}x${SIZE} xc: -sparse-color Bilinear \
            "0,0 #ffffff 63,0 ${SIDE[n]} 0,63 ${SIDE[n]} 63,63 ${EDGE[n]}" \) \
        \( -size ${SIZE}x${SIZE} xc:black -fill white -draw 'roundrectangle 1,1 62,62 11,11' \) \
        -composite \
        -fill none -stroke "${EDGE[n]}" -strokewidth 1 -draw 'roundrectangle 1,1 62,62 11,11' \
        \( -size 52x52 radial-gradient:"${CENTRE[n]}-${FACE[n]}" \
            \( -size 52x52 xc:black -fill white -draw 'roundrectangle 0,0 51,51 9,9' \) \
            -alpha off -compose CopyOpacity -composite \) \
        -compose Over -geometry +5+5 -composite \
        "$out"
}

for n in 1 2 3 4; do make_body $n "$WORK/body$n.png"; done

# Capitals are centred on the band between the top and the foot of "H", so that all letters
# share one baseline height and only Q and J reach below it.
read -r _ CAP_H _ CAP_TOP < <(im -size 128x128 xc:none -font "$BOLD" -pointsize $CAP_PT \
    -fill black -annotate +24+96 H -format '%@\n' info: | sed -E 's/[x+]/ /g')
CAP_MID2=$((2 * CAP_TOP + CAP_H)) # twice the middle of the capitals' band

for L in {A..Z}; do
    # Bounding box of the glyph drawn at a fixed origin.
    read -r W H X Y < <(im -size 128x128 xc:none -font "$BOLD" -pointsize $CAP_PT \
        -fill black -annotate +24+96 "$L" -format '%@\n' info: | sed -E 's/[x+]/ /g')
    NW=$W
    [ "$W" -gt $MAX_W ] && NW=$MAX_W
    dx=$(((SIZE - NW) / 2))
    dy=$(((2 * Y - CAP_MID2 + SIZE) / 2))
    # The letter itself, with a faint light rim below and to the right, as if cut into the face.
    im -size 128x128 xc:none -font "$BOLD" -pointsize $CAP_PT \
        -fill 'rgba(255,255,255,0.55)' -annotate +25+97 "$L" \
        -fill "$INK" -annotate +24+96 "$L" \
        -crop "$((W + 1))x$((H + 1))+$X+$Y" +repage \
        -resize $((NW + 1))x$((H + 1))! \
        "$WORK/glyph$L.png"
    for n in 1 2 3 4; do
        gif "$WORK/body$n.png" "$WORK/glyph$L.png" -geometry +$dx+$dy -composite \
            "$OUT/zarMmg$L$n.gif"
    done
done

# The blank die: the ivory die with a small engraved diamond in the middle, and no letter.
gif "$WORK/body1.png" \
    -fill 'rgba(255,255,255,0.7)' -draw 'polygon 32,25 40,33 32,41 24,33' \
    -fill '#d9ccaa' -draw 'polygon 32,24 39,31 32,38 25,31' \
    -fill '#e9dfc4' -draw 'polygon 32,28 35,31 32,34 29,31' \
    "$OUT/zarMolo.gif"

# --- logo ----------------------------------------------------------------------------------------

# "Il Griglione" in warm yellow to orange with a dark brown outline and a shadow, on the board's
# green; "Il" in a serif italic so that its two strokes cannot be read as "ll", and at the top
# right a little 3 x 3 grid of dice with a word traced across it. A gentle wave makes letters bob.
# One yellow-to-orange run for each line of the title.
im -size 160x38 gradient:'#fffa90-#ff7a00' -size 160x8 xc:'#fffa90' \
    -size 160x32 gradient:'#fffa90-#ff5a00' -size 160x6 xc:'#ff5a00' -append "$WORK/warm.png"
grid=()
for r in 0 1 2; do
    for c in 0 1 2; do
        x=$((119 + c * 12)) y=$((4 + r * 12))
        colour='#f6efd8'
        case $r$c in 00 | 11 | 12 | 22) colour='#ffb020' ;; esac
        grid+=(-fill '#062206'
            -draw "roundrectangle $((x + 1)),$((y + 1)) $((x + 11)),$((y + 11)) 2,2")
        grid+=(-fill "$colour" -draw "roundrectangle $x,$y $((x + 10)),$((y + 10)) 2,2")
    done
done
# title <font> <size> <x> <y> <text>: shadow, outline, then the warm fill.
title() {
    printf '%s\n' -font "$1" -pointsize "$2" \
        -fill 'rgba(0,0,0,0.6)' -stroke 'rgba(0,0,0,0.6)' -strokewidth 4 \
        -annotate "+$(($3 + 2))+$(($4 + 2))" "$5" \
        -fill '#3a1a00' -stroke '#3a1a00' -strokewidth 4 -annotate "+$3+$4" "$5" \
        -stroke none -tile "$WORK/warm.png" -annotate "+$3+$4" "$5" +tile
}
mapfile -t words < <(title "$BOLD" 29 6 40 Griglione; title "$SERIF_ITALIC" 28 14 4 Il)
gif -size 160x84 xc:"$GREEN" \
    "${grid[@]}" \
    -fill none -stroke '#c84000' -strokewidth 2 -draw 'polyline 124,9 136,21 148,21 148,33' \
    -stroke none \
    \( -size 160x84 xc:none -gravity northwest "${words[@]}" \
        -background none -wave 1.5x100 -crop 160x84+0+0 +repage \) \
    -composite \
    "$OUT/griglione.gif"

# --- buttons -------------------------------------------------------------------------------------

# Drawn on a light grey that then becomes transparent: the soft edges blend into a light button.
BUTTON_BG='#e4e4e4'
ROUND='stroke-linecap round stroke-linejoin round'
gif -size 32x32 xc:"$BUTTON_BG" -fill none \
    -stroke '#0b4d10' -strokewidth 8 -draw "$ROUND polyline 6,17 13,24 26,8" \
    -stroke '#2fb335' -strokewidth 5 -draw "$ROUND polyline 6,17 13,24 26,8" \
    -stroke '#8be07f' -strokewidth 1.5 -draw "$ROUND polyline 6,16 13,23 25.5,7.5" \
    -transparent "$BUTTON_BG" \
    "$OUT/okbutton.gif"

# A red arrow curling back to the left: undo everything traced. Dark outlines first, then the
# red strokes over them, so the arrow's head and shaft join without a seam.
# (Sampled as a polyline: this ImageMagick strokes an open curved path as if it were closed.)
ARC="polyline 10,10 $(awk 'BEGIN { for (a = -90; a <= 90; a += 10) {
    r = a * 3.14159265 / 180; printf "%.2f,%.2f ", 19 + 9 * cos(r), 19 + 9 * sin(r) } }') 9,28"
HEAD='polygon 2.5,10 11,3 11,17'
gif -size 32x32 xc:"$BUTTON_BG" \
    -fill none -stroke '#5a0c08' -strokewidth 6 -draw "$ROUND $ARC" \
    -fill '#5a0c08' -stroke '#5a0c08' -strokewidth 3 -draw "stroke-linejoin round $HEAD" \
    -fill none -stroke '#d8281c' -strokewidth 3.5 -draw "$ROUND $ARC" \
    -fill '#d8281c' -stroke none -draw "$HEAD" \
    -fill none -stroke '#f07a6a' -strokewidth 1 -draw 'polyline 12,9 19,9 23,9.8 26,11.6 27.6,14' \
    -transparent "$BUTTON_BG" \
    "$OUT/azzera.gif"

# --- pointer -------------------------------------------------------------------------------------

# The hand shown over the program's links: a white hand pointing up with a black outline, drawn
# without anti-aliasing on a transparent ground, since a pointer has no soft edges. The shapes are
# drawn once fat in black and once in white, so the outline goes round their union only.
HAND=(-draw 'roundrectangle 7,1 12,19 2.5,2.5'
    -draw 'roundrectangle 12,10 16.5,20 2.2,2.2'
    -draw 'roundrectangle 16,11 20.5,21 2.2,2.2'
    -draw 'roundrectangle 20,12 24.5,21 2.2,2.2'
    -draw 'roundrectangle 7,16 24.5,29 4,4'
    -draw 'roundrectangle 2,16 10,22 3,3')
im -size 32x32 xc:none +antialias \
    -fill black -stroke black -strokewidth 2 "${HAND[@]}" \
    -fill white -stroke none "${HAND[@]}" \
    -stroke black -strokewidth 1 \
    -draw 'line 12,12 12,18' -draw 'line 16,13 16,18' -draw 'line 20,14 20,18' \
    -draw 'line 8,21 10,21' \
    -strip "GIF:$OUT/manina.gif"

# --- sounds --------------------------------------------------------------------------------------

# All sounds: 16-bit mono PCM at 22050 Hz, peak at -3 dBFS, no dither; -R makes the noise
# generators start from the same seed every run.
RATE=22050
sx() { sox -R -D "$@"; }
raw() { sx -n -r $RATE -c 1 -b 16 "$@"; } # raw <file> synth ... : one component
# finish <out> <parts...>: mix the parts, take out any DC drift, fade both ends, normalise.
finish() {
    local out=$1
    shift
    local len
    if [ $# -gt 1 ]; then sx -m "$@" "$WORK/mix.wav"; else cp "$1" "$WORK/mix.wav"; fi
    len=$(soxi -D "$WORK/mix.wav")
    sx "$WORK/mix.wav" -r $RATE -c 1 -b 16 -e signed-integer "$WORK/final.wav" \
        highpass 30 fade h 0.003 "$len" 0.01 gain -n -3
    mv "$WORK/final.wav" "$out"
}
# note <file> <start s> <length s> <synth args...> [-- effects...]: one part of a sound, starting
# <start> seconds in. Sweeps of anything but a sine use "-" (stepped exponential) or ":" (linear):
# this sox renders "/" sweeps of square, triangle and sawtooth waves as a stuck DC level.
note() {
    local file=$1 start=$2 len=$3
    shift 3
    local tone=() fx=()
    while [ $# -gt 0 ] && [ "$1" != -- ]; do tone+=("$1"); shift; done
    [ $# -gt 0 ] && shift && fx=("$@")
    # Headroom first, so that filters and pitch bends never clip before the final normalising.
    raw "$file" synth "$len" "${tone[@]}" gain -8 "${fx[@]}" pad "$start"
}

# A die pressed: a soft, very short wooden tick.
note "$WORK/a.wav" 0 0.08 sine 1100/600 -- fade l 0.001 0.08 0.075
note "$WORK/b.wav" 0 0.08 pinknoise -- bandpass 2500 1.5q fade l 0 0.08 0.078 gain -14
finish "$OUT/SND0002.wav" "$WORK/a.wav" "$WORK/b.wav"

# A die turned: a two-tone wooden clack, high then low.
note "$WORK/a.wav" 0 0.06 triangle 820 -- fade l 0.001 0.06 0.058
note "$WORK/b.wav" 0 0.03 brownnoise -- bandpass 1800 2q fade l 0 0.03 0.029
note "$WORK/c.wav" 0.07 0.09 triangle 560 -- fade l 0.001 0.09 0.087
note "$WORK/d.wav" 0.07 0.03 brownnoise -- bandpass 1200 2q fade l 0 0.03 0.029
finish "$OUT/SND0230.wav" "$WORK/a.wav" "$WORK/b.wav" "$WORK/c.wav" "$WORK/d.wav"

# Nothing to submit: a soft low "boop" that sinks a little.
note "$WORK/a.wav" 0 0.28 sine 330/220 -- fade q 0.015 0.28 0.16
note "$WORK/b.wav" 0 0.28 sine 660/440 -- fade q 0.015 0.28 0.2 gain -16
finish "$OUT/DOOLANE.WAV" "$WORK/a.wav" "$WORK/b.wav"

# Word too short: a "pew" zapping downwards.
note "$WORK/a.wav" 0 0.2 square 1700-220 -- lowpass 3500 fade l 0.002 0.2 0.14 gain -6
note "$WORK/b.wav" 0 0.2 sine 1700/220 -- fade l 0.002 0.2 0.14
finish "$OUT/SHOOT1.WAV" "$WORK/a.wav" "$WORK/b.wav"

# Word already found: two dull buzzes.
for i in 0 1; do
    note "$WORK/z$i.wav" "$(calc "$i * 0.17")" 0.12 sawtooth 110 sawtooth 117 -- \
        remix - lowpass 700 lowpass 900 fade h 0.01 0.12 0.03
done
finish "$OUT/ROCHAN3.WAV" "$WORK/z0.wav" "$WORK/z1.wav"

# Word unknown: two notes falling a minor third (G, E), the second one sagging at its end.
note "$WORK/a.wav" 0 0.24 triangle 392 -- lowpass 1500 tremolo 6 20 fade q 0.01 0.24 0.06
note "$WORK/b.wav" 0.22 0.55 triangle 330:300 -- lowpass 1300 tremolo 5 30 fade q 0.02 0.55 0.3
note "$WORK/c.wav" 0 0.24 sine 784 -- fade q 0.01 0.24 0.06 gain -18
note "$WORK/d.wav" 0.22 0.55 sine 660/600 -- fade q 0.02 0.55 0.3 gain -18
finish "$OUT/perdi.wav" "$WORK/a.wav" "$WORK/b.wav" "$WORK/c.wav" "$WORK/d.wav"

# Word accepted: a bright rising arpeggio C E G C, soft mallet notes with a bell-like sparkle.
parts=()
i=0
for f in 523.25 659.26 783.99 1046.5; do
    start=$(calc "$i * 0.09")
    len=0.25
    [ $i = 3 ] && len=0.5
    w=$(calc "$len * 0.6") x=$(calc "$len * 0.3")
    note "$WORK/v$i.wav" "$start" $len triangle $f -- \
        lowpass 2500 fade h 0.004 $len "$(calc "$len - 0.01")"
    note "$WORK/w$i.wav" "$start" "$w" sine "$(calc "$f * 2")" -- \
        fade l 0.004 "$w" "$w" gain -10
    note "$WORK/x$i.wav" "$start" "$x" sine "$(calc "$f * 4")" -- \
        fade l 0.002 "$x" "$x" gain -20
    parts+=("$WORK/v$i.wav" "$WORK/w$i.wav" "$WORK/x$i.wav")
    i=$((i + 1))
done
finish "$OUT/vinci.wav" "${parts[@]}"

# Word cleared, or the player won: a bright sweep falling from high to low, with a breath of air.
note "$WORK/a.wav" 0 0.6 sine 2400/260 -- fade q 0.005 0.6 0.35
note "$WORK/b.wav" 0 0.6 sine 3600/390 -- fade q 0.005 0.6 0.4 gain -8
note "$WORK/c.wav" 0 0.6 pinknoise -- highpass 1500 fade q 0.1 0.6 0.45 gain -12
finish "$OUT/COLLAPSE.WAV" "$WORK/a.wav" "$WORK/b.wav" "$WORK/c.wav"

# The computer won: a soft explosion. Overlapping bursts of noise, each one darker and quieter
# than the one before, so the rumble sinks; under them a thump falling in pitch.
parts=()
i=0
for cut in 4000 2600 1700 1100 700 450 300 200; do
    start=$(calc "$i * 0.1")
    note "$WORK/n$i.wav" "$start" 0.16 pinknoise -- lowpass $cut lowpass $cut \
        fade h 0.03 0.16 0.06 gain "$(calc "-2.5 * $i")"
    parts+=("$WORK/n$i.wav")
    i=$((i + 1))
done
note "$WORK/thump.wav" 0 0.7 sine 140/35 -- fade p 0.004 0.7 0.6 gain -2
finish "$OUT/explode2.wav" "${parts[@]}" "$WORK/thump.wav"

# A draw: a neutral two-note chime, "ding-dong" (E, C).
bell() { # bell <file> <start> <frequency>
    # The upper partials of a bell die away sooner than its note.
    note "$1-1.wav" "$2" 0.6 sine "$3" -- fade h 0.002 0.6 0.59
    note "$1-2.wav" "$2" 0.4 sine "$(calc "$3 * 2.76")" -- fade l 0.002 0.4 0.39 gain -10
    note "$1-3.wav" "$2" 0.2 sine "$(calc "$3 * 5.4")" -- fade l 0.002 0.2 0.19 gain -16
}
bell "$WORK/ding" 0 659.26
bell "$WORK/dong" 0.28 523.25
finish "$OUT/SND0012.WAV" "$WORK"/ding-?.wav "$WORK"/dong-?.wav

echo "make_media: pictures and sounds written to $OUT"
