#!/usr/bin/env bash
# Builds the Bethpage sample site and evaluates all its seven-day tests.
# Usage: sample-round.sh K7DEVAL OUT   (the program, and the folder for the site, PDF and XML files)
set -euo pipefail
program=$(realpath "$1")
out=$2
data=$(cd "$(dirname "$0")/.." && pwd)/data/bethpage

mkdir -p "$out"
site=$out/bethpage.site
rm -f "$site"
"$program" import --site "$site" --facility "Bethpage Energy Center" "$data/spans.csv"
"$program" import --site "$site" --leave-out "$data/ecmps_qa_50292.json"
for unit in GT3 GT4; do
    "$program" import --site "$site" --unit "$unit" "$data/hourly_load_$unit.csv.gz"
done
echo
"$program" round --site "$site" --tests "$data/tests.csv" --out "$out"
