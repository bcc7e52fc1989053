"""The generated parts of pages, and the plot of docs/performance.md."""

import subprocess
import sys
from pathlib import Path

from compare_growth import NATIVE, Cell

PAGE = Path("docs/performance.md")
PLOT = Path("docs/performance-growth.svg")
BEGIN = "<!-- bench/compare --update writes what follows -->\n"
END = "<!-- up to here -->\n"
COLOURS = ("#1f4e9c", "#4aa3df", "#b22222", "#f08030", "#2a7a2a", "#8fbf3f")
PANELS = {"sum": "a + a + …", "values": "VALUES (1, 1, …)"}


def updated(page, text):
    """A page with the text between its marks."""
    found = page.read_text()
    if found.count(BEGIN) != 1 or found.count(END) != 1:
        sys.exit(f"{page} has not one pair of marks")
    before, rest = found.split(BEGIN)
    return f"{before}{BEGIN}\n{text}\n{END}{rest.split(END)[1]}"


def update(page, text):
    page.write_text(updated(page, text))


def points(cells, contender, shape):
    for members in NATIVE.shapes[shape]:
        cell = cells.get((contender, shape, members))
        if isinstance(cell, Cell):
            yield f"{members} {cell.time}\n"


def plot(cells):
    script = f"""
        set terminal svg size 900,500 background "white" font "sans-serif,12"
        set output "{PLOT}"
        set logscale xy
        set grid
        set rmargin 4
        set key below maxrows 3 samplen 2
        set xlabel "members" offset 0,0.4
        set ylabel "µs a member"
        set format x "%.0f"
        set xrange [10:1000000]
        set yrange [0.01:*]
        set multiplot layout 1,2
    """
    for shape, title in PANELS.items():
        lines = []
        for number, (contender, colour) in enumerate(zip(NATIVE.contenders, COLOURS)):
            name = f"${shape}_{number}"
            script += f"\n{name} << END\n{''.join(points(cells, contender, shape))}END\n"
            style = f'with linespoints lw 2 lc "{colour}"'
            lines.append(f'{name} {style} title "{contender}" noenhanced')
        script += f'set title "{title}"\nplot {", ".join(lines)}\n'
    subprocess.run(["gnuplot"], input=script, text=True, check=True)
