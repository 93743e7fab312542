#!/usr/bin/env python3
"""clang-tidy over the sources of a build folder, as .clang-tidy has it.

Usage: tidy.py BUILD FOLDER...

Checks the sources below each FOLDER of the project, with the flags by which BUILD compiles them; one
that was clean is left out until it, a header of the project or the configuration has changed. Prints
the findings; status 1 when there are any. What BUILD has not compiled yet is checked every time.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Findings in headers count where the header is the project's own and not generated.
FOLDERS = sorted(path.name for path in ROOT.iterdir()
                 if path.is_dir() and path.name not in ("build", "dist") and path.name[0] != ".")
HEADERS = f"^{ROOT}/({'|'.join(FOLDERS)})/"
# gcc alone knows them.
FOREIGN_FLAGS = {"-fno-keep-inline-dllexport", "-Wno-restrict", "-fpch-preprocess"}


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


@functools.cache
def cross_flags(compiler):
    """What makes clang compile for Windows, with the standard library of the given gcc."""
    seen = subprocess.run([compiler, "-E", "-v", "-xc++", os.devnull],
                          check=True, capture_output=True, text=True).stderr
    listed = seen.split("search starts here:")[-1].split("End of search list")[0]
    folders = [line.strip() for line in listed.splitlines() if line.startswith(" ")]
    # Those of the compiler itself hold what clang has its own of.
    folders = [folder for folder in folders if "/c++" in folder or "/lib/gcc/" not in folder]
    return ["--target=x86_64-w64-mingw32", "-nostdinc++",
            *(flag for folder in folders for flag in ("-isystem", folder))]


@functools.cache
def hash_of(path):
    return hashlib.sha256(path.read_bytes()).digest() if path.exists() else b""


class Source:
    """A source, and how it is compiled."""

    def __init__(self, entry, dependencies):
        self.path = pathlib.Path(entry["file"])
        compiler, *flags = shlex.split(entry["command"])
        self.object = flags[flags.index("-o") + 1]
        del flags[flags.index("-o"):]
        if "mingw" in compiler:
            flags += cross_flags(compiler)
        self.flags = [flag for flag in flags if flag not in FOREIGN_FLAGS]
        self.dependencies = dependencies.get(self.object)

    def key(self, version):
        """Changes with all that the findings depend on; None when that is not known."""
        if self.dependencies is None:
            return None
        whole = hashlib.sha256(repr((version, self.flags)).encode())
        configurations = [folder / ".clang-tidy" for folder in self.path.parents
                          if folder.is_relative_to(ROOT)]
        for path in [self.path, *configurations, *self.dependencies]:
            whole.update(hash_of(path))
        return whole.hexdigest()

    def check(self):
        done = subprocess.run(["clang-tidy", "--quiet", f"--header-filter={HEADERS}",
                               str(self.path), "--", *self.flags],
                              capture_output=True, text=True)
        return "" if done.returncode == 0 else done.stdout or done.stderr


def read_dependencies(build):
    """The project's headers that each object was compiled from."""
    found = {}
    for line in output_of("ninja", "-C", str(build), "-t", "deps").splitlines():
        if line.startswith("    "):
            path = pathlib.Path(os.path.normpath(build / line.strip()))
            if path.is_relative_to(ROOT):
                headers.append(path)
        elif line and not line.startswith("ninja:"):
            headers = found.setdefault(line.split(": ")[0], [])
    return found


def main(build, *folders):
    build = pathlib.Path(build).resolve()
    commands = json.loads((build / "compile_commands.json").read_text())
    dependencies = read_dependencies(build)
    wanted = [ROOT / folder for folder in folders]
    sources = [Source(entry, dependencies) for entry in commands if entry["file"].endswith(".cpp")
               and any(pathlib.Path(entry["file"]).is_relative_to(folder) for folder in wanted)]
    if not sources:
        sys.exit(f"tidy.py: {build} compiles nothing below {' '.join(folders)}")
    version = output_of("clang-tidy", "--version")
    clean_file = build / "tidy.json"
    clean = json.loads(clean_file.read_text()) if clean_file.exists() else {}
    keys = {source.object: source.key(version) for source in sources}
    open_sources = [source for source in sources
                    if keys[source.object] is None or clean.get(source.object) != keys[source.object]]
    print(f"{len(open_sources)} of {len(sources)} sources to check", flush=True)
    failures = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for source, findings in zip(open_sources, pool.map(Source.check, open_sources)):
            if findings:
                failures += 1
                print(findings, flush=True)
            else:
                clean[source.object] = keys[source.object]
                clean_file.write_text(json.dumps(clean, indent=0))
    print(f"{failures} of {len(sources)} sources have findings")
    return 1 if failures else 0


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
