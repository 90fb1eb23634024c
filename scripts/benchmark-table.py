#!/usr/bin/env python3
"""Prints the tables of docs/performance.md from the results of
run-benchmarks.sh: the median time of every benchmark at each size, its growth
from 4,000 to 16,000 phases, open and save against their floors, and the peak
memory of opening the largest template against its size."""
import json
import os
import re
import sys

SIZES = ("1000", "4000", "16000")


def medians(folder):
    times = {}
    for suite in ("document_bench", "canvas_bench", "editing_bench"):
        with open(os.path.join(folder, suite + ".json")) as results:
            for run in json.load(results)["benchmarks"]:
                if run.get("aggregate_name") != "median":
                    continue
                name, size = run["run_name"].split("/")[:2]
                times.setdefault(name, {})[size] = run["real_time"]
    return times


def peak_kilobytes(path):
    with open(path) as report:
        return int(re.search(r"Maximum resident set size \(kbytes\): (\d+)", report.read()).group(1))


def main(folder, template):
    times = medians(folder)
    print("| benchmark | 1,000 (ms) | 4,000 (ms) | 16,000 (ms) | growth 4k to 16k |")
    print("|---|---:|---:|---:|---:|")
    for name, by_size in times.items():
        cells = [f"{by_size[size]:.2f}" for size in SIZES]
        growth = by_size["16000"] / by_size["4000"]
        print(f"| {name[3:]} | {' | '.join(cells)} | {growth:.2f} |")
    print()
    print("| 16,000 phases | time (ms) | floor (ms) | ratio |")
    print("|---|---:|---:|---:|")
    for work, floor in (("BM_Open", "BM_ReadFloor"), ("BM_Save", "BM_WriteFloor"),
                        ("BM_Save", "BM_WriteFloorUnsynced")):
        t, f = times[work]["16000"], times[floor]["16000"]
        print(f"| {work[3:]} against {floor[3:]} | {t:.1f} | {f:.1f} | {t / f:.1f} |")
    print()
    size = os.path.getsize(template)
    opened = peak_kilobytes(os.path.join(folder, "open-16000.time")) * 1024
    started = peak_kilobytes(os.path.join(folder, "start.time")) * 1024
    print(f"file {size / 1e6:.1f} MB; peak resident opening it {opened / 1e6:.1f} MB, "
          f"{(opened - started) / 1e6:.1f} MB above the program started on the same data "
          f"({(opened - started) / size:.1f} times the file)")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
