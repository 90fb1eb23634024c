#!/usr/bin/env bash
# Mutation testing: applies each deliberate fault of tests/mutants.txt to a
# scratch copy of the checkout, rebuilds it incrementally, runs the suite, and
# reports which faults the suite caught (killed) and which it missed
# (survived). A fault that does not compile, or whose line is not found
# exactly once, is an error in the list. Not part of CI: it takes minutes.
# A mutant's run stops at the first failing test: one is enough to kill it.
#
#   scripts/run-mutants.sh [list] [ctest-regex]
#
# list defaults to tests/mutants.txt; ctest-regex limits the tests run for
# every mutant (by default all but the format check). MUTANTS_KILLERS=1 runs
# the whole suite on every mutant and lists under it each test that failed,
# so that a test that alone kills a mutant shows as such. MUTANTS_SOURCE names
# another checkout to copy, such as a worktree of an older suite. The scratch
# copy is build-mutants/src, kept between runs so that its build
# (build-mutants/src/build) stays incremental.
set -uo pipefail
REPO_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
SOURCE=${MUTANTS_SOURCE:-$REPO_ROOT}
LIST=${1:-$SOURCE/tests/mutants.txt}
TESTS=${2:-.}
SCRATCH="$REPO_ROOT/build-mutants"
COPY="$SCRATCH/src"
# Inside the copy, as in a checkout, so that the programs find the data
# folder two levels above themselves.
BUILD="$COPY/build"

say() { printf '==> %s\n' "$*"; }

say "Copying $SOURCE into $COPY"
mkdir -p "$COPY"
# By content, without the times: a file that differs gets a new time and is
# rebuilt, even when it is older than what a stopped run compiled.
rsync -rlpD --checksum --delete --exclude '/build*' --exclude '/.git' "$SOURCE/" "$COPY/"
cmake -S "$COPY" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DLOOMWRIGHT_BUILD_BENCHMARKS=OFF >/dev/null
say "Building the unchanged copy"
cmake --build "$BUILD" >/dev/null || { echo "the unchanged copy does not build"; exit 2; }
ctest --test-dir "$BUILD" -R "$TESTS" -E 'Format\.' --parallel "$(nproc)" >/dev/null ||
    { echo "the unchanged copy fails its tests"; exit 2; }

# Reads the list into parallel arrays: a block per mutant, "from: " and
# "to:   " each six characters before the line itself.
files=() froms=() tos=() whys=()
file="" from="" to="" why=""
flush() {
    if [ -n "$file" ]; then
        files+=("$file"); froms+=("$from"); tos+=("$to"); whys+=("$why")
    fi
    file="" from="" to="" why=""
}
while IFS= read -r line || [ -n "$line" ]; do
    case "$line" in
        "#"*) ;;
        "") flush ;;
        "file: "*) file=${line:6} ;;
        "from: "*) from=${line:6} ;;
        "to:   "*) to=${line:6} ;;
        "why:  "*) why=${line:6} ;;
        *) echo "not understood in $LIST: $line"; exit 2 ;;
    esac
done <"$LIST"
flush

# A run stopped halfway puts the mutated file back and marks it for rebuilding.
restore() {
    for orig in $(find "$COPY/src" -name '*.orig'); do
        mv "$orig" "${orig%.orig}"
        touch "${orig%.orig}"
    done
}
trap 'restore; exit 130' INT TERM

stop_on_failure=--stop-on-failure
[ "${MUTANTS_KILLERS:-0}" = 1 ] && stop_on_failure=""
killed=0 survived=0 errors=0
report="$SCRATCH/report.txt"
: >"$report"
for i in "${!files[@]}"; do
    target="$COPY/${files[$i]}"
    label="$((i + 1)) ${files[$i]}: ${whys[$i]}"
    count=$(grep -cxF -- "${froms[$i]}" "$target" 2>/dev/null || true)
    if [ "$count" != 1 ]; then
        echo "ERROR   $label (the line is there ${count:-0} times)" | tee -a "$report"
        errors=$((errors + 1))
        continue
    fi
    cp "$target" "$target.orig"
    FROM="${froms[$i]}" TO="${tos[$i]}" python3 -c '
import os, sys
path = sys.argv[1]
lines = open(path, "rb").read().decode("latin-1").split("\n")
lines[lines.index(os.environ["FROM"])] = os.environ["TO"]
open(path, "wb").write("\n".join(lines).encode("latin-1"))' "$target"
    if ! cmake --build "$BUILD" >/dev/null 2>&1; then
        echo "ERROR   $label (does not compile)" | tee -a "$report"
        errors=$((errors + 1))
    elif ctest --test-dir "$BUILD" -R "$TESTS" -E 'Format\.' --parallel "$(nproc)" \
        --timeout 300 ${stop_on_failure} >/dev/null 2>&1; then
        echo "SURVIVED $label" | tee -a "$report"
        survived=$((survived + 1))
    else
        echo "killed  $label" | tee -a "$report"
        killed=$((killed + 1))
        if [ -z "$stop_on_failure" ]; then
            sed 's/^[0-9]*:/        by /' "$BUILD/Testing/Temporary/LastTestsFailed.log" | tee -a "$report"
        fi
    fi
    mv "$target.orig" "$target"
    touch "$target"
done
cmake --build "$BUILD" >/dev/null 2>&1

say "${#files[@]} mutants: $killed killed, $survived survived, $errors errors (report in $report)"
[ "$errors" -eq 0 ]
