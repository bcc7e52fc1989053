"""docs/migrating.md shows what truth/check prints, and the settings that it knows."""

import os
import pathlib
import subprocess

import servers

ROOT = pathlib.Path(__file__).parents[2]


def test_the_commands_of_the_page():
    made = subprocess.run(
        ["bash", ROOT / "examples" / "check_pages", ROOT / "docs" / "migrating.md",
         f"quillet-script={os.environ['QUILLET_SCRIPT']}", f"../../truth/check={ROOT / 'truth' / 'check'}"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    assert made.returncode == 0, made.stdout


def test_the_recommended_settings_are_on_the_page():
    mode, collation = servers.SETTINGS["recommended"]
    page = (ROOT / "docs" / "migrating.md").read_text()
    assert f"SET sql_mode = CONCAT(@@sql_mode, '{mode}');" in page
    assert page.count(f"COLLATE {collation};") == 2
