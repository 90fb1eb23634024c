#!/usr/bin/env bash
# Builds the benchmarks and runs every suite on the synthetic templates of
# 1,000, 4,000 and 16,000 phases, then prints the table of docs/performance.md
# (times, growth from 4,000 to 16,000 phases, open and save against their
# floors) and the peak heap of opening the largest template. Results go to
# build/bench-results/. Run it on a machine doing nothing else.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_missing_packages
build_all

RESULTS="$BUILD_DIR/bench-results"
mkdir -p "$RESULTS"
for suite in document_bench canvas_bench editing_bench; do
    say "Running $suite"
    "$BUILD_DIR/bin/$suite" --benchmark_repetitions="${REPETITIONS:-3}" \
        --benchmark_report_aggregates_only=true \
        --benchmark_out="$RESULTS/$suite.json" --benchmark_out_format=json
done

say "Peak heap of opening the 16,000-phase template"
data="$RESULTS/data-16000"
rm -rf "$data"
"$BUILD_DIR/bin/loomwright-tool" generate 16000 "$data" >/dev/null
/usr/bin/time -v "$BUILD_DIR/bin/loomwright-tool" check --data "$data" "$data/scg/synthetic.mt" \
    2> "$RESULTS/open-16000.time"
/usr/bin/time -v "$BUILD_DIR/bin/loomwright-tool" info --data "$data" >/dev/null \
    2> "$RESULTS/start.time"

python3 "$REPO_ROOT/scripts/benchmark-table.py" "$RESULTS" "$data/scg/synthetic.mt"
