#!/usr/bin/env python3
"""The deployment of docs/serve-nginx.conf works as written: through nginx, a medium comes
straight from the content folder at its URL root, and the server's addresses reach the `lumora
serve` processes behind it. Exit code 77 (skipped) where nginx is not installed.

    nginx_deployment_test.py LUMORA_TOOL CONFIG
"""

import os
import shutil
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import nginx_deployment  # noqa: E402

# Addresses passed to `lumora serve` through nginx, and the status each must answer. The API
# documents are answered 501 until the server is given them.
PROXIED = [("/api/open", 501), ("/api/d/1/index", 501)]


def main():
    if shutil.which("nginx") is None:
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
        for path, expected in PROXIED:
            status, body = nginx_deployment.fetch(d.url(path))
            if status != expected:
                failures.append(f"{path}: {status} instead of {expected}: {body[:200]!r}")
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
