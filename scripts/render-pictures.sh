#!/usr/bin/env bash
# Re-renders the committed pictures of resources/pictures from their SVG sources in
# resources/svg (1x and @2x), and assembles the animated arrow with ImageMagick.
#   scripts/render-pictures.sh [path/to/pelodine-svgrender] [--sheet contact-sheet.png]
# The `pictures` target of the build runs it with the freshly built renderer.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
renderer=$root/build/tools/svgrender/pelodine-svgrender
sheet=
while [ $# -gt 0 ]; do
    case $1 in
        --sheet) sheet=$2; shift 2 ;;
        *) renderer=$1; shift ;;
    esac
done
svg=$root/resources/svg
out=$root/resources/pictures
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work

# render SOURCE OUTPUT WIDTH HEIGHT: OUTPUT.png and OUTPUT@2x.png from SOURCE.svg
render() {
    "$renderer" "$svg/$1.svg" "$out/$2.png" "$3" "$4"
    "$renderer" "$svg/$1.svg" "$out/$2@2x.png" $(($3 * 2)) $(($4 * 2))
}

for code in BIN BLR BRT CRP FRM HST INV MRR RGB RSZ RTT WGN GRS WMR; do
    render "Icon_$code" "Icon_$code" 64 64
done
render DisabledNode DisabledNode 70 70
render droparea droparea 360 360
render openfiles openfiles 24 24
render new new 16 16
render save save 16 16
render delete delete 16 16
render GotoIcon GotoIcon 16 16
render menubar menubar 64 45
render initlabel_en initlabel_en 735 175
# The watermark logo is stretched over photos of any size: one large picture, no @2x.
"$renderer" "$svg/qubrast.svg" "$out/qubrast.png" 960 300

# The arrow bobs towards the "+" button below: the drawing's "bob" group is moved
# along its direction, out and back, one frame per offset.
frames=()
for step in 0 1 2 3 4 5 6 5 4 3 2 1; do
    sed "s/id=\"bob\" transform=\"translate(0 0)\"/id=\"bob\" transform=\"translate(-$step $step)\"/" \
        "$svg/arrow.svg" >"$work/arrow-$step.svg"
    [ -f "$work/arrow-$step.png" ] || "$renderer" "$work/arrow-$step.svg" "$work/arrow-$step.png" 100 100
    frames+=("$work/arrow-$step.png")
done
convert -delay 8 -loop 0 -dispose previous "${frames[@]}" "$out/arrow.gif"

if [ -n "$sheet" ]; then
    mapfile -t pictures < <(find "$out" -name '*.png' ! -name '*@2x.png' | sort)
    montage -background '#474747' -fill '#e6e6e6' -label '%t' -pointsize 10 \
        -geometry '+8+8' -tile 6x "${pictures[@]}" "$sheet"
fi
