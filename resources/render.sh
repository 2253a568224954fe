#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Renders the drawings of svg/ to the pictures of images/ and windows/. Needs rsvg-convert and ImageMagick's convert.
# Run it after a change of a drawing and commit what it writes: a build takes the pictures as they are.
set -eu
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The words in the pictures are set in the suite's own fonts, whatever the machine has.
cat >"$work/fonts.conf" <<END
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>$PWD/fonts</dir><cachedir>$work/cache</cachedir></fontconfig>
END
export FONTCONFIG_FILE="$work/fonts.conf"

# render DRAWING PICTURE [width] [css]
render() {
    printf '%s\n' "${4:-}" >"$work/style.css"
    mkdir -p "$(dirname "$2")"
    rsvg-convert --stylesheet "$work/style.css" ${3:+--width "$3" --keep-aspect-ratio} "svg/$1.svg" -o "$2"
}

render splash images/splash.png
render morvane images/morvane.png
render mark images/icone.png 128
render hands images/hands.png
render wholeBody "$work/wholeBody.png"
convert "$work/wholeBody.png" -quality 92 images/wholeBody.jpg

for button in voltar setaesq setadir; do
    while read -r state colour; do
        render $button "images/${button}1x${state#rest}.png" 32 ".ground { fill: $colour }"
    done <<END
rest #505050
hover #707070
clicked #303030
END
done

while read -r folder colour; do
    for marker in 1 2 3 4 5 6 7 8 9 10 11; do
        render markers/mrk$marker "images/markers/$folder/mrk$marker.png" 10 \
               ".full { fill: $colour } .line { fill: none; stroke: $colour; stroke-width: 2 }"
    done
done <<END
red #c8281e
blue #1f5fb4
yellow #e0aa00
green #2a8c3c
black #202020
END

# The sensors of the logger, larger than they are shown: a display may be finer than a drawing's pixels.
for icon in svg/sensors/*.svg; do
    name=$(basename "$icon" .svg)
    render "sensors/$name" "images/$name.png" 80
done

for size in 16 24 32 48 64 128 256; do
    render mark "$work/mark$size.png" $size
done
convert "$work"/mark{16,24,32,48,64,128,256}.png windows/suite-morvane.ico
