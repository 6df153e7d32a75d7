#!/bin/bash
# Draws menu.ico: a menu tree on a tile, with its own pixel coordinates for each size. Needs ImageMagick.
set -euo pipefail
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# box COLOUR X0 Y0 X1 Y1 RADIUS prints a drawing command. X1 and Y1 are the last pixels of the box.
box() {
  if (($6 == 0)); then
    printf 'fill %s rectangle %d,%d %d,%d\n' "${@:1:5}"
  else
    printf 'fill %s roundrectangle %d,%d %d,%d %d,%d\n' "$@" "$6"
  fi
}

# draw SIZE TILE TILE_END TILE_RADIUS RADIUS TRUNK TRUNK_END BRANCH1 BRANCH2 ROOT... NODE1... NODE2...
# TILE and TILE_END are the first and last pixel of the tile in both directions. The root and the two nodes
# are X0 Y0 X1 Y1 each, with RADIUS. TRUNK and TRUNK_END are the first and last column of the trunk; BRANCH1 and
# BRANCH2 are the top rows of the branches.
draw() {
  local size=$1 tile=$2 tile_end=$3 tile_radius=$4 radius=$5 trunk=$6 trunk_end=$7 branch1=$8 branch2=$9
  local thick=$((trunk_end - trunk))
  shift 9
  local shapes
  shapes=$(
    box '#1f4e79' "$tile" "$tile" "$tile_end" "$tile_end" "$tile_radius"
    box '#9cc3e6' "$trunk" "$4" "$trunk_end" $((branch2 + thick)) 0
    box '#9cc3e6' "$trunk" "$branch1" "$5" $((branch1 + thick)) 0
    box '#9cc3e6' "$trunk" "$branch2" "$9" $((branch2 + thick)) 0
    box '#ffffff' "$1" "$2" "$3" "$4" "$radius"
    box '#f4b942' "${@:5:4}" "$radius"
    box '#ffffff' "${@:9:4}" "$radius"
  )
  convert -size "${size}x$size" xc:none -draw "$shapes" -strip -depth 8 \
    -define png:exclude-chunks=date,time "PNG32:$work/$size.png"
}

#    size tile     radii trunk branches  root         first node   second node
draw 16   0 15     2 0   4 4   8 12      2 2 8 4      7 7 13 9     7 11 13 13
draw 20   0 19     3 0   5 5   10 15     3 3 10 5     8 9 16 11    8 14 16 16
draw 24   0 23     4 0   6 7   11 18     3 3 13 6     11 10 20 13  11 17 20 20
draw 32   1 30     5 1   8 9   16 24     5 5 17 10    16 14 27 19  16 22 27 27
draw 40   1 38     7 2   11 13 19 29     7 7 22 13    20 17 34 23  20 27 34 33
draw 48   1 46     8 2   12 14 23 35     8 8 26 16    24 20 40 28  24 32 40 40
large=(   2 61     11 3  17 20 32 47     11 11 34 22  33 28 54 39  33 43 54 54)
draw 64 "${large[@]}"
for factor in 2 4; do
  scaled=()
  for i in "${!large[@]}"; do
    case $i in
      1 | 5 | 10 | 11 | 14 | 15 | 18 | 19) scaled+=($((large[i] * factor + factor - 1))) ;; # the last pixel of a shape
      *) scaled+=($((large[i] * factor))) ;;
    esac
  done
  draw $((64 * factor)) "${scaled[@]}"
done

# little_endian BYTES NUMBER... writes each number in so many bytes.
little_endian() {
  local bytes=$1 number i
  shift
  for number; do
    for ((i = 0; i < bytes; i++)); do
      printf "\\x$(printf %02x $((number >> 8 * i & 255)))"
    done
  done
}

# Every window loads the small sizes, so they are bitmaps. The large ones are PNG files, a tenth of the size.
sizes=(16 20 24 32 40 48 64 128 256)
for size in "${sizes[@]}"; do
  if ((size <= 32)); then
    convert "$work/$size.png" ico:- | tail -c +23 >"$work/$size" # without the headers, 22 bytes
  else
    cp "$work/$size.png" "$work/$size"
  fi
done
{
  little_endian 2 0 1 ${#sizes[@]}
  offset=$((6 + 16 * ${#sizes[@]}))
  for size in "${sizes[@]}"; do
    bytes=$(stat -c %s "$work/$size")
    little_endian 1 $((size % 256)) $((size % 256)) 0 0
    little_endian 2 1 32
    little_endian 4 "$bytes" "$offset"
    offset=$((offset + bytes))
  done
  cat "${sizes[@]/#/$work/}"
} >menu.ico
