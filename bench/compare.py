"""Measures Quillet and its peers; bench/compare builds them first and starts this."""

import argparse
import resource
import sys

import compare_growth
import compare_machine
import compare_page
import compare_script
import compare_startup
import compare_statements

STACK = 8 << 20


def arguments():
    parser = argparse.ArgumentParser(prog="bench/compare")
    parser.add_argument("--rounds", type=int, default=9, help="of every contender (%(default)s)")
    parser.add_argument("--seconds", type=float, default=0.5, help="a round (%(default)s)")
    parser.add_argument("--plot", action="store_true", help=f"write {compare_page.PLOT}")
    parser.add_argument(
        "--update", action="store_true", help=f"write the tables into {compare_page.PAGE}, and plot"
    )
    return parser.parse_args()


def main():
    options = arguments()
    _, hard = resource.getrlimit(resource.RLIMIT_STACK)
    resource.setrlimit(resource.RLIMIT_STACK, (STACK, hard))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    machine = compare_machine.section()
    statements = compare_statements.section(options.rounds, options.seconds)
    scripts = compare_script.section(options.rounds)
    startup = compare_startup.section()
    cells = compare_growth.measure()
    text = "\n".join([machine, statements, scripts, startup, compare_growth.section(cells)])

    print(text, end="")
    if options.update:
        compare_page.update(text)
    if options.update or options.plot:
        compare_page.plot(cells)


sys.exit(main())
