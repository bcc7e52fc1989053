"""The examples of README.md and of the module's description are true."""

import doctest
import re
from pathlib import Path

import quillet

README = Path(__file__).resolve().parents[1] / "README.md"


def check(examples: str, name: str) -> int:
    test = doctest.DocTestParser().get_doctest(examples, {}, name, None, None)
    said: list[str] = []
    result = doctest.DocTestRunner(verbose=False).run(test, out=said.append)
    assert result.failed == 0, "".join(said)
    return result.attempted


def test_examples_of_the_readme() -> None:
    blocks = re.findall(r"```pycon\n(.*?)```", README.read_text(), re.DOTALL)
    assert check("\n".join(blocks), README.name) > 10


def test_example_of_the_module() -> None:
    assert quillet.__doc__
    assert check(quillet.__doc__, "quillet") == 2
