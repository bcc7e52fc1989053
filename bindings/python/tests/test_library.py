"""Which shared library is loaded, and what is said if there is none."""

import os
import shutil
import subprocess
import sys
from pathlib import Path

import pytest

import quillet

PACKAGE = Path(quillet.__file__).parent
FILE_NAME = "libquillet.so.1"
PROGRAM = """
import quillet
print(quillet.translate("select a").text)
[print(line.split()[-1]) for line in open("/proc/self/maps") if "quillet" in line and "r-xp" in line]
"""


def loaded_library() -> Path:
    """The one that these tests use."""
    with open("/proc/self/maps") as maps:
        (path,) = {line.split(None, 5)[5].strip() for line in maps if "libquillet" in line}
    return Path(path)


def run(package: Path, **environment: str) -> subprocess.CompletedProcess[str]:
    """Runs PROGRAM with a copy of the module's files that are Python."""
    for source in PACKAGE.glob("*.py"):
        (package / "quillet").mkdir(exist_ok=True)
        shutil.copy(source, package / "quillet")
    return subprocess.run(
        [sys.executable, "-B", "-c", PROGRAM],
        env={"PYTHONPATH": str(package), **environment},
        capture_output=True,
        text=True,
    )


@pytest.fixture
def library(tmp_path: Path) -> Path:
    copy = tmp_path / "another place" / FILE_NAME
    copy.parent.mkdir()
    shutil.copy(loaded_library(), copy)
    return copy


def test_library_that_the_variable_names(tmp_path: Path, library: Path) -> None:
    named = library.rename(library.with_name("named.so"))
    (tmp_path / "quillet").mkdir()
    (tmp_path / "quillet" / FILE_NAME).write_text("not this one")
    made = run(tmp_path, QUILLET_LIBRARY=str(named))
    assert made.stdout.splitlines()[0] == "SELECT a", made.stderr


def test_library_that_a_wheel_carries(tmp_path: Path, library: Path) -> None:
    (tmp_path / "quillet").mkdir()
    carried = library.rename(tmp_path / "quillet" / FILE_NAME)
    made = run(tmp_path, QUILLET_LIBRARY="")
    assert made.stdout.splitlines() == ["SELECT a", str(carried)], made.stderr


def test_library_of_the_system(tmp_path: Path, library: Path) -> None:
    made = run(tmp_path, LD_LIBRARY_PATH=str(library.parent))
    assert made.stdout.splitlines()[0] == "SELECT a", made.stderr


def message_of(failed: subprocess.CompletedProcess[str]) -> str:
    assert failed.returncode == 1
    assert failed.stdout == ""
    return failed.stderr.splitlines()[-1]


def test_missing_library(tmp_path: Path) -> None:
    message = message_of(run(tmp_path, QUILLET_LIBRARY="/nowhere/libquillet.so"))
    assert message == (
        "ImportError: Quillet's shared library /nowhere/libquillet.so cannot be used: "
        "/nowhere/libquillet.so: cannot open shared object file: No such file or directory. "
        "Install the package libquillet1, or set QUILLET_LIBRARY to the path of libquillet.so.1."
    )


def test_broken_library(tmp_path: Path) -> None:
    (tmp_path / "quillet").mkdir()
    broken = tmp_path / "quillet" / FILE_NAME
    broken.write_text("not a library")
    message = message_of(run(tmp_path))
    assert message.startswith(f"ImportError: Quillet's shared library {broken} cannot be used: ")


def test_library_without_the_functions(tmp_path: Path) -> None:
    message = message_of(run(tmp_path, QUILLET_LIBRARY="libm.so.6"))
    assert "undefined symbol: quillet_translate. Install the package libquillet1" in message
