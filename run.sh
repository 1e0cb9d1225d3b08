#!/usr/bin/env bash
# The main job: builds the program, makes the sample sites and shows the three tools on them.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

need "${build_packages[@]}"
quietly cmake --preset release -DK7DEVAL_BUILD_TESTS=OFF
quietly cmake --build --preset release
scripts/sample-round.sh build/release/hosts/cli/k7deval out
echo
echo "Reports (PDF) and ECMPS exports (XML) are in $(pwd)/out."
