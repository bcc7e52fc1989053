"""The results that the repository keeps, a file for each family.

A block is a statement and, indented, a line for each text:

    select 7 / 2.0 from kind
        postgresql  same
        mysql       otherwise: number of decimals

The ids of the diagnostics stand in brackets after the outcome, a warning's with an exclamation mark.
The settings `default` have a block for every statement; other settings only those that are others
there.
"""

import os

from trial import BUILDERS, SAME

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "results")
INDENT = "    "
MARKS = {"warning": "!", "note": "", "refusal": "", "error": ""}


def line(builder, result):
    ids = " ".join(said.id + MARKS[said.severity] for said in result.says)
    text = f"{INDENT}{builder:<12}{result.outcome}"
    if ids:
        text += f" [{ids}]"
    if result.detail:
        text += f": {result.detail}"
    return text


def block(results):
    """The lines below a statement; one does for two that are the same."""
    if all(result.outcome == SAME and not result.says and not result.detail for result in results.values()):
        return [f"{INDENT}both        same"]
    return [line(builder, results[builder]) for builder in BUILDERS]


def outcomes(lines):
    """What is recorded of a statement and may not change unseen: builder and outcome of each line."""
    return [tuple(text.split()[:2]) for text in (kept.replace(":", " ", 1) for kept in lines)]


def path(family, settings):
    parts = [] if settings == "default" else [settings]
    return os.path.join(FOLDER, *parts, family + ".txt")


def _read(name):
    blocks, lines = {}, None
    try:
        with open(name, encoding="utf-8") as file:
            for text in file.read().splitlines():
                if text.startswith(INDENT):
                    lines.append(text)
                elif text:
                    lines = blocks.setdefault(text, [])
    except FileNotFoundError:
        pass
    return blocks


def recorded(family, settings):
    """The blocks by statement."""
    blocks = _read(path(family, "default"))
    if settings != "default":
        blocks.update(_read(path(family, settings)))
    return blocks


def write(family, settings, blocks):
    name = path(family, settings)
    if settings != "default":
        usual = _read(path(family, "default"))
        blocks = {text: lines for text, lines in blocks.items() if usual.get(text) != lines}
        if not blocks:
            if os.path.exists(name):
                os.remove(name)
            return
    os.makedirs(os.path.dirname(name), exist_ok=True)
    with open(name, "w", encoding="utf-8") as file:
        file.write("\n".join("\n".join([text, *lines]) + "\n" for text, lines in blocks.items()))
