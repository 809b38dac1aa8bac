#!/usr/bin/env python3
"""Prints what the library costs beside the floor: the same records, written and read by hand on bare TinyXML.

Given a build folder, runs its paramxml_bench first and leaves the results there, in bench/results.json. Given such a
file, only prints it. Times are medians, in nanoseconds.
"""

import argparse
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys

# Otherwise the heap gives its end back to the system after a large document and fetches it again for the next.
STEADY_HEAP = {"MALLOC_TOP_PAD_": "16777216", "MALLOC_TRIM_THRESHOLD_": "67108864", "MALLOC_MMAP_MAX_": "0"}


def run(program, results, repetitions):
    command = [
        program,
        "--benchmark_min_time=0.05",
        f"--benchmark_repetitions={repetitions}",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_report_aggregates_only=true",
        "--benchmark_out_format=json",
        f"--benchmark_out={results}",
    ]
    subprocess.run(command, check=True, env={**os.environ, **STEADY_HEAP}, stdout=subprocess.DEVNULL)


def medians(results):
    """The medians of each benchmark, by its name, in the order of the program."""
    runs = json.loads(results.read_text())["benchmarks"]
    runs.sort(key=lambda run: run["family_index"])
    return {run["run_name"]: run for run in runs if run.get("aggregate_name") == "median"}


def instructions(program, name):
    """The instructions of one iteration, as Valgrind counts them."""
    repetitions = 10  # of one iteration each, as the least time is 0
    command = [
        "valgrind",
        "--tool=callgrind",
        "--callgrind-out-file=/dev/null",
        "--toggle-collect=*once<*",
        program,
        f"--benchmark_filter=^{re.escape(name)}$",
        "--benchmark_min_time=0",
        f"--benchmark_repetitions={repetitions}",
    ]
    finished = subprocess.run(command, check=True, capture_output=True, text=True)
    return int(re.search(r"Collected : (\d+)", finished.stderr).group(1)) // repetitions


def print_row(name, *cells):
    print(f"{name:40}" + "".join(f"{cell:>14}" for cell in cells), flush=True)


def print_comparisons(found, program):
    """The pairs of benchmarks .../floor and .../paramxml; their instructions too if there is a program."""
    titles = ["floor ns", "ours ns", "ratio", "allocations"]
    if program:
        titles += ["floor instr.", "ours instr.", "ratio"]
    print_row("", *titles)

    for name in [name for name in found if name.endswith("/floor")]:
        operation = name.removesuffix("/floor")
        our_name = operation + "/paramxml"
        floor, ours = found[name], found[our_name]
        cells = [
            f"{floor['cpu_time']:.0f}",
            f"{ours['cpu_time']:.0f}",
            f"{ours['cpu_time'] / floor['cpu_time']:.2f}",
            f"{floor['allocations']:.0f}/{ours['allocations']:.0f}",
        ]
        if program:
            floor_count, our_count = instructions(program, name), instructions(program, our_name)
            cells += [floor_count, our_count, f"{our_count / floor_count:.2f}"]
        print_row(operation, *cells)


def print_threads(found):
    """The benchmarks that run on one thread and on two: the time in which the process gets one step done."""
    one_thread, two_threads = "/real_time/threads:1", "/real_time/threads:2"
    print_row("", "1 thread ns", "2 threads ns", "speed")
    for name in [name for name in found if name.endswith(one_thread)]:
        operation = name.removesuffix(one_thread)
        one, two = found[name]["real_time"], found[operation + two_threads]["real_time"]
        print_row(operation, f"{one:.0f}", f"{two:.0f}", f"{one / two:.2f}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path, help="a build folder, or a file of results")
    parser.add_argument("--repetitions", type=int, default=15, help="of each benchmark (default: %(default)s)")
    parser.add_argument("--instructions", action="store_true", help="count instructions too, by Valgrind")
    arguments = parser.parse_args()
    if arguments.instructions and not (arguments.build.is_dir() and shutil.which("valgrind")):
        parser.error("--instructions needs a build folder, and Valgrind")

    results = arguments.build
    program = None
    if arguments.build.is_dir():
        program = arguments.build / "bench" / "paramxml_bench"
        results = arguments.build / "bench" / "results.json"
        run(program, results, arguments.repetitions)

    found = medians(results)
    print_comparisons(found, program if arguments.instructions else None)
    print()
    print_threads(found)


if __name__ == "__main__":
    try:
        main()
    except subprocess.CalledProcessError as error:
        sys.exit(f"ratios.py: {error.cmd[0]} failed")
