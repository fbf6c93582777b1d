#!/usr/bin/env python3
"""Requests per second of `lumora serve` against nginx serving the same small medium, both on
loopback in the same run, with wrk (bounded: CONNECTIONS connections for SECONDS seconds each).
Starts the deployment of docs/serve-nginx.conf over sample content; needs nginx and wrk
(tools/install-deps --bench). The goal: ours at least 0.7 times nginx, with no errors.

    bench/serve/serve_bench.py [LUMORA_TOOL] [--seconds 10] [--connections 64]
"""

import argparse
import os
import re
import shutil
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(SOURCE, "tests", "serve"))
import nginx_deployment  # noqa: E402


def wrk(url, seconds, connections):
    """(requests per second, errors) of one bounded run."""
    out = subprocess.run(["wrk", "-t2", f"-c{connections}", f"-d{seconds}s", url],
                         check=True, capture_output=True, text=True).stdout
    rate = float(re.search(r"Requests/sec:\s+([\d.]+)", out).group(1))
    errors = sum(int(n) for n in re.findall(r"(?:connect|read|write|timeout) (\d+)", out))
    non_2xx = re.search(r"Non-2xx or 3xx responses: (\d+)", out)
    return rate, errors + (int(non_2xx.group(1)) if non_2xx else 0)


def resident_kib(pid):
    with open(f"/proc/{pid}/status", encoding="ascii") as f:
        return int(re.search(r"VmRSS:\s+(\d+)", f.read()).group(1))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("lumora", nargs="?", default=os.path.join(SOURCE, "build", "lumora"))
    parser.add_argument("--seconds", type=int, default=10)
    parser.add_argument("--connections", type=int, default=64)
    args = parser.parse_args()
    for tool in ("nginx", "wrk"):
        if shutil.which(tool) is None:
            sys.exit(f"{tool} is not installed (tools/install-deps --bench)")
    config = os.path.join(SOURCE, "docs", "serve-nginx.conf")
    with nginx_deployment.Deployment(args.lumora, config) as d:
        relative, medium = nginx_deployment.a_medium(d.content)
        ours_url = f"http://127.0.0.1:{d.serve_ports[0]}/media/d/1/{relative}"
        theirs_url = d.url(f"/course/D001/{relative}")
        for url in (ours_url, theirs_url):
            status, body = nginx_deployment.fetch(url)
            if status != 200 or body != medium:
                sys.exit(f"{url} does not answer the medium ({status})")
        print(f"medium: {relative}, {len(medium)} bytes; {args.connections} connections, "
              f"{args.seconds} s each")
        theirs, theirs_errors = wrk(theirs_url, args.seconds, args.connections)
        server = d.processes[0].pid
        before = resident_kib(server)
        ours, ours_errors = wrk(ours_url, args.seconds, args.connections)
        after = resident_kib(server)
    print(f"nginx         {theirs:10.0f} requests/s  {theirs_errors} errors")
    print(f"lumora serve  {ours:10.0f} requests/s  {ours_errors} errors, "
          f"resident memory {before} KiB before, {after} KiB after")
    ratio = ours / theirs
    print(f"ratio {ratio:.2f} (goal 0.70)")
    return 0 if ratio >= 0.7 and ours_errors == 0 else 1


if __name__ == "__main__":
    sys.exit(main())
