#!/usr/bin/env bash
# The tour behind `make demo`: writes the sample content and shows what the tool can do so far.
set -euo pipefail
lumora=${1:-build/lumora}
dir=${2:-demo-content}
export lumora dir

# Shows a command as a person would type it, then runs it.
step() {
  printf '\n\033[1m== %s\033[0m\n$ %s\n' "$1" "$2"
  eval "${2//lumora /\"\$lumora\" }"
}

rm -rf "$dir"
step "Version" 'lumora --version'
step "Write a sample content root" 'lumora sample $dir'
step "Its configuration" 'cat $dir/Content.ini'
step "The language table (first rows)" 'lumora languages | head -8'
step "Checksums as CRCFile.ini stores them" 'lumora crc $dir/Content.ini --json'
step "Code page 1251 bytes decoded to UTF-8" "printf '\\xcf\\xf0\\xe8\\xe2\\xe5\\xf2\\n' | lumora codepage decode 1251"
step "And back to code page 1251" "printf 'Привет\\n' | lumora codepage encode 1251 | od -An -tx1"
