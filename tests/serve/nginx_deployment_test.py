#!/usr/bin/env python3
"""The deployment of docs/serve-nginx.conf works as written: through nginx, a medium comes
straight from the content folder at its URL root, and the server's addresses reach the `lumora
serve` processes behind it: a resource document comes back with its media's addresses, and
those addresses give the media's bytes. Exit code 77 (skipped) where nginx is not installed.

    nginx_deployment_test.py LUMORA_TOOL CONFIG
"""

import json
import os
import shutil
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import nginx_deployment  # noqa: E402

# Addresses passed to `lumora serve` through nginx, and the status each must answer.
PROXIED = [("/api/open", 200), ("/api/d/1/index", 200), ("/api/d/9/index", 404)]


def resource_through(d, failures):
    """Fetches the first dictation's document through nginx, and each medium at its href."""
    status, body = nginx_deployment.fetch(d.url("/api/d/1/index/5"))
    if status != 200:
        failures.append(f"/api/d/1/index/5: {status}")
        return
    resource = json.loads(body)["types"][0]["groups"][0]["resources"][0]
    path = f"/api/d/1/resource/5/{resource}"
    status, body = nginx_deployment.fetch(d.url(path))
    document = json.loads(body) if status == 200 else {}
    if not document.get("ok"):
        failures.append(f"{path}: {status} {body[:200]!r}")
        return
    hrefs = [m["href"] for m in document["allMedia"] if "href" in m]
    if not hrefs:
        failures.append(f"{path}: no medium has an href")
    for href in hrefs:
        relative = href[len("/media/d/1/"):]
        with open(os.path.join(d.content, "D001", relative), "rb") as f:
            medium = f.read()
        status, body = nginx_deployment.fetch(d.url(href))
        if status != 200 or body != medium:
            failures.append(f"{href}: {status}, {len(body)} bytes, not the file's {len(medium)}")


def main():
    if shutil.which("nginx") is None:
        # CI installs nginx (tools/install-deps): there, its absence is a failure.
        if os.environ.get("CI") == "true":
            print("nginx is not installed: the deployment cannot be tested")
            return 1
        print("nginx is not installed: skipped")
        return 77
    lumora, config = sys.argv[1], sys.argv[2]
    failures = []
    with nginx_deployment.Deployment(lumora, config) as d:
        relative, medium = nginx_deployment.a_medium(d.content)
        for path in (f"/course/D001/{relative}", f"/media/d/1/{relative}"):
            status, body = nginx_deployment.fetch(d.url(path))
            if status != 200 or body != medium:
                failures.append(f"{path}: {status}, {len(body)} bytes, not the {len(medium)} "
                                "bytes of the file")
        status, _ = nginx_deployment.fetch(d.url("/course/Content.ini/../../x"))
        if status not in (400, 404):
            failures.append(f"/course/ left the content folder: {status}")
        resource_through(d, failures)
        for path, expected in PROXIED:
            status, body = nginx_deployment.fetch(d.url(path))
            if status != expected:
                failures.append(f"{path}: {status} instead of {expected}: {body[:200]!r}")
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
