"""Threads, children and memory."""

import multiprocessing
import os
import threading
import time
from concurrent.futures import ProcessPoolExecutor, ThreadPoolExecutor

import pytest

import quillet
from quillet import translate

STATEMENTS = [
    "select a || b from t",
    "select cast(a as text), 'żółw' from t where b ilike 'x%'",
    "select initcap(a), btrim(b) from t",
    "select cast(initcap(a) as text)",
    "select 'żółw', from t",
    "update t set a = date '2005-01-01' + 3",
]


def outcome(statement: str) -> str:
    try:
        return repr(translate(statement))
    except quillet.TranslationError as error:
        return repr(error.diagnostics)


def test_threads() -> None:
    expected = {statement: outcome(statement) for statement in STATEMENTS}
    with ThreadPoolExecutor(8) as pool:
        for statement, made in zip(STATEMENTS * 2000, pool.map(outcome, STATEMENTS * 2000)):
            assert made == expected[statement]


def test_others_run_while_a_thread_translates() -> None:
    statement = "select " + ", ".join(["cast(a as text) || 'żółw'"] * 200_000)
    made = threading.Thread(
        target=lambda: translate(statement, least_severity=quillet.Severity.REFUSAL)
    )
    made.start()
    steps = 0
    while made.is_alive():
        time.sleep(0.001)
        steps += 1
    assert steps > 10  # with the interpreter locked it is a few


@pytest.mark.parametrize("method", ["fork", "spawn"])
def test_children(method: str) -> None:
    translate(STATEMENTS[0])
    context = multiprocessing.get_context(method)
    with ProcessPoolExecutor(2, mp_context=context) as pool:
        texts = list(pool.map(translate, ["select a || b from t"] * 100))
        assert {each.text for each in texts} == {"SELECT CONCAT(a, b) FROM t"}
        failing = pool.submit(translate, "select initcap(a)")
        assert isinstance(failing.exception(), quillet.CannotTranslate)


def resident_bytes() -> int:
    with open("/proc/self/statm") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def test_memory_does_not_grow() -> None:
    def run(times: int) -> None:
        for number in range(times):
            outcome(STATEMENTS[number % len(STATEMENTS)])

    run(5_000)
    before = resident_bytes()
    run(100_000)
    assert resident_bytes() - before < 2_000_000  # 20 bytes a translation


def test_nothing_is_printed(capfd: pytest.CaptureFixture[str]) -> None:
    for statement in STATEMENTS:
        outcome(statement)
    outcome("select ?")
    assert capfd.readouterr() == ("", "")
