"""Measures Velmora against the goals of its table, figure and floor in turns."""

import pathlib
import statistics
import subprocess
import sys
import time

import report
from place import Place, end

ROOT = pathlib.Path(__file__).resolve().parent.parent
BIN = ROOT / "build" / "release" / "bin"
KINDS = ("start", "beside", "memory", "press", "list", "passes")
PREFERENCES = {"Makevisibleallthelisteditemsatlaunch": True,
               "Makeinvisibleallthelisteditemsonquit": True}


def medians(rounds):
    """The medians of the columns of many rounds."""
    return [statistics.median(column) for column in zip(*rounds)]


class Bench:
    def __init__(self, place):
        self.place = place
        self.rows = []

    def add(self, *arguments, unit="ms"):
        self.rows.append(report.Row(*arguments, unit))
        print(self.rows[-1], flush=True)

    def output(self, *command):
        return subprocess.run(command, env=self.place.environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True,
                              text=True).stdout

    def work(self, kind, rounds):
        """Figure and floor of each round, as bench_work tells them."""
        answer = self.output(BIN / "bench_work", kind, str(rounds))
        return [[float(figure) for figure in line.split()] for line in answer.splitlines()]

    def first_paint(self, program):
        """Milliseconds from the start of the process until its window was painted."""
        begin = time.clock_gettime_ns(time.CLOCK_MONOTONIC)
        return (int(self.output(BIN / program)) - begin) / 1e6

    def start(self):
        for count, rounds in ((0, 41), (1000, 31), (100_000, 11)):
            self.place.store(self.place.items(count))
            figure, floor = medians([(self.first_paint("bench_start"),
                                      self.first_paint("bench_bare_window"))
                                     for _ in range(rounds)])
            limit, goal = {0: (1.5 * floor, "1.5 times"), 1000: (1.8 * floor, "1.8 times")}.get(
                count, (max(250, 10 * floor), "250 ms, or 10 times"))
            self.add(f"start to first paint, {count:,} items", figure, floor, limit, goal)

    def beside(self):
        self.place.store([])
        folder = self.place.home / "empty"
        folder.mkdir()
        rounds = [[float(self.output(BIN / "bench_window_watch", *program))
                   for program in ((BIN / "velmora",), ("pcmanfm-qt", folder))] for _ in range(9)]
        figure, floor = medians(rounds[1:])
        self.add("start until the window is there, beside pcmanfm-qt", figure, floor, 0.5 * floor,
                 "0.5 times")

    def passes(self):
        for count, rounds, factor in ((1000, 3, 1.3), (10_000, 1, 1.5)):
            paths = self.place.items(count, folder_size=count)
            found = {"quit": [], "launch": []}
            for kind in [*found] * rounds:  # each finds everything as the other one has left it
                self.place.store(paths, **PREFERENCES)
                found[kind] += self.work(kind, 1)
            for kind, measured in found.items():
                figure, floor = medians(measured)
                self.add(f"one item of a {kind} pass, {count:,} items", figure, floor,
                         factor * floor, f"{factor} times")

    def press(self):
        at = {10: [], 100_000: []}
        for count in [*at] * 5:
            self.place.store(self.place.items(count))
            at[count] += self.work("press", 6)
        figure, floor = medians(at[10])
        large, _ = medians(at[100_000])
        self.add("a press of the switch, 10 items", figure, floor, floor + 5, "plus 5 ms")
        self.add("a press of the switch, 100,000 items", large, figure, figure + 5, "plus 5 ms")

    def list(self):
        self.place.store(self.place.items(100_000))
        figure, floor = medians(self.work("scroll", 41))
        self.add("a page of 20 rows, 100,000 items", figure, floor, 1.5 * floor, "1.5 times")
        figure, _ = medians(self.work("sort", 12))
        self.add("a sort of 100,000 items", figure, None, 33, "33 ms")
        at = {5000: [], 10_000: [], 20_000: []}
        for count in [*at] * 3:
            self.place.store(self.place.items(count))
            at[count] += self.work("drop", 3)
        few, figure, many = (medians(rounds)[0] for rounds in at.values())
        self.add("a drop of 10,000 paths onto 10,000", figure, None, figure * 5 * few / many,
                 f"four times as many ≤ 5 times (is {many / few:.1f})")

    def memory(self):
        self.place.store([])
        figure, floor = medians([[self.resident("bench_start"), self.resident("bench_bare_window")]
                                 for _ in range(3)])
        self.add("memory, no items", figure, floor, floor + 12, "plus 12 MB", unit="MB")

    def resident(self, program):
        """MB that a program has in memory once that has stopped changing."""
        process = self.place.start("env", "STAY=1", BIN / program)
        process.stdout.readline()
        last, now = None, 0
        while now != last:
            time.sleep(0.5)
            status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
            last, now = now, int(status.split("VmRSS:")[1].split()[0]) * 1024 / 1e6
        end(process)
        return now


def main():
    wanted = [word for word in sys.argv[1:] if word in KINDS]
    with Place() as place:
        bench = Bench(place)
        for kind in wanted or KINDS:
            getattr(bench, kind)()
    if "--record" in sys.argv:
        report.record(bench.rows, ROOT / "docs")


if __name__ == "__main__":
    main()
