#!/usr/bin/env bash
# The code on the embedding page stands in the examples word for word, and the examples do what the page says.
# Usage: check-embedding.sh K7DEVAL DRIFT_HOST LOAD_HOST QT_HOST
set -euo pipefail
folder=$(cd "$(dirname "$0")/.." && pwd)
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

sed -n '/^```cpp$/,/^```$/p' "$folder/docs/embedding.md" | sed '/^```/d' >"$out/shown.txt"
[ -s "$out/shown.txt" ]
for example in drift_host load_host qt_host; do
    sed -n '/^\(void\|int\) evaluate/,/^}$/p' "$folder/examples/$example.cpp"
done | diff -u - "$out/shown.txt"

"$folder/scripts/sample-round.sh" "$1" "$out" >/dev/null
"$2" "$out/bethpage.site" "$out/report.pdf" >"$out/printed.txt"
grep -q '^GT4 NOX 206/H$' "$out/printed.txt"
grep -q '^Starting on 5/16/2018 there are 6 on-line cal(s) counted' "$out/printed.txt"
pdftotext -layout "$out/report.pdf" - | grep -q 'Bethpage Energy Center'

"$3" "$out/barrett.site" "$out/load.pdf" >"$out/printed.txt"
grep -q '^10 Load$' "$out/printed.txt"
grep -q '^53.9% High Op Load$' "$out/printed.txt"
grep -q '^11 hour(s) over 195 - Maximum 204$' "$out/printed.txt"
pdftotext -layout "$out/load.pdf" - | grep -q 'E F Barrett'

QT_QPA_PLATFORM=offscreen "$4" "$out/barrett.site" "$out/window.png"
[ -s "$out/window.png" ]
