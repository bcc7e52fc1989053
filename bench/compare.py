"""Measures Quillet and its peers; bench/compare builds them first and starts this."""

import argparse
import resource
import sys

import compare_growth
import compare_machine
import compare_page
import compare_readme
import compare_script
import compare_sizes
import compare_startup
import compare_statements

STACK = 8 << 20


def arguments():
    parser = argparse.ArgumentParser(prog="bench/compare")
    parser.add_argument("--rounds", type=int, default=9, help="of every contender (%(default)s)")
    parser.add_argument("--seconds", type=float, default=0.3, help="a round (%(default)s)")
    parser.add_argument("--plot", action="store_true", help=f"write {compare_page.PLOT}")
    parser.add_argument(
        "--update",
        action="store_true",
        help=f"write into {compare_page.PAGE} and {compare_readme.PAGE}, and plot",
    )
    parser.add_argument(
        "--check", action="store_true", help=f"only whether {compare_readme.PAGE} has its figures"
    )
    return parser.parse_args()


def check():
    text = compare_readme.section(compare_page.PAGE.read_text())
    if compare_page.updated(compare_readme.PAGE, text) != compare_readme.PAGE.read_text():
        return f"{compare_readme.PAGE} has other figures than {compare_page.PAGE}"
    return 0


def main():
    options = arguments()
    if options.check:
        return check()
    _, hard = resource.getrlimit(resource.RLIMIT_STACK)
    resource.setrlimit(resource.RLIMIT_STACK, (STACK, hard))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    machine = compare_machine.section()
    measured = [
        compare_statements.measure(corpus, options.rounds, options.seconds)
        for corpus in compare_statements.CORPORA
    ]
    statements = [
        compare_statements.section(each, options.rounds, options.seconds) for each in measured
    ]
    scripts = compare_script.section(options.rounds)
    startup = compare_startup.section()
    sizes = compare_sizes.section()
    cells = compare_growth.measure(compare_growth.NATIVE)
    growth = compare_growth.section(cells)
    text = "\n".join([machine, *statements, scripts, startup, sizes, growth])

    print(text, end="")
    if options.update:
        compare_page.update(compare_page.PAGE, text)
        compare_page.update(compare_readme.PAGE, compare_readme.section(text))
    if options.update or options.plot:
        compare_page.plot(cells)


sys.exit(main())
