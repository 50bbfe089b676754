"""The table of what was measured, and its picture."""

import re

HEADS = ("Work", "Figure", "Floor", "Times", "Goal", "")
MARK = "<!-- table -->"
LEFT, BAR, STEP = 380, 260, 24  # of the picture: the names' width, a whole goal's, a line's height


class Row:
    """One line: the figure, what it stands beside, and the most that it may be."""

    def __init__(self, work, figure, floor, limit, goal, unit):
        self.work = work
        self.figure = f"{figure:.3g} {unit}"
        self.floor = f"{floor:.3g} {unit}" if floor else "–"
        self.ratio = f"{figure / floor:.2f}" if floor else "–"
        self.goal = goal
        self.share = figure / limit

    def cells(self):
        met = "met" if self.share <= 1 else "not met"
        return self.work, self.figure, self.floor, self.ratio, self.goal, met

    def __str__(self):
        return "{:51}{:>9}{:>9}{:>6}  {:40}{}".format(*self.cells())


def markdown(rows):
    table = [HEADS, ["---"] * len(HEADS)] + [row.cells() for row in rows]
    return "".join("| " + " | ".join(cells) + " |\n" for cells in table)


def picture(rows):
    """How much of its goal each work takes, as bars beside the line of the whole goal."""
    height = STEP * (len(rows) + 2)
    goal = LEFT + BAR
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{goal + 180}" height="{height}" '
             'font-family="sans-serif" font-size="13">',
             f'<rect width="{goal + 180}" height="{height}" fill="white"/>']
    for line, row in enumerate(rows):
        top = STEP * (line + 0.5)
        width, fill = BAR * min(row.share, 1.5), "#3b6fb5" if row.share <= 1 else "#c0392b"
        parts.append(f'<text x="{LEFT - 10}" y="{top + 16}" text-anchor="end">{row.work}</text>'
                     f'<rect x="{LEFT}" y="{top + 4}" width="{width:.0f}" height="{STEP - 8}" '
                     f'fill="{fill}"/>'
                     f'<text x="{LEFT + 8}" y="{top + 16}" fill="white">{row.share:.0%}</text>')
    parts.append(f'<path d="M{goal} 6 V{height - STEP}" stroke="#555" stroke-dasharray="4 3"/>'
                 f'<text x="{goal}" y="{height - 8}" text-anchor="middle">goal</text></svg>')
    return "\n".join(parts) + "\n"


def record(rows, docs):
    """Puts the table between its marks in docs/speed.md, and the picture beside it."""
    document = docs / "speed.md"
    text, found = re.subn(f"{MARK}.*{MARK}", lambda _: f"{MARK}\n{markdown(rows)}{MARK}",
                          document.read_text(), flags=re.DOTALL)
    if found != 1:
        raise SystemExit(f"{document} has no place for the table.")
    document.write_text(text)
    (docs / "images" / "speed.svg").write_text(picture(rows))
