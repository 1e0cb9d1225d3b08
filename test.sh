#!/usr/bin/env bash
# All tests: formatting, static checks, and every test program in a debug build with sanitizers.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

need "${build_packages[@]}" "${test_packages[@]}"
quietly cmake --preset sanitize
quietly cmake --build --preset sanitize
quietly cmake --build --preset sanitize --target all_verify_interface_header_sets
ctest --preset sanitize --output-on-failure
