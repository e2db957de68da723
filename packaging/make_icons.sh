#!/usr/bin/env bash
# Makes the menu icon in the hicolor theme's usual sizes from the grid drawn in the game's logo:
#   packaging/make_icons.sh LOGO.gif OUT_DIR   ->  OUT_DIR/hicolor/SxS/apps/griglione.png
# The same logo gives the same bytes on every run (no dates or other metadata in the PNGs).
set -euo pipefail
logo=$1
out=$2
for size in 16 22 24 32 48 64 128 256; do
    dir="$out/hicolor/${size}x${size}/apps"
    mkdir -p "$dir"
    # The 40-pixel square around the grid, blown up by whole pixels first so the large sizes stay
    # sharp, then brought to the size with a smooth filter.
    convert "$logo" -crop 40x40+117+1 +repage -filter point -resize 800% \
        -filter Lanczos -resize "${size}x${size}" -strip \
        -define png:exclude-chunks=date,time "PNG32:$dir/griglione.png"
done
