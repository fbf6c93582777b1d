#!/usr/bin/env python3
"""The documents `lumora ... --json` prints for every resource, index, glossary word, grammar point
and list of the sample content, compared with a recorded manifest (one SHA-256 per command line).

    describe_golden.py LUMORA MANIFEST            compare; lists every command that differs
    describe_golden.py LUMORA MANIFEST --record   rewrite the manifest from this tool
    describe_golden.py LUMORA MANIFEST --dump DIR also write each output into DIR, one file per
                                                  line of the manifest, to see what changed

The sample is written at scale 3 into a temporary folder; dates print in UTC.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys
import tempfile

SCALE = "3"
# Queries that find something in each sample language and some that find nothing.
GLOSSARY_QUERIES = ["a", "e", "la", "zzz"]
GRAMMAR_QUERIES = [("a", 9), ("e", 12), ("der", 7), ("zzz", 9)]


def run(lumora, root, args):
    """The tool's stdout and exit code for `lumora ARGS` with ROOT in place of '@'."""
    argv = [lumora] + [root if a == "@" else a for a in args]
    done = subprocess.run(argv, capture_output=True, env=dict(os.environ, TZ="UTC"))
    return done.stdout, done.returncode


def json_of(lumora, root, args):
    out, code = run(lumora, root, args)
    if code != 0:
        raise SystemExit(f"lumora {' '.join(args)} failed with {code}")
    return json.loads(out)


def discipline_ids(lumora, root):
    """The disciplines the tool opens: those of type 0."""
    rows = json_of(lumora, root, ["disciplines", "@", "--json"])
    return [row["id"] for row in rows if row["type"] == 0]


def listed_numbers(index_type):
    """Every resource number an index lists."""
    numbers = []
    for group in index_type.get("groups", []):
        numbers += group["resources"]
    numbers += [entry["number"] for entry in index_type.get("entries", [])]
    numbers += index_type.get("numbers", [])
    return set(numbers)


def resource_files(root, d, types):
    """(type, id) of every resource file below the discipline's folder, of the types given."""
    found = set()
    folder = pathlib.Path(root) / f"D{int(d):03d}"
    for path in folder.glob("C*/r*/r*.ar[sh]"):
        course, type_folder = path.parent.parent.name, path.parent.name
        if int(type_folder[1:]) in types:
            found.add((int(type_folder[1:]), (int(course[1:]) << 20) | int(path.stem[1:])))
    return found


def resource_commands(root, d, index):
    """Every resource file of the discipline, and every number its index lists as an id of
    course 1 (numbers are per course, so some of these name no file: the answers say why)."""
    types = {t["type"] for t in index["types"]}
    wanted = resource_files(root, d, types)
    for index_type in index["types"]:
        wanted |= {(index_type["type"], (1 << 20) | n) for n in listed_numbers(index_type)}
    return [["resource", "@", "-d", d, "--type", str(t), "--id", hex(rid), "--json"]
            for t, rid in sorted(wanted)]


def glossary_commands(lumora, root, d):
    base = ["glossary", "@", "-d", d, "--json"]
    commands = [base + ["letters"], base + ["by-letter"], base + ["by-letter", "--level", "2"]]
    commands += [base + ["find", q] for q in GLOSSARY_QUERIES]
    commands += [base + ["find", "l", "--prefix"]]
    out, code = run(lumora, root, base + ["by-letter"])
    if code != 0:
        return commands
    words = sorted({w["fnId"] for row in json.loads(out) for w in row["words"]})
    for fn in words:
        commands.append(base + ["word", str(fn), "--path-kind", "url"])
    if words:
        commands.append(base + ["by-letter", "--linked", str(words[0])])
    return commands


def grammar_commands(lumora, root, d):
    base = ["grammar", "@", "-d", d, "--json"]
    commands = [base + ["levels"], base + ["categories"]]
    commands += [base + ["find", q, "--language", str(lang)] for q, lang in GRAMMAR_QUERIES]
    out, code = run(lumora, root, base + ["categories"])
    if code != 0:
        return commands
    points = sorted({p for c in json.loads(out) for s in c["subcategories"] for p in s["points"]})
    commands += [base + ["point", str(p)] for p in points]
    return commands


def all_commands(lumora, root):
    commands = [["classification", "@", "--json"]]
    for d in map(str, discipline_ids(lumora, root)):
        index = json_of(lumora, root, ["index", "@", "-d", d, "--json"])
        commands.append(["index", "@", "-d", d, "--json"])
        commands += [["index", "@", "-d", d, "--type", str(t["type"]), "--json"]
                     for t in index["types"]]
        commands += resource_commands(root, d, index)
        commands += glossary_commands(lumora, root, d)
        commands += grammar_commands(lumora, root, d)
        packages_command = ["packages", "@", "-d", d, "--json"]
        commands.append(packages_command)
        out, code = run(lumora, root, packages_command)
        if code == 0 and json.loads(out):
            ids = ",".join(str(p["id"]) for p in json.loads(out))
            commands.append(["packages", "@", "-d", d, "--resources", ids, "--json"])
    return commands


def output(lumora, root, args):
    """The output and exit code, the temporary folder's name replaced so that runs compare."""
    out, code = run(lumora, root, args)
    return out.replace(root.encode(), b"ROOT") + f"\nexit {code}\n".encode()


def dump(folder, args, text):
    name = "_".join(a for a in args if a not in ("@", "--json")).replace("/", "_")
    pathlib.Path(folder, name).write_bytes(text)


def main():
    lumora, manifest = sys.argv[1], sys.argv[2]
    record = "--record" in sys.argv[3:]
    dump_folder = sys.argv[sys.argv.index("--dump") + 1] if "--dump" in sys.argv else None
    with tempfile.TemporaryDirectory() as folder:
        root = os.path.join(folder, "content")
        subprocess.run([lumora, "sample", root, "--scale", SCALE], check=True,
                       capture_output=True)
        commands = all_commands(lumora, root)
        with concurrent.futures.ThreadPoolExecutor(max_workers=2) as pool:
            outputs = list(pool.map(lambda args: output(lumora, root, args), commands))
    if dump_folder:
        os.makedirs(dump_folder, exist_ok=True)
        for args, text in zip(commands, outputs):
            dump(dump_folder, args, text)
    digests = [hashlib.sha256(text).hexdigest() for text in outputs]
    lines = [f"{h}  {' '.join(args)}" for h, args in zip(digests, commands)]
    if record:
        with open(manifest, "w", encoding="utf-8") as out:
            out.write("\n".join(lines) + "\n")
        print(f"{len(lines)} commands recorded")
        return 0
    with open(manifest, encoding="utf-8") as recorded:
        expected = recorded.read().splitlines()
    differing = sorted(set(expected) ^ set(lines))
    for line in differing:
        print(("recorded: " if line in expected else "now:      ") + line)
    print(f"{len(lines)} commands, {len(differing)} lines differ")
    return 1 if differing else 0


if __name__ == "__main__":
    sys.exit(main())
