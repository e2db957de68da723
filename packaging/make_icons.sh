#!/usr/bin/env bash
# Makes the menu icon from its one vector source: the SVG itself as the scalable icon, and PNGs at
# the hicolor theme's usual sizes drawn from it by the game's own renderer (Qt SVG):
#   packaging/make_icons.sh RENDER_SVG ICON.svg OUT_DIR
#     ->  OUT_DIR/hicolor/scalable/apps/griglione.svg, OUT_DIR/hicolor/SxS/apps/griglione.png
# The same source gives the same bytes on every run (the PNGs carry no dates).
set -euo pipefail
render=$1
icon=$2
out=$3
mkdir -p "$out/hicolor/scalable/apps"
cp "$icon" "$out/hicolor/scalable/apps/griglione.svg"
for size in 16 22 24 32 48 64 128 256; do
    dir="$out/hicolor/${size}x${size}/apps"
    mkdir -p "$dir"
    "$render" "$icon" "$dir/griglione.png" "$size"
done
