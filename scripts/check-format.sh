#!/usr/bin/env bash
# Fails for a source file that clang-format would change.
set -euo pipefail
cd "$(dirname "$0")/.."
find src hosts tests examples bench -name '*.h' -o -name '*.cpp' | sort | xargs clang-format-14 --dry-run --Werror
