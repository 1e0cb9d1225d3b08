#!/usr/bin/env bash
# All tests: style, static checks, and every test program in a debug build with sanitizers.
#   --fast   without the static checks (clang-tidy), which take longest
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

left_out=()
case "${1:-}" in
"") ;;
--fast) left_out=(--exclude-regex '^style\.tidy$') ;;
*)
    echo "usage: ./test.sh [--fast]" >&2
    exit 2
    ;;
esac

need "${build_packages[@]}" "${test_packages[@]}"
step "[1/3] Configuring" cmake --preset sanitize
step "[2/3] Building" cmake --build --preset sanitize --target all all_verify_interface_header_sets
echo "[3/3] Testing"
ctest --preset sanitize --output-on-failure "${left_out[@]}"
