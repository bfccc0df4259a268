#!/usr/bin/env bash
# Proves that scripts/install-deps.sh names every Debian package that the build, the tests and
# the program use: each package configuration CMake finds, each program the build and the tests
# call and each file they load at run time must belong to a package of that list or to one the
# list pulls in. A package installed only by hand on this machine shows up here as missing.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=$(mktemp -d)
trap 'rm -rf "$build"' EXIT

# Programs the build, the tests and the picture and slide tools call, by the name they are
# called by; Qt's tools where the Qt build files point.
programs=(cmake c++ make lrelease lupdate xvfb-run xauth Xvfb convert montage appstreamcli
    desktop-file-validate update-mime-database fc-list clang clang++)
qt_bin=/usr/lib/qt5/bin
# Files loaded at run time: the fonts the tests draw with and the image format plugins.
runtime_files=(/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf
    /usr/lib/x86_64-linux-gnu/qt5/plugins/platforms/libqoffscreen.so
    /usr/lib/x86_64-linux-gnu/qt5/plugins/imageformats/libqtiff.so
    /usr/lib/x86_64-linux-gnu/qt5/plugins/imageformats/libqwebp.so
    /usr/lib/x86_64-linux-gnu/qt5/plugins/imageformats/libqsvg.so
    /usr/lib/x86_64-linux-gnu/qt5/plugins/imageformats/kimg_raw.so
    /usr/lib/x86_64-linux-gnu/qt5/plugins/imageformats/kimg_heif.so
    /usr/lib/x86_64-linux-gnu/qt5/plugins/imageformats/kimg_avif.so
    /usr/lib/x86_64-linux-gnu/qt5/plugins/imageformats/kimg_jxl.so
    /usr/lib/x86_64-linux-gnu/qt5/plugins/imageformats/kimg_psd.so)

cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null

paths=()
# Package configurations and programs that CMake found; CTest's optional dashboard tools
# (git, valgrind, gcov) are looked for but never used.
while IFS='=' read -r entry path; do
    case $entry in GITCOMMAND:* | MEMORYCHECK_COMMAND:* | COVERAGE_COMMAND:*) continue ;; esac
    paths+=("$path")
done < <(grep -E '^[A-Za-z0-9_]+:(PATH|FILEPATH)=/usr/' "$build/CMakeCache.txt" | grep -v '=/usr/local')
for program in "${programs[@]}"; do
    if [ -x "$qt_bin/$program" ]; then
        paths+=("$qt_bin/$program")
    elif found=$(PATH=/usr/bin:/bin command -v "$program"); then
        paths+=("$found")
    else
        echo "check-deps: the program $program is not installed" >&2
        exit 1
    fi
done
paths+=("${runtime_files[@]}")
# The sanitizer runtimes the sanitizer build links (make test-sanitize) and libFuzzer, which clang
# links into the fuzzer (make fuzz): each may come from a package of its own.
paths+=("$(c++ -print-file-name=libasan.so)" "$(c++ -print-file-name=libubsan.so)"
    "$(clang++ -print-resource-dir)/lib/linux/libclang_rt.fuzzer-x86_64.a")

# The packages that own a path, one a line (a folder such as /usr/include has many), through
# links and the /bin - /usr/bin merge.
owners() {
    local path candidate
    for candidate in "$1" "$(readlink -f "$1")"; do
        for path in "$candidate" "${candidate#/usr}"; do
            dpkg -S "$path" 2>/dev/null | grep -v '^diversion' | head -n 1 | sed 's/: [^:]*$//' |
                tr ',' '\n' | sed 's/^ *//; s/:.*//' && return 0
        done
    done
    return 1
}

mapfile -t listed < <("$root/scripts/install-deps.sh" --list)
covered=$(apt-cache depends --recurse --no-recommends --no-suggests --no-conflicts \
    --no-breaks --no-replaces --no-enhances "${listed[@]}" | grep -E '^[a-z0-9]' | sort -u)

failed=0
for path in "${paths[@]}"; do
    packages=$(owners "$path") || packages=
    if [ -z "$packages" ]; then
        echo "check-deps: no Debian package owns $path" >&2
        failed=1
    elif ! grep -qxF -f <(printf '%s\n' "$packages") <<<"$covered"; then
        echo "check-deps: $path comes from ${packages//$'\n'/ or }, which scripts/install-deps.sh does not install" >&2
        failed=1
    fi
done
[ $failed -eq 0 ] && echo "check-deps: all ${#paths[@]} files come from packages the install step installs"
exit $failed
