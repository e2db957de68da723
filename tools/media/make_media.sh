#!/usr/bin/env bash
# Remakes the game's pictures (dice, logo, buttons, link pointer, icon: SVG sources and GIFs drawn
# from them) and sounds in data/, byte for byte the same on every run.
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
/usr/bin/python3 -c 'import fontTools' 2>/dev/null || install_packages python3-fonttools
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

# --- pictures ------------------------------------------------------------------------------------

# The vector sources (SVG) are what the game draws, sharp at any screen scale; the GIFs under the
# names the game keeps are renderings of them at 1:1 for anything that wants a raster picture.
/usr/bin/python3 "$HERE/make_pictures.py" "$OUT"

# Renders with Qt SVG, as the game does: the project's own small tool, built when missing.
RENDER=${RENDER_SVG:-$HERE/../../build/tools/media/render_svg}
if [ ! -x "$RENDER" ]; then
    (cd "$HERE/../.." && cmake --preset default >/dev/null &&
        cmake --build --preset default --target render_svg)
fi
raster() { "$RENDER" "$OUT/$1.svg" "$WORK/$1.png" "$2" "$3"; }

for L in {A..Z}; do
    for n in 1 2 3 4; do
        raster "zarMmg$L$n" 64 64
        gif "$WORK/zarMmg$L$n.png" -alpha off "$OUT/zarMmg$L$n.gif"
    done
done
raster zarMolo 64 64
gif "$WORK/zarMolo.png" -alpha off "$OUT/zarMolo.gif"
raster griglione 160 84
gif "$WORK/griglione.png" -alpha off "$OUT/griglione.gif"

# Buttons and pointer on a transparent ground: GIF keeps a pixel or drops it, so the soft edges
# are cut at half their opacity.
for name in okbutton azzera manina; do
    raster $name 32 32
    im "$WORK/$name.png" -channel A -threshold 50% +channel -strip "GIF:$OUT/$name.gif"
done

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
