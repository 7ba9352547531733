#!/usr/bin/env python3
"""Runs clang-tidy over sources in parallel. What was clean is remembered by its content and that of the headers it
includes, so that a second run looks only at what changed."""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)
FAULT = re.compile(r"(warning|error):")
# Sources for Windows are read as its compiler would, with its own headers.
WINDOWS = re.compile(r"/windows/")
PRECOMPILED = re.compile(r"-include \S+cmake_pch\.hxx|-Winvalid-pch")
QT_OPTION = re.compile(r"-DQT_\S+|-isystem \S*/qt6\S*|-isystem \S*/Qt\w+")


def git(*arguments: str) -> list[str]:
    return subprocess.run(["git", *arguments], cwd=ROOT, check=True, capture_output=True, text=True).stdout.splitlines()


def tracked_sources() -> list[str]:
    return git("ls-files", "src/*.cpp")


class Includes:
    """Which of our own headers a source sees, told from the text alone."""

    def __init__(self) -> None:
        self.direct: dict[pathlib.Path, list[pathlib.Path]] = {}

    def of(self, path: pathlib.Path) -> list[pathlib.Path]:
        if path not in self.direct:
            names = INCLUDE.findall(path.read_text(encoding="utf-8"))
            places = [place for name in names for place in (ROOT / "src" / name, path.parent / name) if place.exists()]
            self.direct[path] = places
        return self.direct[path]

    def closure(self, source: str) -> list[pathlib.Path]:
        seen, waiting = set(), [ROOT / source]
        while waiting:
            path = waiting.pop()
            if path not in seen:
                seen.add(path)
                waiting += self.of(path)
        return sorted(seen)


def system_folders(compiler: str) -> list[str]:
    """Where the cross compiler has its headers; its own of the processor are no use to another compiler."""
    said = subprocess.run([compiler, "-E", "-v", "-x", "c++", os.devnull], check=True, capture_output=True, text=True)
    listed = said.stderr.split("search starts here:\n")[-1].split("End of search list")[0].split()
    return [folder for folder in listed if not re.search(r"/gcc/[^+]*/include(-fixed)?$", folder)]


def read_windows_commands() -> bool:
    """The cross compiler's commands as clang can use them: without its precompiled header. What is of the window is
    not built for Windows yet; it is read with the headers of this system."""
    made = ROOT / "build/windows/compile_commands.json"
    if not made.exists():
        return False
    commands = json.loads(made.read_text(encoding="utf-8"))
    folders = "".join(f" -isystem {folder}" for folder in system_folders(commands[0]["command"].split()[0]))
    for entry in commands:
        entry["command"] = PRECOMPILED.sub("", entry["command"]) + folders
    core = next(entry for entry in commands if "/src/platform/windows/" in entry["file"])
    built = {entry["file"] for entry in commands}
    here = json.loads((ROOT / "build/lint/compile_commands.json").read_text(encoding="utf-8"))
    window = " ".join(QT_OPTION.findall(next(entry["command"] for entry in here if "/src/app/" in entry["file"])))
    for source in tracked_sources():
        file = str(ROOT / source)
        if WINDOWS.search(source) and file not in built:
            command = core["command"].replace(core["file"], file) + " " + window
            commands.append({"directory": core["directory"], "command": command, "file": file})
    folder = ROOT / "build/lint/windows"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "compile_commands.json").write_text(json.dumps(commands), encoding="utf-8")
    return True


class Tidy:
    def __init__(self) -> None:
        self.includes = Includes()
        self.memory = ROOT / "build/lint/clean"
        self.memory.mkdir(parents=True, exist_ok=True)
        version = subprocess.run(["clang-tidy", "--version"], check=True, capture_output=True).stdout
        self.rules = version + (ROOT / ".clang-tidy").read_bytes()

    def command(self, source: str) -> list[str]:
        if WINDOWS.search(source):
            return ["clang-tidy", "-p", "build/lint/windows", "--quiet", "--extra-arg-before=--target=x86_64-w64-mingw32",
                    "--extra-arg=-Wno-unknown-warning-option", source]
        return ["clang-tidy", "-p", "build/lint", "--quiet", source]

    def fingerprint(self, source: str) -> str:
        digest = hashlib.sha256(self.rules)
        digest.update(" ".join(self.command(source)).encode())
        for path in self.includes.closure(source):
            digest.update(path.read_bytes())
        return digest.hexdigest()

    def check(self, source: str) -> str:
        """What clang-tidy says; nothing when it finds the source clean."""
        mark = self.memory / self.fingerprint(source)
        if mark.exists():
            return ""
        run = subprocess.run(self.command(source), cwd=ROOT, capture_output=True, text=True)
        if run.returncode == 0 and not FAULT.search(run.stdout):
            mark.touch()
            return ""
        return run.stdout + run.stderr


def changed_sources(since: str) -> list[str]:
    """Sources that differ from that commit, and those that include a header that does, the latest change first."""
    changed = {ROOT / name for name in git("diff", "--name-only", since, "--", "src")}
    includes = Includes()
    sources = [name for name in tracked_sources() if changed & set(includes.closure(name))]
    own = [name for name in sources if ROOT / name in changed]
    return own + [name for name in sources if name not in own]


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--since", metavar="COMMIT", help="only what changed since then")
    parser.add_argument("--seconds", type=float, default=float("inf"), help="begin with no further source after these")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    options = parser.parse_args()

    sources = changed_sources(options.since) if options.since else tracked_sources()
    if not read_windows_commands():
        left = [name for name in sources if WINDOWS.search(name)]
        sources = [name for name in sources if name not in left]
        if left:
            print(f"Not read, since nothing was built for Windows here: {len(left)} sources.")
    tidy, start = Tidy(), time.monotonic()
    findings, late = [], []

    def work(source: str) -> None:
        if time.monotonic() - start > options.seconds:
            late.append(source)
        elif said := tidy.check(source):
            findings.append(source)
            print(said, flush=True)

    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        list(pool.map(work, sources))
    print(f"{len(sources) - len(late)} sources read, {len(findings)} with findings.")
    if late:
        print(f"The time was over before {len(late)} others.")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
