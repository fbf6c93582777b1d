#!/usr/bin/env python3
"""Runs a Google Benchmark program and prints each benchmark's throughput as a ratio to the
reference of its group, followed by the benchmark's own counters (memory figures and the like).

Benchmarks are grouped by the part of their name before the first "/"; in each group the one
whose name contains "reference" is the yardstick. Arguments after the program are passed to it.

    bench/ratios.py build/bench/crc32_bench --benchmark_repetitions=3
"""

import json
import subprocess
import sys
from collections import OrderedDict


SECONDS_PER_UNIT = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}

# Fields every benchmark result has; any other number is a counter the benchmark set itself.
STANDARD_FIELDS = {"family_index", "per_family_instance_index", "repetitions", "repetition_index",
                   "threads", "iterations", "real_time", "cpu_time", "bytes_per_second",
                   "items_per_second"}


def throughput(bench):
    """Bytes per second when reported, else items per second, else runs per second."""
    for counter in ("bytes_per_second", "items_per_second"):
        if counter in bench:
            return bench[counter]
    seconds = bench.get("real_time", 0) * SECONDS_PER_UNIT[bench.get("time_unit", "ns")]
    return 1.0 / seconds if seconds else None


def load(program, args):
    out = subprocess.run([program, "--benchmark_format=json", *args], check=True,
                         stdout=subprocess.PIPE, text=True).stdout
    benches = json.loads(out)["benchmarks"]
    # With repetitions, compare the medians; otherwise every run is a plain iteration.
    if any(b.get("aggregate_name") == "median" for b in benches):
        benches = [b for b in benches if b.get("aggregate_name") == "median"]
    return [b for b in benches if not b.get("error_occurred")]


def report(benches):
    groups = OrderedDict()
    for bench in benches:
        name = bench.get("run_name", bench["name"])
        groups.setdefault(name.split("/", 1)[0], []).append((name, bench))
    width = max((len(name) for group in groups.values() for name, _ in group), default=0)
    for group, members in groups.items():
        reference = next((b for name, b in members if "reference" in name), None)
        base = throughput(reference) if reference else None
        for name, bench in members:
            rate = throughput(bench)
            mbps = f"{rate / 1e6:10.1f} MB/s" if "bytes_per_second" in bench else " " * 15
            ratio = f"{rate / base:6.2f}x reference" if base and rate else "  (no reference)"
            counters = "  ".join(f"{key}={value:.4g}" for key, value in bench.items()
                                 if key not in STANDARD_FIELDS and isinstance(value, (int, float))
                                 and not isinstance(value, bool))
            print(f"{name:<{width}}  {mbps}  {ratio}  {counters}".rstrip())
        if group != list(groups)[-1]:
            print()


def main():
    if len(sys.argv) < 2:
        sys.exit("usage: ratios.py BENCHMARK_PROGRAM [ARGS...]")
    report(load(sys.argv[1], sys.argv[2:]))


if __name__ == "__main__":
    main()
