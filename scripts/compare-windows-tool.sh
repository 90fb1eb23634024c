#!/usr/bin/env bash
# Runs loomwright-tool of the Linux build and loomwright-tool.exe of the
# Windows build (under Wine) on every file-based test case, the same
# arguments for both, from the checkout's root so that the paths they print
# are the same, and fails on any difference of output, exit status or file
# written.
#
#   scripts/compare-windows-tool.sh LINUX_TOOL WINDOWS_TOOL [WINE]
set -uo pipefail
LINUX_TOOL=$1
WINDOWS_TOOL=$2
WINE=${3:-/usr/lib/wine/wine64}
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export WINEDEBUG=-all
SCRATCH=$(mktemp -d build-windows-compare.XXXXXX)
trap 'rm -rf "$SCRATCH"' EXIT
compared=0
differences=0

# run NAME ARGS...: both tools with ARGS, where OUT stands for the file they
# write, the same path for both, kept aside after each run.
run() {
    local name=$1
    shift
    local args=("${@//OUT/$SCRATCH/out}")
    local side
    for side in linux windows; do
        mkdir -p "$SCRATCH/$side"
        if [ "$side" = linux ]; then
            "$LINUX_TOOL" "${args[@]}" >"$SCRATCH/$side/stdout" 2>"$SCRATCH/$side/stderr"
        else
            "$WINE" "$WINDOWS_TOOL" "${args[@]}" >"$SCRATCH/$side/stdout" 2>"$SCRATCH/$side/stderr"
        fi
        echo "$?" >"$SCRATCH/$side/status"
        if [ -e "$SCRATCH/out.mt" ]; then
            mv "$SCRATCH/out.mt" "$SCRATCH/$side/out.mt"
        fi
    done
    compared=$((compared + 1))
    local part
    for part in stdout stderr status out.mt; do
        [ -e "$SCRATCH/linux/$part" ] || [ -e "$SCRATCH/windows/$part" ] || continue
        if ! cmp -s "$SCRATCH/linux/$part" "$SCRATCH/windows/$part"; then
            echo "DIFFERENT $part: $name"
            diff <(cat -A "$SCRATCH/linux/$part" 2>/dev/null) \
                <(cat -A "$SCRATCH/windows/$part" 2>/dev/null) | head -n 10
            differences=$((differences + 1))
        fi
    done
    rm -rf "$SCRATCH/linux" "$SCRATCH/windows"
}

# Replays that copy write the clipboard into the data folder: a copy of it
# keeps the checkout's own untouched for the suites that run meanwhile.
cp -r data "$SCRATCH/data"
DATA=(--data "$SCRATCH/data")
for input in tests/cases/check/*/input.mt tests/cases/normalize/*/input.mt \
             tests/cases/reload/*/input.mt tests/cases/replay/*/input.mt data/scg/sample_*.mt; do
    run "check $input" check "${DATA[@]}" --format gcc "$input"
    run "normalize $input" normalize "${DATA[@]}" "$input" OUT.mt
    run "reload $input" reload "${DATA[@]}" "$input" OUT.mt
done
for folder in tests/cases/replay/*/; do
    run "replay $folder" replay "${DATA[@]}" "$folder/input.mt" "$folder/script.txt" OUT.mt
done
for folder in tests/cases/diff/*/; do
    run "diff $folder" diff "${DATA[@]}" data/scg/sample_small.mt "$folder/new.mt"
    run "diff --format json $folder" diff "${DATA[@]}" --format json data/scg/sample_small.mt \
        "$folder/new.mt"
done
run "info" info "${DATA[@]}"
run "check a folder" check "${DATA[@]}" data/scg

echo "$compared runs compared, $differences differences"
[ "$differences" -eq 0 ]
