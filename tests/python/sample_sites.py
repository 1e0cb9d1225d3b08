"""The sample sites, made by the command line."""

import json
import os
import pathlib
import subprocess

SOURCES = pathlib.Path(os.environ["K7DEVAL_SOURCE_DIR"])
DATA = SOURCES / "data"


def run_program(*arguments):
    # The program brings its own sanitizers, if it has any.
    environment = {name: value for name, value in os.environ.items() if name != "LD_PRELOAD"}
    result = subprocess.run(
        [os.environ["K7DEVAL_PROGRAM"], *map(str, arguments)],
        env=environment,
        capture_output=True,
        text=True,
        check=True,
    )
    return result.stdout


def run_as_json(*arguments):
    return json.loads(run_program(*arguments, "--json"))


def make_bethpage(folder):
    site = folder / "bethpage.site"
    data = DATA / "bethpage"
    take = ("import", "--site", site)
    run_program(*take, "--facility", "Bethpage Energy Center", data / "spans.csv")
    run_program(*take, "--leave-out", data / "ecmps_qa_50292.json")
    run_program(*take, "--unit", "GT4", data / "hourly_load_GT4.csv.gz")
    return site


def make_flint_creek(folder):
    site = folder / "flint-creek.site"
    data = DATA / "flint-creek"
    run_program("import", "--site", site, data / "assumed_spans.csv")
    run_program("import", "--site", site, "--unit", "1", data / "monitor_hourly_1_SO2C_2021Q4.csv")
    return site
