#!/bin/sh
# The texts below tests/golden that tests compare with (reports by their placed items, screens by
# their widgets): shows what differs from them, and approves a difference.
#
#   scripts/golden.sh [BUILD]                  the differences of all cases
#   scripts/golden.sh --case CASE [BUILD]      those of one, as "load-report/six-hours"
#   scripts/golden.sh --approve CASE [BUILD]   makes what the tests give now the approved text
#   scripts/golden.sh --approve all [BUILD]    of every case that differs; look at them first
#
# BUILD is the build folder, build/dev if not said otherwise. The test programs must be built.
set -eu

cd "$(dirname "$0")/.."

usage() {
    sed -n '2,11s/^# \{0,1\}//p' scripts/golden.sh >&2
    exit 2
}

approve=no
wanted=all
case "${1-}" in
--case | --approve)
    [ $# -ge 2 ] || usage
    [ "$1" = --approve ] && approve=yes
    wanted=$2
    shift 2
    ;;
-*) usage ;;
esac
build=${1:-build/dev}

if [ "$approve" = yes ] && [ -n "${CI-}" ]; then
    echo "golden.sh: a text is approved by a person, not by CI" >&2
    exit 2
fi

received=$(mktemp -d)
trap 'rm -rf "$received"' EXIT

programs=$(find "$build/tests" -name 'test_*' -type f -perm -u+x)
[ -n "$programs" ] || { echo "golden.sh: no test programs in $build/tests" >&2; exit 2; }
for program in $programs; do
    K7DEVAL_RECEIVED=$received QT_QPA_PLATFORM=offscreen \
        "$program" --gtest_filter='*Approved*' --gtest_brief=1 >/dev/null 2>&1 || true
done

found=0
for text in $(cd "$received" && find . -type f | sort); do
    text=${text#./}
    [ "$wanted" = all ] || [ "$wanted" = "$(dirname "$text")" ] || continue
    found=1
    golden=tests/golden/$text
    if [ "$approve" = yes ]; then
        mkdir -p "$(dirname "$golden")"
        cp "$received/$text" "$golden"
        echo "approved $text"
    elif [ -e "$golden" ]; then
        diff -u --label "approved $text" --label "now $text" "$golden" "$received/$text" || true
    else
        diff -u --label "approved: nothing" --label "now $text" /dev/null "$received/$text" || true
    fi
done

if [ "$found" = 0 ]; then
    echo "golden.sh: nothing differs from what was approved"
elif [ "$approve" = no ]; then
    exit 1
fi
