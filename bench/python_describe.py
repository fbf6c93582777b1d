#!/usr/bin/env python3
"""Describes every resource of one discipline from Python (`for r in d.resources(): r.to_dict()`)
and the same loop in C++ over the library's description (describe_timing), on the same sample
content, and prints the ratio of their times (target: at most 1.5).

    PYTHONPATH=build/python bench/python_describe.py build/bench/describe_timing [--scale 600]
"""

import argparse
import subprocess
import sys
import tempfile
import time

import lumora


def python_seconds(root, discipline):
    with lumora.open(root) as opened:
        d = opened.discipline(discipline)
        start = time.perf_counter()
        described = sum(1 for r in d.resources() if r.to_dict())
        return time.perf_counter() - start, described


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("timing", help="the describe_timing program")
    parser.add_argument("--scale", type=int, default=600)
    parser.add_argument("--discipline", type=int, default=1)
    parser.add_argument("--runs", type=int, default=3, help="the best of this many runs counts")
    args = parser.parse_args()
    with tempfile.TemporaryDirectory() as root:
        lumora.sample(root, scale=args.scale)
        best_cpp = best_py = None
        for _ in range(args.runs):
            out = subprocess.run([args.timing, root, str(args.discipline)], check=True,
                                 capture_output=True, text=True).stdout.split()
            cpp, cpp_count = float(out[0]), int(out[1])
            py, py_count = python_seconds(root, args.discipline)
            if cpp_count != py_count:
                sys.exit(f"C++ described {cpp_count} resources, Python {py_count}")
            best_cpp = cpp if best_cpp is None else min(best_cpp, cpp)
            best_py = py if best_py is None else min(best_py, py)
    print(f"{py_count} resources of discipline {args.discipline} at scale {args.scale}")
    print(f"C++    {best_cpp:8.3f} s")
    print(f"Python {best_py:8.3f} s")
    print(f"ratio  {best_py / best_cpp:8.2f} (target at most 1.50)")


if __name__ == "__main__":
    main()
