#!/usr/bin/env bash
# Runs clang-tidy over every source file of a build. Usage: check-tidy.sh BUILD
set -euo pipefail
build=$(realpath "$1")
cd "$(dirname "$0")/.."
run-clang-tidy-14 -quiet -p "$build" -j "$(nproc)" "$(pwd)/(src|hosts|tests|examples)/.*" 2>&1 |
    { grep -vE '^(clang-tidy-14 |[0-9]+ warnings (generated|treated)|Suppressed |Use -header-filter)' || true; }
exit "${PIPESTATUS[0]}"
