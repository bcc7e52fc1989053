"""Runs the corpus on PostgreSQL and MariaDB; truth/run installs and builds first and starts this."""

import argparse
import signal
import sys

import corpus
import library
import page
import pairs
import refusals
import results
import servers
import sessions
from report import Report
from trial import Trials


def arguments():
    parser = argparse.ArgumentParser(
        prog="truth/run",
        description="Runs statements on PostgreSQL and our texts of them on PostgreSQL and MariaDB, and "
        "fails if a text gives something else without a word, or if a recorded outcome has changed.",
    )
    parser.add_argument("families", nargs="*", help="of truth/corpus; all of them if none is named")
    parser.add_argument("--settings", choices=servers.SETTINGS, default="default", help="of MariaDB")
    parser.add_argument("--update", action="store_true", help="write the outcomes to truth/results")
    parser.add_argument(
        "--allow-silent", action="store_true", help="only count what is wrong without a word"
    )
    parser.add_argument("--show", type=int, default=10, help="so many of each failure (%(default)s)")
    parser.add_argument("--dump", metavar="FILE", help="write every result with its text there, as JSON")
    parser.add_argument(
        "--pairs", action="store_true", help="write truth/corpus/pairs.sql anew, and end"
    )
    parser.add_argument("--page", action="store_true",
                        help="write docs/differences.md and the end of docs/migrating.md, and end")
    return parser.parse_args()


def interrupted(*_):
    raise KeyboardInterrupt


def main():
    options = arguments()
    unknown = set(options.families) - set(corpus.families())
    if unknown:
        raise SystemExit(f"truth/run: no such family: {', '.join(sorted(unknown))}")

    sys.stdout.reconfigure(encoding="utf-8")
    report = Report()
    signal.signal(signal.SIGTERM, interrupted)
    if options.page:
        return 0 if check_pages(is_written=True) else 1
    with servers.Servers(options.settings) as running:
        postgresql, mariadb = sessions.with_tables(running)
        if options.pairs:
            pairs.write(library, postgresql)
            return 0
        trials = Trials(library, postgresql, mariadb)
        for family in options.families or corpus.families():
            is_volatile = family == corpus.VOLATILE
            made = {text: trials.run(text, is_volatile) for text in corpus.statements(family)}
            blocks = {text: results.block(made[text]) for text in made}
            report.add(family, made, blocks, results.recorded(family, options.settings))
            if options.update:
                results.write(family, options.settings, blocks)
    if options.dump:
        report.dump(options.dump)
    report.print_table()
    passed = report.print_failures(options)
    if not options.families and not options.update and options.settings == "default":
        passed = check_pages(is_written=False) and passed
    return 0 if passed else 1


def check_pages(is_written):
    """Makes docs/differences.md and the end of docs/migrating.md, writes or compares them, and returns
    whether all is well."""
    differences, guide = page.Page(library), refusals.Refusals(library)
    for settings in servers.SETTINGS:
        with servers.Servers(settings) as running:
            trials = Trials(library, *sessions.with_tables(running))
            differences.gather(settings, trials)
            if settings == "default":
                guide.gather(trials)
    failures = differences.failures() + guide.failures()
    for name, text in ((page.FILE, differences.text()), (refusals.PAGE, guide.page(page.read(refusals.PAGE)))):
        if is_written:
            page.write(name, text)
        elif text != page.read(name):
            failures.append(f"{name} is not what --page writes")
    if failures:
        print("\nFAILED: the pages with examples:")
        print("\n".join(f"  {failure}" for failure in failures))
    return not failures


try:
    sys.exit(main())
except KeyboardInterrupt:
    sys.exit("truth/run: interrupted")
