#!/bin/bash
# SPDX-License-Identifier: MIT
# Draws the gallery's sample pictures with ImageMagick. The results are kept beside it: run it only
# to change them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

# Sky, sun, two hills and a path: 80 x 52 pixels, drawn four times as large.
landscape() {
    convert -size 320x208 gradient:'#7FB4E6-#F6E3C4' \
        -fill '#FFD166' -stroke none -draw 'circle 236,64 236,36' \
        -fill '#5F8F5A' -draw 'path "M 0,150 C 60,90 130,100 190,150 C 230,120 280,110 320,130 L 320,208 L 0,208 Z"' \
        -fill '#3E6B4B' -draw 'path "M 0,180 C 80,140 200,150 320,190 L 320,208 L 0,208 Z"' \
        -fill '#E8D6B0' -draw 'path "M 120,208 C 150,180 130,170 150,158 L 158,158 C 146,172 176,182 164,208 Z"' \
        -filter Lanczos -resize 80x52 -strip "$@"
}

# A disc with a tick on nothing: one palette entry is transparent.
badge() {
    convert -size 100x45 xc:none +antialias -stroke '#8A3FFC' -strokewidth 4 \
        -fill '#E8DAFF' -draw 'circle 50,22 50,4' \
        -fill none -stroke '#31135E' -strokewidth 4 -draw 'stroke-linecap round stroke-linejoin round path "M 42,23 L 48,29 L 59,16"' \
        -colors 8 -strip "$@"
}

landscape -type TrueColor -compress none BMP3:landscape.bmp
landscape -quality 92 -sampling-factor 1x1 landscape.jpg
landscape PNG24:landscape.png
badge PNG8:badge.png
convert -size 16x16 xc:'#D9DDE3' -fill '#B4BCC8' -stroke none \
    -draw 'rectangle 0,0 7,7 rectangle 8,8 15,15' -type TrueColor -compress none BMP3:tile.bmp
echo 'This is no picture, whatever its name says.' >not-a-picture.dat
