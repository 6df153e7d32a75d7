#!/usr/bin/env bash
# Draws launcher.ico anew: a small menu tree on a tile. Needs ImageMagick.
set -euo pipefail
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# In units of a 64 x 64 grid: tile, trunk with two branches, three nodes.
for size in 16 20 24 32 48; do
  convert -size 1024x1024 xc:none -scale 1024x1024 \
    -draw "scale 16,16 fill #1f4e79 roundrectangle 2,2 62,62 11,11
           fill #9cc3e6 rectangle 17,20 21,50 rectangle 17,32 36,36 rectangle 17,46 36,50
           fill #ffffff roundrectangle 11,11 35,22 3,3
           fill #f4b942 roundrectangle 33,28 55,39 3,3
           fill #ffffff roundrectangle 33,43 55,54 3,3" \
    -filter Lanczos -resize "${size}x${size}" "$work/$size.png"
done
convert "$work"/{16,20,24,32,48}.png launcher.ico
