"""Measures Velmora against the floors of its table, figure and floor in turns."""

import contextlib
import pathlib
import statistics
import subprocess
import sys
import time

import report
from place import Place, end

ROOT = pathlib.Path(__file__).resolve().parent.parent
BIN = ROOT / "build" / "release" / "bin"
COMPANIONS = ROOT / "build" / "release" / "libexec" / "velmora"
PART = {"quit": 20, "launch": 50}  # items of a pass at a time
AT_LAUNCH = {"Makevisibleallthelisteditemsatlaunch": True}


class Row:
    """One line of the table."""

    def __init__(self, work, figure, floor, unit, goal, met, ratio=None):
        self.work = work
        self.figure = f"{figure:.3g} {unit}" if isinstance(figure, (int, float)) else figure
        self.floor = f"{floor:.3g} {unit}" if isinstance(floor, (int, float)) else floor
        self.ratio = ratio if isinstance(ratio, str) else f"{ratio or figure / floor:.2f}"
        self.goal = goal
        self.met = {True: "met", False: "not met", None: ""}[met]

    def cells(self):
        return self.work, self.figure, self.floor, self.ratio, self.goal, self.met


def median(rounds):
    """The medians of the columns of many rounds."""
    return [statistics.median(column) for column in zip(*rounds)]


