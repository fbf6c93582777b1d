#!/usr/bin/env python3
"""The JSON API of `lumora serve` under load, with wrk on loopback (bounded runs):

- a resource document against nginx serving the same bytes as a static file, in the same run
  (goal: ours at least 0.25 times nginx's requests per second, no errors);
- glossary prefix search over a 65,534-word glossary: in process through the content face
  (build/bench/glossary_find_timing, goal p99 under 1 ms), and over HTTP under 16 connections
  (goal: p99 under 5 ms per request).

    bench/serve/api_bench.py [BUILD_FOLDER] [--seconds 10]
"""

import argparse
import json
import os
import re
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(SOURCE, "tests", "serve"))
import nginx_deployment  # noqa: E402
from serve_bench import wrk  # noqa: E402

MILLIS = {"us": 0.001, "ms": 1.0, "s": 1000.0}


def wrk_p99(url, seconds, connections):
    """(99th percentile latency in ms, requests per second, errors) of one bounded run."""
    out = subprocess.run(["wrk", "-t2", f"-c{connections}", f"-d{seconds}s", "--latency", url],
                         check=True, capture_output=True, text=True).stdout
    value, unit = re.search(r"99%\s+([\d.]+)(us|ms|s)", out).groups()
    rate = float(re.search(r"Requests/sec:\s+([\d.]+)", out).group(1))
    errors = sum(int(n) for n in re.findall(r"(?:connect|read|write|timeout) (\d+)", out))
    return float(value) * MILLIS[unit], rate, errors


def resource_document(d, seconds):
    status, body = nginx_deployment.fetch(
        f"http://127.0.0.1:{d.serve_ports[0]}/api/d/1/index/5")
    resource = json.loads(body)["types"][0]["groups"][0]["resources"][0]
    ours = f"http://127.0.0.1:{d.serve_ports[0]}/api/d/1/resource/5/{resource}"
    status, document = nginx_deployment.fetch(ours)
    if status != 200:
        sys.exit(f"{ours}: {status}")
    with open(os.path.join(d.content, "D001", "document.json"), "wb") as f:
        f.write(document)
    theirs = d.url("/course/D001/document.json")
    print(f"resource document: {len(document)} bytes; 64 connections, {seconds} s each")
    theirs_rate, theirs_errors = wrk(theirs, seconds, 64)
    ours_rate, ours_errors = wrk(ours, seconds, 64)
    ratio = ours_rate / theirs_rate
    print(f"  nginx (static file) {theirs_rate:10.0f} requests/s  {theirs_errors} errors")
    print(f"  lumora serve        {ours_rate:10.0f} requests/s  {ours_errors} errors")
    print(f"  ratio {ratio:.2f} (goal 0.25)")
    return ratio >= 0.25 and ours_errors == 0


def glossary_search(build, lumora, seconds):
    with tempfile.TemporaryDirectory(prefix="lumora-find-") as scratch:
        root = os.path.join(scratch, "content")
        timing = subprocess.run([os.path.join(build, "bench", "glossary_find_timing"), root],
                                capture_output=True, text=True)
        print("glossary search in process: " + timing.stdout.strip())
        process, port = nginx_deployment.start_serve(lumora, root)
        try:
            url = f"http://127.0.0.1:{port}/api/d/1/glossary/find?q=t&prefix=1&limit=20"
            status, body = nginx_deployment.fetch(url)
            if status != 200:
                sys.exit(f"{url}: {status} {body[:200]!r}")
            p99, rate, errors = wrk_p99(url, seconds, 16)
        finally:
            process.terminate()
            process.wait(timeout=15)
        print(f"glossary search over HTTP, 16 connections, {seconds} s: p99 {p99:.2f} ms, "
              f"{rate:.0f} requests/s, {errors} errors (goal: p99 under 5 ms)")
        return timing.returncode == 0 and p99 < 5.0 and errors == 0


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", nargs="?", default=os.path.join(SOURCE, "build"))
    parser.add_argument("--seconds", type=int, default=10)
    args = parser.parse_args()
    lumora = os.path.join(args.build, "lumora")
    config = os.path.join(SOURCE, "docs", "serve-nginx.conf")
    with nginx_deployment.Deployment(lumora, config) as d:
        document_ok = resource_document(d, args.seconds)
    search_ok = glossary_search(args.build, lumora, args.seconds)
    return 0 if document_ok and search_ok else 1


if __name__ == "__main__":
    sys.exit(main())
