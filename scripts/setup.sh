# Sourced by run.sh and test.sh: makes sure that the machine has what the project builds with.
# Debian 12 packages; quiet when nothing is missing.

build_packages=(
    ca-certificates cmake ninja-build g++ ccache
    libpugixml-dev libhpdf-dev libsqlite3-dev zlib1g-dev nlohmann-json3-dev libcli11-dev
    fonts-dejavu-core fonts-urw-base35 pybind11-dev python3-dev qt6-base-dev
)
test_packages=(
    clang-format clang-tidy git libgtest-dev libgmock-dev librapidcheck-dev poppler-utils python3 python3-numpy
    python3-pytest qpdf
)

# need PACKAGE...: installs those that are missing.
need() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if [ "$(id -u)" -ne 0 ]; then
        echo "These packages are missing; install them as root with: apt-get install ${missing[*]}" >&2
        exit 2
    fi
    echo "Installing ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
            "${missing[@]}"; } >"$log" 2>&1; then
        cat "$log" >&2
        echo "The packages could not be installed." >&2
        exit 2
    fi
    rm -f "$log"
}

# quietly COMMAND...: shows what a command prints only when it fails.
quietly() {
    local log
    log=$(mktemp)
    if ! "$@" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}
