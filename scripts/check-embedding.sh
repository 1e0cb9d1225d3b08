#!/usr/bin/env bash
# The code on the embedding page stands in the example word for word, and the example does what the page says.
# Usage: check-embedding.sh K7DEVAL DRIFT_HOST
set -euo pipefail
folder=$(cd "$(dirname "$0")/.." && pwd)
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

sed -n '/^```cpp$/,/^```$/p' "$folder/docs/embedding.md" | sed '/^```/d' >"$out/shown.txt"
[ -s "$out/shown.txt" ]
sed -n '/^void evaluate/,/^}$/p' "$folder/examples/drift_host.cpp" | diff -u - "$out/shown.txt"

"$folder/scripts/sample-round.sh" "$1" "$out" >/dev/null
"$2" "$out/bethpage.site" "$out/report.pdf" >"$out/printed.txt"
grep -q '^GT4 NOX 206/H$' "$out/printed.txt"
grep -q '^Starting on 5/16/2018 there are 6 on-line cal(s) counted' "$out/printed.txt"
pdftotext -layout "$out/report.pdf" - | grep -q 'Bethpage Energy Center'
