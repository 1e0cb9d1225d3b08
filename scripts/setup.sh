#!/usr/bin/env bash
# Sourced by run.sh and test.sh: makes sure that the machine has what the project builds with, and tells how far a long
# step is. Debian 12 packages; quiet when nothing is missing.

# shellcheck disable=SC2034  # They are used where this is sourced.
build_packages=(
    ca-certificates cmake ninja-build g++ ccache
    libpugixml-dev libhpdf-dev libsqlite3-dev zlib1g-dev nlohmann-json3-dev libcli11-dev
    fonts-dejavu-core fonts-urw-base35 pybind11-dev python3-dev qt6-base-dev
)
# shellcheck disable=SC2034
test_packages=(
    clang-format clang-tidy codespell flake8 git libgtest-dev libgmock-dev librapidcheck-dev poppler-utils python3 python3-numpy
    python3-pytest qpdf shellcheck
)
# How long another process may hold the package system's locks, in seconds.
patience=600

# say TEXT: how far it is. On a terminal in one line that is written over, elsewhere a line now and then.
say() {
    if [ -t 1 ]; then
        printf '\r\033[K%s' "$1"
    elif [ "${2:-}" = always ] || [ $((SECONDS - ${said_at:-0})) -ge 20 ]; then
        printf '%s\n' "$1"
        said_at=$SECONDS
    fi
}

end_of_line() {
    if [ -t 1 ]; then echo; fi
}

# with_locks COMMAND...: runs a command of the package system, which fails at once while another process has its locks
# (the option DPkg::Lock::Timeout covers one of four), again until it gets them.
with_locks() {
    local log=$1 end=$((SECONDS + patience)) urgency=always
    shift
    until "$@" >"$log" 2>&1; do
        grep -qE 'Could not get lock|Unable to (acquire|lock)|is another process using it' "$log" || return 1
        [ $SECONDS -lt $end ] || return 1
        say "Waiting for another process that installs packages" $urgency
        urgency=
        sleep 3
    done
}

# need PACKAGE...: installs those that are missing.
need() {
    local missing=() package log
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if [ "$(id -u)" -ne 0 ]; then
        echo "These packages are missing; install them as root with: apt-get install ${missing[*]}" >&2
        exit 2
    fi
    say "Installing ${missing[*]}" always
    end_of_line
    log=$(mktemp)
    if ! with_locks "$log" apt-get update || ! DEBIAN_FRONTEND=noninteractive with_locks "$log" \
        apt-get install -y --no-install-recommends -o DPkg::Lock::Timeout=$patience "${missing[@]}"; then
        cat "$log" >&2
        echo "The packages could not be installed." >&2
        exit 2
    fi
    rm -f "$log"
}

# step TEXT COMMAND...: says what is done, and how far it is where the command tells ("[12/312] ..."). All other
# lines that it prints are shown when it fails.
step() {
    local text=$1 log
    shift
    log=$(mktemp)
    say "$text" always
    if ! "$@" 2>&1 | while IFS= read -r line; do
        if [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]]; then
            say "$text: ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
        else
            printf '%s\n' "$line" >>"$log"
        fi
    done; then
        end_of_line
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    end_of_line
    rm -f "$log"
}
