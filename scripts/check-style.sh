#!/usr/bin/env bash
# What holds for every file. Usage: check-style.sh [CHECK...]
#   format    sources as clang-format would have them
#   includes  an include names its own folder or one below it; no toolkit, no SQL, no Python in src/
#   length    no source, test or script has more than 500 lines
#   blanks    none at the end of a line
#   shell     shellcheck
#   python    flake8 (Debian 12 has no package of ruff)
#   spelling  codespell
#   tidy      clang-tidy; reads how build/sanitize compiles, or the build that BUILD names
# Without a CHECK all of them, the longest last.
set -euo pipefail
cd "$(dirname "$0")/.."

all_checks=(format includes length blanks shell python spelling tidy)
# Which way the folders depend: on those with a lower number.
declare -A level=(
    [foundation]=0 [screen]=1 [report]=1 [histogram]=2 [sevenday]=3 [load]=3 [range]=3 [selection]=3
    [sitedb]=4 [latebound]=4 [evaluation]=5 [qt]=6 [cli]=6 [python]=6 [workbench]=7
)
# What the library does without.
foreign='<(Q[A-Za-z/]*|sqlite3\.h|libpq-fe\.h|zlib\.h|nlohmann/.*|CLI/.*|pybind11/.*|Python\.h|windows\.h|unistd\.h|sys/.*)>'

# The project's own text, of the given patterns.
files() {
    # The checkout may belong to another user than the one who checks it.
    git -c safe.directory='*' ls-files --cached --others --exclude-standard -- "$@" | while IFS= read -r file; do
        if [ -f "$file" ]; then printf '%s\n' "$file"; fi
    done
}

# fail_if_any TEXT: fails with what comes in, if anything does.
fail_if_any() {
    local found
    found=$(cat)
    [ -z "$found" ] && return 0
    printf '%s:\n%s\n' "$1" "$found" >&2
    return 1
}

check_format() {
    files '*.h' '*.cpp' | xargs clang-format-14 --dry-run --Werror
}

# The includes that point upward, as file:line:text.
upward_includes() {
    local file line folder included
    files 'src/*.h' 'src/*.cpp' 'hosts/*.h' 'hosts/*.cpp' | xargs grep -nE '^#include "[a-z0-9]+/' |
        while IFS=: read -r file line included; do
            folder=$(cut -d/ -f2 <<<"$file")
            included=${included#*\"}
            included=${included%%/*}
            [ "$included" = "$folder" ] && continue
            if [ -z "${level[$folder]:-}" ] || [ "${level[$included]:-99}" -ge "${level[$folder]}" ]; then
                echo "$file:$line: $included/"
            fi
        done
}

check_includes() {
    upward_includes | fail_if_any "These includes point upward" || return 1
    (files 'src/*.h' 'src/*.cpp' | xargs grep -nE "^#include $foreign" || true) |
        fail_if_any "These includes are not for src/"
}

check_length() {
    # Stubs (*.pyi) are written by a script.
    files '*.h' '*.cpp' '*.py' '*.sh' '*.cmake' '*CMakeLists.txt' | xargs wc -l |
        awk '$1 > 500 && $2 != "total"' | fail_if_any "These files have more than 500 lines"
}

check_blanks() {
    (files '*.h' '*.cpp' '*.py' '*.sh' '*.cmake' '*CMakeLists.txt' '*.md' '*.json' '.clang-*' '.ci/*' \
        ':!:data' ':!:tests/golden' ':!:tests/*/data' | xargs grep -nE '[[:blank:]]+$' || true) |
        fail_if_any "These lines end in blanks"
}

check_shell() {
    # SC2016: single quotes keep a page's back quotes from the shell. SC2317: the checks are called by name.
    files '*.sh' '.ci/run' | xargs shellcheck --external-sources --exclude=SC2016,SC2317
}

check_python() {
    # E203 and E731 are about looks that the project does not mind.
    files '*.py' | xargs flake8 --max-line-length 120 --extend-ignore E203,E731 --per-file-ignores '__init__.py:F401,F403'
}

check_spelling() {
    files '*.h' '*.cpp' '*.py' '*.sh' '*.cmake' '*CMakeLists.txt' '*.md' '*.html' |
        xargs codespell --ignore-words scripts/spelling.txt
}

check_tidy() {
    scripts/check-tidy.py "${BUILD:-build/sanitize}"
}

checks=("$@")
[ $# -gt 0 ] || checks=("${all_checks[@]}")
failed=()
for check in "${checks[@]}"; do
    if ! declare -F "check_$check" >/dev/null; then
        echo "No check is called $check: ${all_checks[*]}" >&2
        exit 2
    fi
    if ! "check_$check"; then
        failed+=("$check")
    fi
done
[ ${#failed[@]} -eq 0 ] && exit 0
echo "Failed: ${failed[*]}" >&2
exit 1
