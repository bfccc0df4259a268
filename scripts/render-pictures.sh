#!/usr/bin/env bash
# Re-renders the committed pictures of resources/pictures from their SVG sources in
# resources/svg (at the size each SVG declares, and @2x for high-density screens), makes the
# greyed-out button pictures, assembles the animated arrow with ImageMagick, lists them all
# in resources/pictures/pictures.qrc and renders the desktop icon of dist/linux in its sizes.
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
mkdir -p "$out/buttons"

# render SOURCE.svg OUTPUT: OUTPUT.png and OUTPUT@2x.png
render() {
    "$renderer" "$1" "$2.png"
    "$renderer" "$1" "$2@2x.png" 2
}

for name in Icon_BIN Icon_BLR Icon_BRT Icon_CRP Icon_FRM Icon_HST Icon_INV Icon_MRR Icon_RGB \
    Icon_RSZ Icon_RTT Icon_WGN Icon_GRS Icon_WMR DisabledNode droparea openfiles new save \
    delete GotoIcon menubar initlabel; do
    render "$svg/$name.svg" "$out/$name"
done
# The watermark logo is stretched over photos of any size: one large picture, no @2x.
"$renderer" "$svg/qubrast.svg" "$out/qubrast.png"

# Button pictures, each with a greyed-out twin for the disabled state: the light strokes
# and the accent turn into dim greys.
for source in "$svg"/buttons/*.svg; do
    name=$(basename "$source" .svg)
    render "$source" "$out/buttons/$name"
    sed -e 's/#e6e6e6/#6a6a6a/g; s/#ffffff/#7a7a7a/g; s/#3daee9/#5a5a5a/g' \
        "$source" >"$work/$name-disabled.svg"
    render "$work/$name-disabled.svg" "$out/buttons/$name-disabled"
done

# The arrow bobs towards the "+" button below: the drawing's "bob" group is moved
# along its direction, out and back, one frame per offset.
frames=()
for step in 0 1 2 3 4 5 6 5 4 3 2 1; do
    if [ ! -f "$work/arrow-$step.png" ]; then
        sed "s/id=\"bob\" transform=\"translate(0 0)\"/id=\"bob\" transform=\"translate(-$step $step)\"/" \
            "$svg/arrow.svg" >"$work/arrow-$step.svg"
        "$renderer" "$work/arrow-$step.svg" "$work/arrow-$step.png"
    fi
    frames+=("$work/arrow-$step.png")
done
convert -delay 8 -loop 0 "${frames[@]}" "$out/arrow.gif"

# The application icon for the desktop, in the hicolor sizes beside its scalable source.
icons=$root/dist/linux/icons/hicolor
for side in 16 22 24 32 48 64 128 256 512; do
    mkdir -p "$icons/${side}x$side/apps"
    "$renderer" "$icons/scalable/apps/org.qubrast.Pelodine.svg" \
        "$icons/${side}x$side/apps/org.qubrast.Pelodine.png" "${side}x$side"
done

# The resource list names every rendered picture, compiled in under ":/".
{
    echo '<!DOCTYPE RCC>'
    echo '<!-- Written by scripts/render-pictures.sh: the rendered pictures, under ":/". -->'
    echo '<RCC version="1.0">'
    echo '<qresource prefix="/">'
    (cd "$out" && find . -name '*.png' -o -name '*.gif') | sed 's|^\./||' | LC_ALL=C sort |
        sed 's|.*|    <file>&</file>|'
    echo '</qresource>'
    echo '</RCC>'
} >"$out/pictures.qrc"

if [ -n "$sheet" ]; then
    mapfile -t pictures < <(find "$out" -name '*@2x.png' | sort)
    montage -background '#474747' -fill '#e6e6e6' -label '%t' -pointsize 10 \
        -geometry '96x96>+6+6' -tile 12x "${pictures[@]}" "$sheet"
fi
