"""Small changes to C++ sources, each of which some test should notice."""

import random
import re
from dataclasses import dataclass
from pathlib import Path


@dataclass(frozen=True)
class Mutant:
    kind: str
    file: Path  # relative to the project
    line: int  # the first one that is changed, from 0
    before: tuple[str, ...]
    after: tuple[str, ...]
    name: str  # which the list of explained mutants knows it by: it outlives changes of other lines

    def apply(self, text: str) -> str:
        lines = text.split("\n")
        end = self.line + len(self.before)
        assert tuple(lines[self.line:end]) == self.before
        return "\n".join(lines[:self.line] + list(self.after) + lines[end:])


# Each token, and what takes its place. They are looked for outside comments and texts only.
SWAPPED_COMPARISON = [(r"(?<= )==(?= )", "!="), (r"(?<= )!=(?= )", "=="), (r"(?<= )<(?= )", "<="),
                      (r"(?<= )<=(?= )", "<"), (r"(?<= )>(?= )", ">="), (r"(?<= )>=(?= )", ">")]
SWAPPED_LOGIC = [(r"(?<= )&&(?= )", "||"), (r"(?<= )\|\|(?= )", "&&"), (r"!(?=[\w(])", ""),
                 (r"\btrue\b", "false"), (r"\bfalse\b", "true")]
SWAPPED_ARITHMETIC = [(r"(?<= )\+(?= )", "-"), (r"(?<= )-(?= )", "+"), (r"\+\+", "--"),
                      (r"(?<= )\+=(?= )", "-="), (r"(?<= )-=(?= )", "+=")]
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9a-fA-F]+|\d+)(?![\w.'])")
TEXT = re.compile(r'"(?:[^"\\]|\\.)*"')
CALL = re.compile(r"^\s+[a-zA-Z_][\w:.]*(?:->[\w.]+|\[[^]]*\]|\([^()]*\))*\(.*\);$")
NOT_CALLS = re.compile(r"^\s+(return|throw|using|static_assert|delete|case)\b")
IGNORED = re.compile(r"^\s*(#|//|namespace\b|using\b|static_assert\b|template\b)")


def masked(line: str) -> str:
    """The line with its texts, characters and comments blanked out; places stay as they are."""
    line = TEXT.sub(lambda text: '"' + " " * (len(text[0]) - 2) + '"', line)
    line = re.sub(r"'(?:[^'\\]|\\.)'", lambda text: "'" + " " * (len(text[0]) - 2) + "'", line)
    return re.sub(r"//.*", "", line)


def replacements(line: str, table) -> list[str]:
    return [line[:found.start()] + new + line[found.end():]
            for pattern, new in table for found in re.finditer(pattern, masked(line))]


def off_by_one(line: str) -> list[str]:
    def next_one(number: str) -> str:
        return hex(int(number, 16) + 1) if number.startswith("0x") else str(int(number) + 1)

    return [line[:found.start()] + next_one(found[0]) + line[found.end():]
            for found in NUMBER.finditer(masked(line))]


def changed_text(line: str) -> list[str]:
    code = masked(line)
    return [line[:found.end() - 1] + '~"' + line[found.end():]
            for found in TEXT.finditer(line) if code[found.start()] == '"']


IN_LINE = {
    "swapped comparison": lambda line: replacements(line, SWAPPED_COMPARISON),
    "swapped logic": lambda line: replacements(line, SWAPPED_LOGIC),
    "swapped arithmetic": lambda line: replacements(line, SWAPPED_ARITHMETIC),
    "off by one": off_by_one,
    "changed text": changed_text,
}


def calls(lines: list[str]) -> list[bool]:
    """Which lines are a statement of their own that calls something."""
    whole = [before.rstrip().endswith((";", "{", "}", ":")) for before in [""] + lines[:-1]]
    return [bool(is_whole and CALL.match(line) and not NOT_CALLS.match(line))
            for line, is_whole in zip(lines, whole)]


def mutants_of(file: Path, text: str) -> list[Mutant]:
    """All mutants of a source, in the order of its lines."""
    lines = text.split("\n")
    found: list[Mutant] = []
    names: dict[str, int] = {}

    def add(kind: str, number: int, before: tuple[str, ...], after: tuple[str, ...]) -> None:
        name = f"{file}: " + " => ".join(" / ".join(map(str.strip, part)) for part in (before, after))
        names[name] = names.get(name, 0) + 1
        if names[name] > 1:
            name += f" ({names[name]})"
        found.append(Mutant(kind, file, number, before, after, name))

    for number, line in enumerate(lines):
        if not IGNORED.match(line):
            for kind, change in IN_LINE.items():
                for changed in change(line):
                    add(kind, number, (line,), (changed,))
    is_call = calls(lines)
    for number, line in enumerate(lines):
        if not is_call[number]:
            continue
        add("dropped call", number, (line,), (";",))
        if number + 1 < len(lines) and is_call[number + 1] and line != lines[number + 1]:
            pair = (line, lines[number + 1])
            add("swapped order", number, pair, pair[::-1])
    return found


def choose(mutants: list[Mutant], count: int, seed: int) -> list[Mutant]:
    """As many of each kind, and of each kind as many of each file, as there are; always the same
    ones, so that tables with a hundred texts do not crowd out the rest."""
    shuffled = sorted(mutants, key=lambda mutant: mutant.name)
    random.Random(seed).shuffle(shuffled)
    turns: dict[tuple[str, Path], int] = {}
    ranked = []
    for mutant in shuffled:
        turn = turns.get((mutant.kind, mutant.file), 0)
        turns[mutant.kind, mutant.file] = turn + 1
        ranked.append((turn, mutant))
    ranked.sort(key=lambda entry: entry[0])  # stable: files stay shuffled within a turn
    kinds: dict[str, list[Mutant]] = {}
    for _, mutant in ranked:
        kinds.setdefault(mutant.kind, []).append(mutant)
    chosen: list[Mutant] = []
    while len(chosen) < count and any(kinds.values()):
        for kind in sorted(kinds):
            if kinds[kind] and len(chosen) < count:
                chosen.append(kinds[kind].pop(0))
    return chosen
