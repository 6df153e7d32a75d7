#!/bin/bash
# Draws the picture that the menu shows beside its tree: installation/Startup.bmp, 200 x 140, 24 bits.
# Needs ImageMagick and the font DejaVu; run it only to change the picture, which is checked in.
set -euo pipefail

target="$(dirname "$0")/installation/Startup.bmp"

# Hills in the morning, and ledger bars that grow on them.
convert -size 200x140 gradient:'#fdf3dc-#9fc4e0' -rotate 180 +repage \
  -fill '#f6c667' -draw 'circle 150,48 150,66' \
  -fill '#7fa7b8' -draw 'path "M 0,104 C 40,70 80,76 120,96 S 180,92 200,78 L 200,140 L 0,140 Z"' \
  -fill '#4f8193' -draw 'path "M 0,118 C 50,98 90,124 130,112 S 180,100 200,108 L 200,140 L 0,140 Z"' \
  -fill '#1f4e68' -draw 'path "M 0,130 C 60,116 120,136 200,122 L 200,140 L 0,140 Z"' \
  -fill '#ffffffd0' \
  -draw 'roundrectangle 24,92 38,122 2,2' -draw 'roundrectangle 44,80 58,122 2,2' \
  -draw 'roundrectangle 64,64 78,122 2,2' -draw 'roundrectangle 84,48 98,122 2,2' \
  -font DejaVu-Sans-Bold -pointsize 22 -fill '#173a4f' -annotate +16+34 'Obrin' \
  -type TrueColor -depth 8 BMP3:"$target"
