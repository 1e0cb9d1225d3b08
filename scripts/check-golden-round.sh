#!/usr/bin/env bash
# Runs the sample round with a program and compares what it prints with the approved text.
# Usage: check-golden-round.sh K7DEVAL   (--approve as second argument takes the text as it is now)
set -euo pipefail
folder=$(cd "$(dirname "$0")/.." && pwd)
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
"$folder/scripts/sample-round.sh" "$1" "$out" >"$out/printed.txt"
golden=$folder/tests/golden/sample-round/printed.txt
if [ "${2:-}" = --approve ]; then
    mkdir -p "$(dirname "$golden")"
    cp "$out/printed.txt" "$golden"
fi
diff -u "$golden" "$out/printed.txt"
