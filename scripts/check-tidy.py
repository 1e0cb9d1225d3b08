#!/usr/bin/env python3
"""Runs clang-tidy over every source of a build, several at once where the build compiles them so (K7DEVAL_JUMBO).

A batch is written out as one text for it, because several checks, the analyzer's among them, look only at the file that
is compiled, not at what it includes.

A clean result is kept in the user's cache, under what it depends on: the program, its checks, the compiler's flags and
the text that the compiler sees, with its comments, since they may switch checks off. So only what changed is read anew,
in whatever folder it lies. What is not clean is never kept.

Usage: check-tidy.py BUILD [PATTERN]   (PATTERN: only targets and sources whose path matches)
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parent.parent
TIDY = "clang-tidy-14"


def cache_folder():
    caches = os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache"
    return pathlib.Path(caches) / "k7deval" / "tidy"


class Batch:
    """One run of the compiler: what it reads, its flags and checks."""

    def __init__(self, command, build):
        self.source = pathlib.Path(command["file"])
        self.folder = command["directory"]
        words = shlex.split(command["command"])
        output = words.index("-o")
        self.output = words[output + 1]
        self.compiler = [word for word in words[:output] if not word.endswith("ccache")]
        self.compiler += words[output + 2 : words.index("-c")]
        self.lines = []  # Of the text that is read: its file and its line there.
        if "/Unity/" in command["file"]:
            self.source = self.write_together(build / "tidy" / f"{self.output.replace('/', '_')}.cpp")

    def write_together(self, path):
        """All sources of the batch, one behind the other; what is included already is left out."""
        parts = re.findall(r'^#include "(.*)"', self.source.read_text(encoding="utf-8"), re.MULTILINE)
        text, included = [], set()
        for part in parts:
            own = set()
            for number, line in enumerate(pathlib.Path(part).read_text(encoding="utf-8").splitlines(), 1):
                is_include = line.startswith("#include")
                text.append("" if is_include and line in included else line)
                self.lines.append((part, number))
                if is_include:
                    own.add(line)
            included |= own
        path.parent.mkdir(exist_ok=True)
        path.write_text("\n".join(text) + "\n", encoding="utf-8")
        return path

    def is_ours(self):
        if "verify_interface_header_sets" in self.output or self.source.name.startswith(("moc_", "qrc_")):
            return False
        return "/CMakeFiles/" in self.output

    def config(self):
        of_tests = self.output.startswith(("tests/", "examples/"))
        return PROJECT / ("tests/.clang-tidy" if of_tests else ".clang-tidy")

    def own_checks(self):
        """What the folder's own configuration says beside the project's."""
        own = PROJECT / self.output.split("/CMakeFiles/")[0] / ".clang-tidy"
        found = re.search(r"^Checks: (\S+)$", own.read_text(encoding="utf-8"), re.MULTILINE) if own.exists() else None
        return [f"--checks={found.group(1)}"] if found else []

    def key(self, version):
        """The hash of all that the result depends on, the same for every place of the project."""
        seen = subprocess.run(
            [*self.compiler, "-E", "-C", str(self.source)], cwd=self.folder, capture_output=True, check=True
        )
        flags = " ".join([*self.compiler, *self.own_checks()])
        key = hashlib.sha256(version + self.config().read_bytes())
        for part in (flags.encode(), seen.stdout):
            key.update(hashlib.sha256(part.replace(os.fsencode(PROJECT), b".")).digest())
        return key.hexdigest()

    def complaints(self):
        """What clang-tidy says against the sources; empty when they are clean."""
        result = subprocess.run(
            [TIDY, "-quiet", f"--config-file={self.config()}", *self.own_checks(), str(self.source)]
            + ["--", *self.compiler[1:]],
            cwd=self.folder,
            capture_output=True,
            text=True,
            check=False,
        )
        if result.returncode == 0 and not result.stdout.strip():
            return ""
        return re.sub(re.escape(str(self.source)) + r":(\d+)", self.place, result.stdout) or result.stderr

    def place(self, match):
        """Where a line of the batch comes from."""
        if not self.lines:
            return match.group(0)
        file, line = self.lines[int(match.group(1)) - 1]
        return f"{file}:{line}"

    def check(self, version):
        """The complaints, and whether the sources had to be read for them."""
        kept = cache_folder() / self.key(version)
        if kept.exists():
            kept.touch()
            return "", False
        found = self.complaints()
        if not found:
            kept.parent.mkdir(parents=True, exist_ok=True)
            kept.touch()
        return found, True


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    pattern = re.compile(sys.argv[2] if len(sys.argv) > 2 else "")
    version = subprocess.run([TIDY, "--version"], capture_output=True, check=True).stdout
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    batches = [Batch(command, build) for command in commands]
    batches = [each for each in batches if each.is_ours() and pattern.search(f"{each.output} {each.source}")]
    batches.sort(key=lambda each: each.source.stat().st_size, reverse=True)
    failed = looked_at = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for found, was_read in pool.map(lambda each: each.check(version), batches):
            looked_at += was_read
            if found:
                failed += 1
                print(found, flush=True)
    print(f"{len(batches)} sources or batches, {looked_at} read anew, {failed} with findings.")
    return 1 if failed or not batches else 0


if __name__ == "__main__":
    sys.exit(main())
