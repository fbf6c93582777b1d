#!/usr/bin/env bash
# The tour behind `make demo`: writes the sample content and shows what the tool can do so far.
set -euo pipefail
tool=${1:-build/lumora}
dir=${2:-demo-content}

step() { printf '\n\033[1m== %s\033[0m\n$ %s\n' "$1" "${*:2}"; "${@:2}"; }

step "Version" "$tool" --version
rm -rf "$dir"
step "Write a sample content root" "$tool" sample "$dir"
step "Its configuration" cat "$dir/Content.ini"
step "The language table (first rows)" bash -c "\"$tool\" languages | head -8"
step "Checksums as CRCFile.ini stores them" "$tool" crc "$dir/Content.ini"
step "Code page 1251 bytes decoded to UTF-8" bash -c "printf '\xcf\xf0\xe8\xe2\xe5\xf2\n' | \"$tool\" codepage decode 1251"
step "And back to code page 1251" bash -c "printf 'Привет\n' | \"$tool\" codepage encode 1251 | od -An -tx1"
