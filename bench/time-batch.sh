#!/usr/bin/env bash
# The time pelodine-batch takes, as a whole process, for one small photo through the sample
# flow: the median of RUNS runs (default 21), in milliseconds.
#   bench/time-batch.sh [path/to/pelodine-batch] [runs]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
batch=${1:-$root/build/app/pelodine-batch}
runs=${2:-21}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_CONFIG_HOME=$work/.config XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=offscreen
photo=$work/photo.jpg
/usr/bin/convert -size 640x480 gradient:orange-navy "$photo"
times=()
for ((i = 0; i < runs; ++i)); do
    start=$(date +%s%N)
    "$batch" --quiet --output "$work/out$i" "$photo"
    times+=($((($(date +%s%N) - start) / 1000000)))
done
printf '%s\n' "${times[@]}" | sort -n | sed -n "$(((runs + 1) / 2))p" | sed 's/$/ ms (median of '"$runs"' runs, one photo, whole process)/'
