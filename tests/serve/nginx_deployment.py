"""Starts the deployment of docs/serve-nginx.conf on loopback below a temporary prefix: sample
content, `lumora serve` processes on free ports, and nginx with that configuration, changed only
in its port numbers. Used by the deployment test and by bench/serve."""

import os
import re
import shutil
import socket
import subprocess
import tempfile
import time
import urllib.request


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def fetch(url, headers=None):
    """(status, body) of a GET; HTTP errors are answers too."""
    request = urllib.request.Request(url, headers=headers or {})
    try:
        with urllib.request.urlopen(request, timeout=10) as reply:
            return reply.status, reply.read()
    except urllib.error.HTTPError as error:
        return error.code, error.read()


def start_serve(lumora, root, threads=None):
    """A `lumora serve` process on a free port, and its port (read from the line it prints)."""
    command = [lumora, "serve", root, "--port", "0", "--quiet"]
    if threads:
        command += ["--threads", str(threads)]
    process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
    line = process.stdout.readline()
    match = re.search(r"at http://127\.0\.0\.1:(\d+)/$", line.strip())
    if not match:
        process.terminate()
        raise RuntimeError(f"lumora serve printed {line!r}")
    return process, int(match.group(1))


def wait_until_answering(port, seconds=10):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        try:
            socket.create_connection(("127.0.0.1", port), timeout=1).close()
            return
        except OSError:
            time.sleep(0.05)
    raise RuntimeError(f"nothing answers on port {port}")


class Deployment:
    """with Deployment(lumora, config) as d: d.nginx_port, d.serve_ports, d.content"""

    def __init__(self, lumora, config, scale=1):
        self.lumora, self.config, self.scale = lumora, config, scale
        self.processes = []

    def __enter__(self):
        self.prefix = tempfile.mkdtemp(prefix="lumora-nginx-")
        # nginx's workers may run as another user than the test: let them read the content.
        os.chmod(self.prefix, 0o755)
        self.content = os.path.join(self.prefix, "content")
        subprocess.run([self.lumora, "sample", self.content, "--scale", str(self.scale)],
                       check=True, stdout=subprocess.DEVNULL)
        for folder in ("logs", "tmp"):
            os.makedirs(os.path.join(self.prefix, folder), mode=0o777, exist_ok=True)
            os.chmod(os.path.join(self.prefix, folder), 0o777)
        self.serve_ports = []
        for _ in range(2):
            process, port = start_serve(self.lumora, self.content)
            self.processes.append(process)
            self.serve_ports.append(port)
        self.nginx_port = free_port()
        with open(self.config, encoding="utf-8") as f:
            text = f.read()
        text = text.replace("127.0.0.1:8480", f"127.0.0.1:{self.nginx_port}")
        text = text.replace("127.0.0.1:8471", f"127.0.0.1:{self.serve_ports[0]}")
        text = text.replace("127.0.0.1:8472", f"127.0.0.1:{self.serve_ports[1]}")
        config = os.path.join(self.prefix, "serve-nginx.conf")
        with open(config, "w", encoding="utf-8") as f:
            f.write(text)
        nginx = subprocess.Popen(["nginx", "-p", self.prefix + "/", "-c", config,
                                  "-e", os.path.join(self.prefix, "logs/error.log"),
                                  "-g", "daemon off;"], stderr=subprocess.PIPE, text=True)
        self.processes.append(nginx)
        try:
            wait_until_answering(self.nginx_port)
        except RuntimeError:
            self.__exit__(None, None, None)
            raise
        return self

    def url(self, path):
        return f"http://127.0.0.1:{self.nginx_port}{path}"

    def __exit__(self, *exc):
        for process in reversed(self.processes):
            process.terminate()
        for process in self.processes:
            try:
                process.wait(timeout=15)
            except subprocess.TimeoutExpired:
                process.kill()
        shutil.rmtree(self.prefix, ignore_errors=True)
        return False


def a_medium(content, discipline_folder="D001"):
    """(path below the discipline's folder, bytes) of the smallest .swf medium of the sample."""
    best = None
    top = os.path.join(content, discipline_folder)
    for folder, _, files in os.walk(top):
        for name in files:
            if name.endswith(".swf"):
                path = os.path.join(folder, name)
                size = os.path.getsize(path)
                if size > 0 and (best is None or size < best[0]):
                    best = (size, path)
    with open(best[1], "rb") as f:
        return os.path.relpath(best[1], top), f.read()