class Bench:
    def __init__(self, place):
        self.place = place
        self.rows = []
        self.beside = []
        self.growth = {}

    def add(self, *arguments, **options):
        row = Row(*arguments, **options)
        self.rows.append(row)
        print("  ".join(row.cells()), flush=True)

    # Starts

    def first_paint(self, program, *arguments):
        """Milliseconds from the start of the process until its window is on the display."""
        begin = time.clock_gettime_ns(time.CLOCK_MONOTONIC)
        process = subprocess.Popen([BIN / program, *arguments], env=self.place.environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.DEVNULL, close_fds=False)
        painted = int(process.stdout.read())
        process.wait()
        return (painted - begin) / 1e6

    def starts(self, count, rounds):
        self.place.store(self.place.items(count))
        self.first_paint("bench_bare_window"), self.first_paint("bench_start")
        return median([(self.first_paint("bench_start"), self.first_paint("bench_bare_window"),
                        self.first_paint("bench_bare_window", "--text"))
                       for _ in range(rounds)])

    def start(self):
        for count, goal, rounds in ((0, 1.4, 41), (1000, 1.6, 31), (100_000, 10, 11)):
            figure, floor, text = self.starts(count, rounds)
            self.add(f"start to first paint, {count:,} items", figure, floor, "ms",
                     f"≤ {goal}", figure <= goal * floor)
            self.add("… against a bare list with one row of text", figure, text, "ms", "", None)

    # Work inside the program

    def work(self, kind, rounds, count=0):
        """The medians of the figures that bench_work tells."""
        return median(self.work_rounds(kind, rounds, count))

    def work_rounds(self, kind, rounds, count=0):
        answer = subprocess.run([BIN / "bench_work", kind, str(rounds), str(count)],
                                env=self.place.environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True,
                                text=True).stdout
        return [[float(figure) for figure in line.split()[1:]] for line in answer.splitlines()
                if line.startswith(kind)]

    def passes(self, count, rounds):
        """Milliseconds for one item of a launch and of a quit pass, and of the floor."""
        paths = self.place.items(count, folder_size=max(count, 1000))
        results = {"quit": [], "launch": []}
        for _ in range(rounds):
            for kind, found in results.items():
                self.place.store(paths, **AT_LAUNCH, Makeinvisibleallthelisteditemsonquit=True)
                # Each pass finds everything as the other one has left it.
                word = "nohidden" if kind == "quit" else "hidden"
                self.change(word, paths)
                found += self.work_rounds(kind, PART[kind])
        return results

    def change(self, word, paths):
        folder = paths[0].parent
        subprocess.run([COMPANIONS / "chflags", word, *(path.name for path in paths)], cwd=folder,
                       check=True)

    def pass_(self):
        before, large, after = (
            self.passes(1000, 2), self.passes(10_000, 1), self.passes(1000, 2))
        for kind in large:
            figure, floor = median(before[kind] + after[kind])
            at_10000, floor_10000 = median(large[kind])
            self.add(f"one item of a {kind} pass, 1,000 items", figure, floor, "ms", "≤ 1.2",
                     figure <= 1.2 * floor)
            # Half a minute lies between the two: each counts in its own floors.
            ratio = at_10000 / floor_10000 / (figure / floor)
            self.add(f"one item of a {kind} pass, 10,000 items", at_10000, figure, "ms",
                     "≤ 1.5 (by floors)", ratio <= 1.5, ratio=ratio)

    def chflags(self):
        paths = self.place.items(10_000, folder_size=10_000)
        names = [path.name for path in paths]
        folder = paths[0].parent

        def timed(*command):
            begin = time.perf_counter()
            subprocess.run(command, cwd=folder, check=True, close_fds=False)
            return (time.perf_counter() - begin) * 1000

        rounds = []
        for _ in range(11):
            timed(COMPANIONS / "chflags", "nohidden", *names)
            hide = timed(COMPANIONS / "chflags", "hidden", *names)
            floor = timed(BIN / "bench_rewrite", ".hidden")
            again = timed(COMPANIONS / "chflags", "hidden", *names)
            inside = subprocess.run([BIN / "bench_rewrite", ".hidden", "11"], cwd=folder,
                                    check=True, capture_output=True, text=True).stdout.split()
            rounds.append((hide, floor, again, statistics.median(map(int, inside)) / 1e6))
        hide, floor, again, inside = median(rounds)
        self.add("chflags on 10,000 paths in one call", hide, floor, "ms", "≤ 20",
                 hide <= 20 * floor)
        self.add("… the same paths again, hidden already", again, floor, "ms", "", None)
        self.add("… against the floor's bare system calls", hide, inside, "ms", "", None)

    def press(self):
        at = {10: [], 100_000: []}
        for _ in range(4):
            for count, rounds in at.items():
                self.place.store(self.place.items(count))
                rounds += self.work_rounds("press", 5)
        figure, floor = median(at[10])
        self.add("a press of the switch, 10 items", figure, floor, "ms", "≤ 1.1 plus 5 ms",
                 figure <= 1.1 * floor + 5)
        large, _ = median(at[100_000])
        self.add("the same in a list of 100,000", large, figure, "ms", "≤ 5 ms more",
                 large <= figure + 5)

    def scroll(self):
        self.place.store(self.place.items(100_000))
        figure, floor, icons = self.work("scroll", 41)
        self.add("scrolling a page of 20 rows at 100,000", figure, floor, "ms", "≤ 1.5",
                 figure <= 1.5 * floor)

    def sort(self):
        self.place.store(self.place.items(100_000))
        rounds = self.work_rounds("sort", 12)[1:]
        figure, floor, reload = median(rounds)
        self.add("sort of 100,000 by title", figure, floor, "ms", "≤ 1.3 plus one reload",
                 figure <= 1.3 * floor + reload)

    def drop(self):
        at = {}
        for count in (5_000, 10_000, 20_000):
            self.place.store(self.place.items(count))
            at[count] = self.work("drop", 7, count)
        figure, floor = at[10_000]
        growth = at[20_000][0] / at[5_000][0]
        self.add("adding 10,000 paths in one drop onto 10,000", figure, floor, "ms",
                 f"linear: four times the paths ≤ 5 times (is {growth:.1f})", growth <= 5)

    # Memory

    def memory_of(self, *command, wait_paint=True):
        """MB that a program at rest has for itself, and all that it has resident."""
        process = self.place.start(*command, stdout=subprocess.PIPE)
        if wait_paint:
            process.stdout.readline()
        own, resident = settled(process.pid)
        end(process)
        return own, resident

    def memory(self):
        strangers = qt_programs()
        if strangers:
            print(f"Their own memory reads too low: {', '.join(strangers)} shares Qt's pages.")
        rounds = []
        paths = self.place.items(100_000)
        text = sum(2 * len(str(path).encode()) - len(str(path.parent).encode()) for path in paths)
        for _ in range(3):
            bare = self.memory_of(BIN / "bench_bare_window", "--stay")
            self.place.store([])
            empty = self.memory_of(BIN / "bench_start", "--stay")
            self.place.store(paths)
            full = self.memory_of(BIN / "bench_start", "--stay")
            rounds.append(bare + empty + full)
        bare, bare_all, empty, empty_all, full, _ = median(rounds)
        self.add("memory, empty list (its own)", empty, bare, "MB", "≤ 12 MB more",
                 empty <= bare + 12)
        self.add("memory, empty list (resident)", empty_all, bare_all, "MB", "≤ 12 MB more",
                 empty_all <= bare_all + 12)
        self.add("memory per item, 100,000 items", (full - empty) * 1e6 / len(paths),
                 text / len(paths), "bytes", "≤ 4", (full - empty) * 1e6 <= 4 * text)


    # Beside others

    def window(self, *command):
        """Milliseconds from a start until a large window is on the display."""
        answer = subprocess.run([BIN / "bench_window_watch", *command], check=True, text=True,
                                env=self.place.environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        return float(answer.split()[0])

    def window_memory(self, *command):
        """MB of a program at rest: its own and resident."""
        watch = self.place.start(BIN / "bench_window_watch", "-", *command,
                                 stdout=subprocess.PIPE, text=True)
        memory = settled(int(watch.stdout.readline().split()[1]))
        end(watch)
        return memory

    def desktop(self):
        folder = self.place.items(1000)[0].parent
        programs = {"Velmora, empty list": (BIN / "velmora",),
                    "pcmanfm-qt, empty folder": ("pcmanfm-qt", self.place.home / "empty"),
                    "thunar, empty folder": ("thunar", self.place.home / "empty"),
                    "Velmora, 1,000 items": (BIN / "velmora",),
                    "pcmanfm-qt, 1,000 items": ("pcmanfm-qt", folder),
                    "thunar, 1,000 items": ("thunar", folder)}
        (self.place.home / "empty").mkdir(exist_ok=True)
        starts = {name: [] for name in programs}
        for round_ in range(8):
            for name, command in programs.items():
                self.place.store(self.place.items(1000 if "1,000" in name else 0))
                took = self.window(*command)
                if round_ > 0:
                    starts[name].append(took)
        for name, command in programs.items():
            self.place.store(self.place.items(1000 if "1,000" in name else 0))
            own, resident = self.window_memory(*command)
            self.beside.append((name, f"{statistics.median(starts[name]):.0f} ms",
                                f"{own:.0f} MB", f"{resident:.0f} MB"))
        self.hiding_alternative()

    def hiding_alternative(self):
        """A quit pass over 1,000 items, and the loop that a user would write."""
        paths = self.place.items(1000)
        loop = self.place.home / "hide.sh"
        loop.write_text('cd "$1"; for name in *; do\n'
                        'grep -qx -- "$name" .hidden || echo "$name" >> .hidden; done\n')
        ours, theirs = [], []
        for _ in range(3):
            self.place.store(paths, Makeinvisibleallthelisteditemsonquit=True)
            self.change("nohidden", paths)
            rounds = self.work_rounds("quit", PART["quit"])
            ours.append(statistics.mean(took for took, _ in rounds) * len(paths))
            self.change("nohidden", paths)
            begin = time.perf_counter()
            subprocess.run(["sh", loop, paths[0].parent], check=True, stderr=subprocess.DEVNULL)
            theirs.append((time.perf_counter() - begin) * 1000)
            (paths[0].parent / ".hidden").unlink(missing_ok=True)
        self.add("hiding 1,000 items, against a user's shell loop", statistics.median(ours),
                 statistics.median(theirs), "ms", "", None)

    def grow(self):
        for count in (10, 100, 1000, 10_000, 100_000):
            paths = self.place.items(count)
            points = {}
            points["start to first paint"], points["start of the bare window"], _ = \
                self.starts(count, 7)
            self.place.store(paths)
            points["press of the switch"] = self.work("press", 5)[0]
            points["page of 20 rows"] = self.work("scroll", 9)[0]
            points["sort"] = self.work("sort", 5)[0]
            points["drop of as many"] = self.work("drop", 3, count)[0]
            points["hiding one item"] = self.hiding_one(count)
            self.growth[count] = points
            print(count, {name: round(value, 2) for name, value in points.items()}, flush=True)

    def hiding_one(self, count):
        """Milliseconds for one of the last items in a folder that lists that many."""
        folder = self.place.items(1000, folder_size=999_999)[0].parent
        (folder / ".hidden").write_text("".join(f"Listed name {i}.txt\n" for i in range(count)))
        took = []
        for _ in range(7):
            for word in ("hidden", "nohidden"):
                begin = time.perf_counter()
                subprocess.run([COMPANIONS / "chflags", word, "Paper_0000000.txt"], cwd=folder,
                               check=True, close_fds=False)
                took.append((time.perf_counter() - begin) * 1000)
        return statistics.median(took)


def qt_programs():
    """The programs that have Qt's libraries in their memory now."""
    found = set()
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            if "libQt6Core" in (process / "maps").read_text():
                found.add(f"{(process / 'comm').read_text().strip()} ({process.name})")
    return sorted(found)


def settled(pid):
    """The memory of a process once it has stopped changing, in MB: its own and resident."""
    last = None
    for _ in range(200):
        time.sleep(0.25)
        sizes = {}
        for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:]:
            name, value = line.split()[:2]
            sizes[name] = int(value) * 1024 / 1e6
        now = (sizes["Private_Clean:"] + sizes["Private_Dirty:"], sizes["Rss:"])
        if now == last:
            return now
        last = now
    return last


def main():
    kinds = {"start": Bench.start, "pass": Bench.pass_, "chflags": Bench.chflags,
             "press": Bench.press, "scroll": Bench.scroll, "sort": Bench.sort, "drop": Bench.drop,
             "memory": Bench.memory}
    kinds |= {"desktop": Bench.desktop, "growth": Bench.grow}
    wanted = [word for word in sys.argv[1:] if word in kinds] or list(kinds)
    with Place() as place:
        bench = Bench(place)
        for kind in wanted:
            kinds[kind](bench)
    results = ROOT / "bench" / "results"
    results.mkdir(exist_ok=True)
    tables = {"table": [report.HEADS] + [row.cells() for row in bench.rows],
              "beside": [report.BESIDE] + bench.beside}
    for name, table in tables.items():
        if len(table) > 1:
            print("\n" + report.aligned(table))
            (results / f"{name}.md").write_text(report.markdown(table))
    if bench.growth:
        report.plot(bench.growth, results)
    if "--record" in sys.argv:
        report.record(results, ROOT / "docs")
    elif "--record-again" in sys.argv:
        report.record(results, ROOT / "docs", {"table": "again"})
    return 0


if __name__ == "__main__":
    sys.exit(main())
