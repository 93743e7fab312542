"""Makes mutants of panel/ and tells which of them no test notices; tools/mutate says more.

Each mutant is compiled from a copy and linked in front of the library that holds the true one, so
that neither the sources nor the build folder change and several can be tried at a time.
"""

import argparse
import json
import resource
import shlex
import subprocess
import sys
import tempfile
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

from mutants import Mutant, choose, mutants_of

LIBRARY = "panel/libkrx8_panel.a"
# Quickest first: what one notices is not shown to the next. The second figure is the processor time
# after which its tests are ended, in seconds: a loop without end is noticed, a busy machine is not.
PROGRAMS = [("tests/panel/panel_tests", 60), ("tests/sweeps/panel_sweeps", 400)]
# A mutant may also wait for something that never comes.
LONGEST_WAIT = 3600
NOT_COMPILED = "not compiled"
SURVIVED = "survived"


@dataclass
class Build:
    """What the build folder tells of how things are made there."""
    root: Path
    folder: Path

    def __post_init__(self) -> None:
        entries = json.loads((self.folder / "compile_commands.json").read_text())
        self.compile = {entry["file"]: without_launcher(shlex.split(entry["command"]))
                        for entry in entries}
        self.link = {program: self.link_command(program) for program, _ in PROGRAMS}

    def link_command(self, program: str) -> list[str]:
        commands = subprocess.run(["ninja", "-C", self.folder, "-t", "commands", "-s", program],
                                  check=True, capture_output=True, text=True).stdout
        words = shlex.split(commands.strip().splitlines()[-1])
        words = words[words.index(next(word for word in words if word.endswith("++"))):]
        return words[:words.index("&&")]


def without_launcher(command: list[str]) -> list[str]:
    compiler = next(index for index, word in enumerate(command) if word.endswith("++"))
    return command[compiler:]


def with_value(command: list[str], option: str, value: str) -> list[str]:
    place = command.index(option) + 1
    return command[:place] + [value] + command[place + 1:]


def run(command: list[str], folder: Path, seconds: int = 300) -> bool:
    def limit() -> None:
        resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))

    try:
        return subprocess.run(command, cwd=folder, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL,
                              preexec_fn=limit, timeout=LONGEST_WAIT).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def compile_mutant(build: Build, mutant: Mutant, text: str, folder: Path) -> Path | None:
    source, target = folder / mutant.file.name, folder / "mutant.o"
    source.write_text(mutant.apply(text))
    command = build.compile[str(build.root / mutant.file)]
    command = with_value(command, "-o", str(target))
    command = with_value(command, "-c", str(source))
    # A mutant may leave something unused, and nobody debugs it.
    return target if run(command + ["-w", "-g0"], build.folder) else None


def verdict(build: Build, mutant: Mutant) -> str:
    """The name of the program whose tests noticed the mutant, or why there is none."""
    text = (build.root / mutant.file).read_text()
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        mutant_object = compile_mutant(build, mutant, text, folder)
        if not mutant_object:
            return NOT_COMPILED
        for program, seconds in PROGRAMS:
            tests = folder / Path(program).name
            command = with_value(build.link[program], "-o", str(tests))
            command.insert(command.index(LIBRARY), str(mutant_object))
            if not run(command + ["-fuse-ld=gold"], build.folder):
                sys.exit(f"cannot link {program} with {mutant.name}")
            arguments = ["--gtest_fail_fast", "--gtest_brief=1"]
            if not run([str(tests), *arguments], folder, seconds):
                return tests.name
    return SURVIVED


def explanations(file: Path) -> dict[str, str]:
    """Mutants that may survive: a line that names one, and lines set in that say why."""
    explained: dict[str, str] = {}
    name = ""
    for line in file.read_text().splitlines():
        if line.startswith(" "):
            explained[name] += line.strip() + " "
        elif line and not line.startswith("#"):
            name = line
            explained[name] = ""
    return explained


def print_figures(results: list[tuple[Mutant, str]]) -> None:
    columns = [Path(program).name for program, _ in PROGRAMS] + [SURVIVED]
    counts = Counter((mutant.kind, outcome) for mutant, outcome in results)
    kinds = sorted({mutant.kind for mutant, _ in results})
    print("\n| change | mutants | " + " | ".join(columns) + " |")
    print("| --- |" + " --- |" * (len(columns) + 1))
    for kind in kinds + ["all"]:
        row = [sum(count for (of, outcome), count in counts.items()
                   if kind in (of, "all") and outcome == column) for column in columns]
        print(f"| {kind} | {sum(row)} | " + " | ".join(map(str, row)) + " |")


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("root", type=Path)
    parser.add_argument("build", type=Path)
    parser.add_argument("--count", type=int, default=400)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--only", default="")
    options = parser.parse_args()

    build = Build(options.root, options.build)
    sources = [Path(file).relative_to(options.root) for file in sorted(build.compile)
               if file.startswith(f"{options.root}/panel/")]
    everything = [mutant for file in sources
                  for mutant in mutants_of(file, (options.root / file).read_text())]
    chosen = choose([mutant for mutant in everything if options.only in mutant.name],
                    options.count, options.seed)
    explained = explanations(options.root / "tests/mutation/explained.txt")

    results = []
    unexplained = 0
    with ThreadPoolExecutor(options.jobs) as pool:
        for mutant, outcome in zip(chosen, pool.map(lambda one: verdict(build, one), chosen)):
            results.append((mutant, outcome))
            if outcome == SURVIVED and not explained.get(mutant.name):
                unexplained += 1
                outcome += ", unexplained"
            print(f"{len(results)}/{len(chosen)} {outcome}: {mutant.name}", flush=True)
    print_figures(results)
    compiled = sum(outcome != NOT_COMPILED for _, outcome in results)
    print(f"\n{compiled} mutants of {len(everything)} possible ones; "
          f"{len(results) - compiled} more did not compile; {unexplained} survived unexplained")
    return 1 if unexplained or not compiled else 0


if __name__ == "__main__":
    sys.exit(main())
