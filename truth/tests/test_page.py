"""docs/migrating.md shows what truth/check prints."""

import os
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).parents[2]


def test_the_commands_of_the_page():
    made = subprocess.run(
        ["bash", ROOT / "examples" / "check_pages", ROOT / "docs" / "migrating.md",
         f"quillet-script={os.environ['QUILLET_SCRIPT']}", f"../../truth/check={ROOT / 'truth' / 'check'}"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    assert made.returncode == 0, made.stdout
