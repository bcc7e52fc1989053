"""Large scripts through quillet-script: what they take in time and memory, and whether all arrives.

  tests/script_splitter/large [--megabytes NUMBER]

Each script goes through a pipe as it is made; no file has it. The memory is the largest that the process had.
"""

import argparse
import os
import subprocess
import sys
import threading
import time

PROGRAM = "build/compare/quillet-script"
MB = 1 << 20
BASE = 16 * MB  # the program without a script, and what it reads at a time

STATEMENTS = (
    "SELECT a, b FROM t WHERE a = 'it''s; here' -- first\n AND b > 5;\n",
    "/* block; */ INSERT INTO t (a, b) VALUES (2, E'a\\';b');\n",
    "UPDATE t SET b = $q$ ; $q$ WHERE a BETWEEN 1 AND 3;\n\n",
    "DELETE FROM t WHERE (a = 1 OR b = ';');\n",
)
LONG = ("-- ;\n" * 400 + "INSERT INTO t (a, b) VALUES (1, '" + "A long; text. It''s one. " * 400 + "');\n" +
        "COPY t (a, b) FROM STDIN;\n" + "1\t'select; 2'\n" * 1000 + "\\.\n")


def many_statements(size):
    """The parts of a script, and how many statements they have."""
    part = ("".join(STATEMENTS) * 10 + LONG * 2).encode()
    count = max(1, size // len(part))
    return (part for _ in range(count)), count * (len(STATEMENTS) * 10 + 2 * 2)


def repeated(before, middle, after, size):
    part = middle * (MB // len(middle))
    def parts():
        yield before
        for _ in range(size // len(part)):
            yield part
        yield after
    return parts()


def in_small_parts(parts, size=4096):
    for part in parts:
        for at in range(0, len(part), size):
            yield part[at:at + size]


class Case:
    def __init__(self, name, parts, status, memory, summary=None, words=()):
        self.name = name
        self.parts = parts
        self.status = status
        self.memory = memory  # at most
        self.summary = summary  # what the last line begins with
        self.words = words

    def run(self):
        began = time.monotonic()
        process = subprocess.Popen([PROGRAM, "--no-warn", "all", *self.words], stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        written = [0]

        def feed():
            try:
                for part in self.parts:
                    process.stdin.write(part)
                    written[0] += len(part)
                process.stdin.close()
            except BrokenPipeError:
                pass

        said = []

        def drop_output():
            while process.stdout.read(MB):
                pass

        threads = [threading.Thread(target=feed), threading.Thread(target=drop_output),
                   threading.Thread(target=lambda: said.append(process.stderr.read()[-2000:]))]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        _, status, used = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        seconds = time.monotonic() - began
        last = said[0].decode(errors="replace").rstrip("\n").rsplit("\n", 1)[-1]

        faults = []
        if process.returncode != self.status:
            faults.append(f"status {process.returncode}, not {self.status}")
        if used.ru_maxrss * 1024 > self.memory:
            faults.append(f"more than {self.memory / MB:.0f} MB of memory")
        if self.summary and not last.startswith(self.summary):
            faults.append(f"no {self.summary!r}: {last[:200]}")
        print(f"{written[0] / MB:7.0f} MB  {seconds:6.1f} s  {written[0] / MB / seconds:6.0f} MB/s  "
              f"{used.ru_maxrss / 1024:6.0f} MB of memory  {self.name}{': ' if faults else ''}{', '.join(faults)}",
              flush=True)
        return not faults


def cases(megabytes):
    size = megabytes * MB
    statements, count = many_statements(size)
    yield Case("statements, strings, comments, data of COPY", statements, 0, BASE,
               f"{count} statements: ")
    # What holds a statement: the script's window, the reading, the library's tree and text, the output.
    statement = 64 * MB
    for name, before, middle, after in (
            ("one string", b"select '", b"a", b"';\n"),
            ("one string of doubled quotes", b"select '", b"''", b"';\n"),
            ("one escape string", b"select E'", b"\\n", b"';\n"),
            ("one dollar string", b"select $x$", b"$ ", b"$x$;\n"),
            ("one quoted name", b'select "', b"a", b'" from t;\n'),
            ("one comment", b"/*", b"a", b"*/ select 1;\n"),
            ("one line comment", b"--", b"a", b"\nselect 1;\n"),
            ("blanks", b"select", b" ", b"1;\n"),
            ("one line of COPY's data", b"copy t from stdin;\n", b"a", b"\n\\.\n")):
        yield Case(f"{name}, in parts of 4 KB", in_small_parts(repeated(before, middle, after, statement)), 0,
                   BASE + 6 * statement)
    large = 200 * MB
    yield Case("one comment", repeated(b"/*", b"a; ' ", b"*/ select 1;\n", large), 0, BASE + 4 * large,
               "1 statement: 1 translated")
    yield Case("one string", repeated(b"select '", b"a; ", b"';\n", large), 0, BASE + 4 * large, "1 statement: ")
    yield Case("no semicolon", repeated(b"", b"select x, y z w \n", b"", large), 1, BASE + 4 * large,
               "1 statement: 0 translated (0 with warnings), 0 refused, 1 not understood")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--megabytes", type=int, default=1024)
    asked = parser.parse_args()
    sys.exit(0 if all([case.run() for case in cases(asked.megabytes)]) else 1)


if __name__ == "__main__":
    main()
