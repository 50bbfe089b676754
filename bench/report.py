"""Tables and curves of what was measured."""

import re
import shutil
import subprocess

HEADS = ("Work", "Figure", "Floor", "Ratio", "Goal", "")
BESIDE = ("Program", "Window on the display", "Memory of its own", "Resident")
PLOT = """
set terminal pngcairo size 1000,640 font "sans,11" background "white"
set output "{target}"
set logscale xy
set xlabel "items"
set ylabel "milliseconds"
set format x "%.0s%c"
set key outside right top
set grid
set datafile separator "\\t"
plot for [i=2:{columns}] "{data}" using 1:i with linespoints linewidth 2 pointtype 7 \
    title columnheader(i)
"""


def aligned(table):
    widths = [max(len(cells[i]) for cells in table) for i in range(len(table[0]))]
    return "\n".join("  ".join(cell.ljust(width) for cell, width in zip(cells, widths)).rstrip()
                     for cells in table)


def markdown(table):
    lines = ["| " + " | ".join(cells) + " |" for cells in table]
    lines.insert(1, "|" + "---|" * len(table[0]))
    return "\n".join(lines) + "\n"


def plot(growth, folder):
    """The curves as a picture, and their figures as a table."""
    names = list(next(iter(growth.values())))
    rows = [["items", *names]] + [[str(count), *(f"{points[name]:.3f}" for name in names)]
                                  for count, points in growth.items()]
    data = folder / "growth.tsv"
    data.write_text("\n".join("\t".join(row) for row in rows) + "\n")
    script = PLOT.format(target=folder / "growth.png", data=data, columns=len(names) + 1)
    subprocess.run(["gnuplot"], input=script, text=True, check=True)
    table = [["ms at", *(f"{count:,}" for count in growth)]]
    table += [[name, *(f"{points[name]:.3g}" for points in growth.values())] for name in names]
    (folder / "growth.md").write_text(markdown(table))
    print("\n" + aligned(table))


ALL = {name: name for name in ("table", "beside", "growth")}


def record(results, docs, marks=ALL):
    """Puts the tables of this run between their marks in docs/speed.md, and the picture beside."""
    document = docs / "speed.md"
    text = document.read_text()
    for name, place in marks.items():
        part = results / f"{name}.md"
        if part.exists():
            mark = f"<!-- {place} -->"
            text = re.sub(f"{mark}.*?{mark}",
                          lambda _, part=part, mark=mark: f"{mark}\n{part.read_text()}{mark}",
                          text, flags=re.DOTALL)
    document.write_text(text)
    if "growth" in marks and (results / "growth.png").exists():
        shutil.copy(results / "growth.png", docs / "images" / "growth.png")
