"""Reads tests/golden/*.test; the README there describes the format."""

import re
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path

FOLDER = Path(__file__).resolve().parents[3] / "tests/golden"
BUILDERS = ("postgresql", "type_view", "tree", "mysql")

_HEADING = re.compile(r"--- ([a-z_ ]+?)(?:: (.+))?")


@dataclass(frozen=True)
class GoldenCase:
    """What one builder gives for a statement."""

    name: str  # file/title/builder
    statement: str
    builder: str
    outcome: str  # empty for a success, else what follows the colon of the heading
    body: str

    @property
    def text(self) -> str:
        """Of a success. Only a tree ends with a newline of its own."""
        return self.body if self.builder == "tree" else self.body.removesuffix("\n")

    @property
    def code(self) -> int:
        """Of a failure. The classic call ends the process at some statements that are invalid."""
        return -2 if self.is_unscannable else int(self.outcome.split()[0])

    @property
    def is_unscannable(self) -> bool:
        return self.outcome == "exit 0"

    @property
    def is_syntax_error(self) -> bool:
        return bool(self.outcome) and "Error: syntax error\n" in self.body

    @property
    def detail(self) -> int | None:
        """The builder's own code of a failure."""
        found = re.search(r"^detail (-\d+)", self.body, re.MULTILINE) if self.outcome else None
        return int(found[1]) if found else None


def read_all() -> list[GoldenCase]:
    return [case for path in sorted(FOLDER.glob("*.test")) for case in _read(path)]


def count_all() -> int:
    """The titles in all files."""
    texts = [path.read_bytes() for path in FOLDER.glob("*.test")]
    return sum(len(re.findall(rb"^=== ", text, re.MULTILINE)) for text in texts)


def _read(path: Path) -> Iterator[GoldenCase]:
    _, *parts = re.split(r"^=== (.*)\n", path.read_bytes().decode(), flags=re.MULTILINE)
    for number, (title, part) in enumerate(zip(parts[::2], parts[1::2])):
        is_last = 2 * number + 2 == len(parts)
        case = part if is_last else part.removesuffix("\n")  # a blank line separates
        statement, *sections = re.split(r"^(---.*)\n", case, flags=re.MULTILINE)
        for heading, body in zip(sections[::2], sections[1::2]):
            found = _HEADING.fullmatch(heading)
            assert found, f"{path.name}: {heading}"
            names = found[1].split()
            if names == ["printed"]:
                continue
            for builder in BUILDERS if names == ["all"] else names:
                assert builder in BUILDERS, f"{path.name}: {heading}"
                yield GoldenCase(
                    name=f"{path.stem}/{title}/{builder}",
                    statement=statement.removesuffix("\n"),
                    builder=builder,
                    outcome=found[2] or "",
                    body=body,
                )
