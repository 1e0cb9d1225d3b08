#!/usr/bin/env bash
# The main job: builds the programs and makes the sample sites. Then opens the desktop program on them or, without a
# display, shows the three tools on the command line.
#   --cli               the command line in any case
#   --screenshots DIR   pictures of each screen instead, which needs no display
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

usage() {
    echo "usage: ./run.sh [--cli | --screenshots DIR]" >&2
    exit 2
}

mode=desktop
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || mode=cli
case "${1:-}" in
"") [ $# -eq 0 ] || usage ;;
--cli) [ $# -eq 1 ] || usage; mode=cli ;;
--screenshots) [ $# -eq 2 ] || usage; mode=screenshots ;;
*) usage ;;
esac

need "${build_packages[@]}"
step "[1/3] Configuring" cmake --preset release -DK7DEVAL_BUILD_TESTS=OFF
step "[2/3] Building" cmake --build --preset release
programs=build/release/hosts
case $mode in
cli)
    echo "[3/3] The sample round"
    scripts/sample-round.sh $programs/cli/k7deval out
    echo
    echo "Reports (PDF) and ECMPS exports (XML) are in $(pwd)/out."
    ;;
screenshots)
    step "[3/3] Making the sample sites" scripts/sample-round.sh $programs/cli/k7deval out
    $programs/workbench/k7deval-screenshots out data/bethpage "$2"
    ;;
desktop)
    step "[3/3] Making the sample sites" scripts/sample-round.sh $programs/cli/k7deval out
    $programs/workbench/k7deval-workbench out/{bethpage,barrett,crystal-river,flint-creek}.site
    ;;
esac
