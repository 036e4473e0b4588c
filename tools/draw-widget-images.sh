#!/usr/bin/env bash
# Draws the pictures the shared controls use, into resources/images (ImageMagick).
# Run again after changing a drawing; the PNGs are committed.
set -eu
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
out="$here/resources/images"
mkdir -p "$out"
png=(-strip -define png:exclude-chunks=date,time)

# Cover of a tutorial video card: a purple field, a faint keyboard and a play button.
w=640
h=340
keys=()
for row in 0 1 2 3; do
  y=$((70 + row * 52))
  indent=$((row * 14))
  for col in $(seq 0 11); do
    x=$((60 + indent + col * 44))
    keys+=(-draw "roundrectangle $x,$y $((x + 38)),$((y + 44)) 6,6")
  done
done
convert -size ${h}x${w} gradient:'#9B6BE8-#3E1A7E' -rotate -90 \
  -fill 'rgba(255,255,255,0.10)' "${keys[@]}" \
  -fill 'rgba(255,255,255,0.92)' -draw "circle $((w / 2)),$((h / 2)) $((w / 2)),$((h / 2 + 44))" \
  -fill '#6329B6' -draw "polygon $((w / 2 - 14)),$((h / 2 - 22)) $((w / 2 - 14)),$((h / 2 + 22)) $((w / 2 + 24)),$((h / 2))" \
  "${png[@]}" "PNG32:$out/video-cover.png"
echo "drew $out/video-cover.png"
