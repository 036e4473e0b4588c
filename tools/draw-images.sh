#!/usr/bin/env bash
# Draws every picture of the hub with the QPainter program in tools/draw-images:
#   resources/hub-images      built into the program under ":/images/"
#   resources/shipped-images  copied beside the program as images/ (start-up pictures, the
#                             default picture of each device type, one picture per device)
#   packaging/linux/icons     the application icon in the hicolor theme's sizes
#   resources/macro-images    the macro page's pictures, built into ":/images/macropage/"
#   resources/magnetic-images the magnetic page's pictures, built into ":/images/"
# Run again after changing a drawing; the PNGs are committed. The output is the same byte for
# byte on every run.
set -eu
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=${ORBE_DRAW_BUILD:-$here/build-draw-images}

cmake -S "$here/tools/draw-images" -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" -j2
out=("$here/resources/hub-images" "$here/resources/shipped-images" "$here/packaging/linux/icons"
  "$here/resources/macro-images" "$here/resources/magnetic-images")
rm -rf "${out[@]}"
QT_QPA_PLATFORM=offscreen "$build/orbe_draw_images" "${out[@]}"
echo "drew $(find "${out[@]}" -name '*.png' | wc -l) pictures"
