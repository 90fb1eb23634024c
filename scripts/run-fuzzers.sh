#!/usr/bin/env bash
# Builds the libFuzzer harnesses of fuzz/ with clang into build-fuzz/ and runs
# each one for a while on a copy of its seed corpus, so the committed corpus
# never grows. Fails when any harness finds a crash, a sanitizer report, a
# leak, a timeout or an out-of-memory; its reproducer stays in
# build-fuzz/artifacts/. CI runs it with 60 seconds a harness.
#
#   scripts/run-fuzzers.sh [seconds-per-harness]      (default 60)
#
# FUZZ_ONLY="FuzzGroupReader FuzzModelsConfig" runs those harnesses alone.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

SECONDS_PER_HARNESS="${1:-60}"
FUZZ_DIR="$REPO_ROOT/build-fuzz"
ARTIFACTS_DIR="$FUZZ_DIR/artifacts"

# Each harness with the dictionary of its format.
HARNESSES=(FuzzTemplateReader:mt FuzzOpenAndSave:mt FuzzGroupReader:group
           FuzzModelsConfig:models FuzzActionsConfig:actions FuzzLoomwrightIni:ini
           FuzzReplayScript:replay)
if [ -n "${FUZZ_ONLY:-}" ]; then
    chosen=()
    for entry in "${HARNESSES[@]}"; do
        [[ " $FUZZ_ONLY " == *" ${entry%%:*} "* ]] && chosen+=("$entry")
    done
    HARNESSES=("${chosen[@]}")
fi

PACKAGES=(clang libclang-rt-14-dev)
install_missing_packages

say "Configuring the fuzzing build into $FUZZ_DIR"
CC=clang CXX=clang++ cmake -S "$REPO_ROOT" -B "$FUZZ_DIR" -G Ninja \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLOOMWRIGHT_BUILD_GUI=OFF \
    -DLOOMWRIGHT_BUILD_TESTS=OFF -DLOOMWRIGHT_BUILD_BENCHMARKS=OFF \
    -DLOOMWRIGHT_BUILD_FUZZERS=ON >/dev/null
say "Building the harnesses"
cmake --build "$FUZZ_DIR" --parallel "${BUILD_JOBS:-$(nproc)}" --target fuzzers

WORK_DIR="$(mktemp -d)"
trap 'rm -rf "$WORK_DIR"' EXIT
# Only this run's reproducers are kept.
rm -rf "$ARTIFACTS_DIR"
mkdir -p "$ARTIFACTS_DIR"

# The last statistics line of a run: "#<runs> <event> cov: .. ft: .. corp: .."
stat_of() {
    local log=$1 name=$2
    grep -E '^#[0-9]+' "$log" | tail -n 1 | sed -nE "s/.* $name: ([^ ]+).*/\\1/p"
}

# The report of a finding, from its first line to the sanitizer's summary,
# and where the reproducer went.
print_finding() {
    local log=$1 report
    report=$(sed -n '/ERROR:\|runtime error:/,/^SUMMARY/p' "$log" | head -n 80)
    if [ -n "$report" ]; then
        printf '%s\n' "$report"
    else
        grep -vE '^#[0-9]+' "$log" | tail -n 40
    fi
    grep -E 'Test unit written' "$log" || true
}

# Runs one harness; prints its summary line and returns its exit status.
run_harness() {
    local harness=$1 dict=$2
    local corpus="$WORK_DIR/$harness"
    local log="$WORK_DIR/$harness.log"
    mkdir -p "$corpus"
    cp "$REPO_ROOT/fuzz/corpus/$harness/"* "$corpus/"
    local status=0
    "$FUZZ_DIR/bin/$harness" "$corpus" \
        -dict="$REPO_ROOT/fuzz/dict/$dict.dict" \
        -max_total_time="$SECONDS_PER_HARNESS" -timeout=10 -rss_limit_mb=2048 \
        -max_len=65536 -print_final_stats=1 \
        -artifact_prefix="$ARTIFACTS_DIR/$harness-" >"$log" 2>&1 || status=$?

    local runs rate
    runs=$(sed -nE 's/^stat::number_of_executed_units: *([0-9]+).*/\1/p' "$log")
    rate=$(sed -nE 's/^stat::average_exec_per_sec: *([0-9]+).*/\1/p' "$log")
    local verdict="ok"
    if [ "$status" -ne 0 ]; then
        verdict="FAILED (exit $status), log below"
    fi
    printf '%-20s %10s runs %7s exec/s  cov %6s  ft %7s  corpus %6s  %s\n' "$harness" \
        "${runs:-?}" "${rate:-?}" "$(stat_of "$log" cov)" "$(stat_of "$log" ft)" \
        "$(ls "$corpus" | wc -l)" "$verdict"
    if [ "$status" -ne 0 ]; then
        print_finding "$log"
    fi
    return "$status"
}

say "Fuzzing each harness for $SECONDS_PER_HARNESS seconds"
failed=()
for entry in "${HARNESSES[@]}"; do
    run_harness "${entry%%:*}" "${entry##*:}" || failed+=("${entry%%:*}")
done

if [ ${#failed[@]} -ne 0 ]; then
    say "Findings in: ${failed[*]} (reproducers in $ARTIFACTS_DIR)"
    exit 1
fi
say "No findings."
