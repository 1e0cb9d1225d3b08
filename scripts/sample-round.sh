#!/usr/bin/env bash
# Builds the four sample sites and shows the three tools on them: the round of all seven-day tests, the load of two
# units and the range of two analyzers.
# Usage: sample-round.sh K7DEVAL OUT   (the program, and the folder for the sites, PDF and XML files)
set -euo pipefail
program=$(realpath "$1")
out=$2
data=$(cd "$(dirname "$0")/.." && pwd)/data

heading() {
    printf '%s\n%s\n\n' "$1" "${1//?/-}"
}

# new_site NAME FACILITY
new_site() {
    rm -f "$out/$1.site"
    echo "$2:"
    "$program" import --site "$out/$1.site" --facility "$2"
}

# take NAME FILE OPTION...
take() {
    "$program" import --site "$out/$1.site" "${@:3}" "$data/$1/$2"
}

mkdir -p "$out"
heading "Taking the files of four plants into sites"
new_site bethpage "Bethpage Energy Center"
take bethpage spans.csv
take bethpage ecmps_qa_50292.json --leave-out
take bethpage hourly_load_GT3.csv.gz --unit GT3
take bethpage hourly_load_GT4.csv.gz --unit GT4
new_site barrett "E F Barrett"
take barrett hourly_load_10.csv.gz --unit 10
take barrett hourly_load_20.csv.gz --unit 20
new_site crystal-river "Crystal River"
take crystal-river spans.csv
take crystal-river mats_hourly_4_HGC_2021Q3.csv --unit 4
new_site flint-creek "Flint Creek"
take flint-creek assumed_spans.csv
take flint-creek monitor_hourly_1_SO2C_2021Q4.csv --unit 1

echo
heading "Seven-day tests of Bethpage Energy Center"
"$program" round --site "$out/bethpage.site" --tests "$data/bethpage/tests.csv" --out "$out"

echo
heading "Load of Bethpage Energy Center, GT4 (30 and 84 MW are assumed)"
"$program" load --site "$out/bethpage.site" --unit GT4 --minimum 30 --capacity 84 --quarter 2021Q4 \
    --pdf "$out/bethpage_GT4_load.pdf"

echo
heading "Load of E F Barrett, unit 10 (45 and 195 MW are assumed)"
"$program" load --site "$out/barrett.site" --unit 10 --minimum 45 --capacity 195 --quarter 2021Q4 \
    --pdf "$out/barrett_10_load.pdf"

echo
heading "Range of Crystal River, unit 4, mercury"
"$program" range --site "$out/crystal-river.site" --unit 4 --parameter HG --quarter 2021Q3 \
    --pdf "$out/crystal-river_4_HG_range.pdf"

echo
heading "Range of Flint Creek, unit 1, SO2 (the range of 100 ppm is assumed)"
"$program" range --site "$out/flint-creek.site" --unit 1 --parameter SO2 --range 100 --mpc none --quarter 2021Q4 \
    --pdf "$out/flint-creek_1_SO2_range.pdf"
