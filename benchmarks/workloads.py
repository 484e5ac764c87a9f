"""What decks cost as whole processes, beside the floor: a program that only deflates and writes the same parts.

    workloads.py <folder of the build> [--runs 3] [--decks 1000] [--no-growth] [--cpu]

Times are from the start of a process to its end, medians of the runs, in which the programs take turns: by the clock
on the wall, or with --cpu that of the processor, for a machine that is shared.
"""
import argparse
import os
import statistics
import sys
import tempfile
import time

SOURCES = os.path.dirname(os.path.abspath(__file__))
sys.path.append(os.path.join(os.path.dirname(SOURCES), "examples", "templates"))
from charts import add_charts

# Name, kind and count of make_deck, what to divide by for one deck, and whether other languages make it too.
WORKLOADS = [
    ("W1  1,000 slides of a title and five bullets", "text", 1000, 1, True),
    ("W1  5,000 slides", "text", 5000, 1, False),
    ("W2  200 slides with a table of 20 by 8", "table", 200, 1, False),
    ("W3  200 slides, each with a picture of 300 kB", "picture", 200, 1, False),
    ("W6  200 slides, each with a chart of three series of twelve values", "chart", 200, 1, False),
    ("W4  one deck of five slides", "text", 5, 1, False),
    ("W5  such a deck with a picture, of 50 in a process", "small", 50, 50, True),
    ("W5  the same, reading the template for each", "small-path", 50, 50, True),
]


def run(command, by_cpu=False):
    """Seconds and peak kB of a process."""
    start = time.perf_counter()
    pid = os.posix_spawn(command[0], command, os.environ)
    _, status, used = os.wait4(pid, 0)
    if status != 0:
        sys.exit(f"failed: {' '.join(command)}")
    seconds = used.ru_utime + used.ru_stime if by_cpu else time.perf_counter() - start
    return seconds, used.ru_maxrss


class Bench:
    def __init__(self, build, folder, runs, by_cpu):
        self.by_cpu = by_cpu
        self.programs = os.path.join(build, "bin")
        self.folder = folder
        self.runs = runs
        octave = os.path.join(build, "octave")
        self.has_octave = os.path.exists(octave)
        os.environ.update(PYTHONPATH=os.path.join(build, "python"), PYTHONDONTWRITEBYTECODE="1", OCTAVE_PATH=octave)
        run([os.path.join(self.programs, "make_deck"), "images", "200", folder])
        run(self.deck("text", 200))
        add_charts(self.path("deck.pptx"), self.path("charts.pptx"))

    def path(self, name):
        return os.path.join(self.folder, name)

    def deck(self, kind, count):
        return [os.path.join(self.programs, "make_deck"), kind, str(count), self.path("deck.pptx"), self.folder]

    def python_deck(self, kind, count):
        script = os.path.join(SOURCES, "python", "make_deck.py")
        return ["/usr/bin/python3", script, kind, str(count), self.path("deck.pptx"), self.folder]

    def octave_deck(self, kind, count):
        script = os.path.join(SOURCES, "octave", "make_deck.m")
        return ["/usr/bin/octave-cli", "--norc", "--no-history", "--quiet", script, kind, str(count),
                self.path("deck.pptx"), self.folder]

    def floor(self, times):
        return [os.path.join(self.programs, "floor"), "write", self.path("parts"), self.path("floor"), str(times)]

    def measure(self, commands):
        """The median (seconds, kB) of each command."""
        rounds = [[run(command, self.by_cpu) for command in commands] for _ in range(self.runs)]
        return [tuple(statistics.median(figures) for figures in zip(*runs)) for runs in zip(*rounds)]

    def workload(self, title, kind, count, decks, with_others):
        run(self.deck(kind, count))
        run([os.path.join(self.programs, "floor"), "unpack", self.path("deck.pptx"), self.path("parts")])
        commands = [self.deck(kind, count), self.floor(decks)]
        if with_others:
            commands.append(self.python_deck(kind, count))
            if self.has_octave:
                commands.append(self.octave_deck(kind, count))
        (seconds, peak), (least, _), *others = self.measure(commands)
        from_others = "".join(f"{other / seconds:10.2f}" for other, _ in others)
        print(f"{title:52}{1000 * seconds / decks:9.1f} ms{1000 * least / decks:9.1f} ms"
              f"{seconds / least:8.1f}{peak / 1024:8.0f} MB{from_others}", flush=True)
        return seconds, peak

    def profiles(self):
        """The same calls by the rules of each profile."""
        print(f"\n{'':52}{'classic':>12}{'office':>12}{'times':>8}")
        for title, kind, count, decks, _ in WORKLOADS:
            if kind == "chart" or count < 10:
                continue
            (classic, _), (office, _) = self.measure([self.deck(kind, count), self.deck(f"office-{kind}", count)])
            print(f"{title:52}{1000 * classic / decks:9.1f} ms{1000 * office / decks:9.1f} ms{office / classic:8.2f}",
                  flush=True)

    def openings(self):
        """What reading a template costs: by its slides, and by what its master holds."""
        template = self.path("template.pptx")
        print()
        for title, kind, count in [("200 slides opened as a template", "text", 200),
                                   ("2,000 slides opened as a template", "text", 2000),
                                   ("A master of 400 shapes opened", "master", 400),
                                   ("A master of 4,000 shapes opened", "master", 4000)]:
            make_deck = self.deck(kind, count)[:3]
            run([*make_deck, template])
            (seconds, peak), = self.measure([[make_deck[0], "open", template, self.path("opened.pptx")]])
            print(f"{title:52}{1000 * seconds:9.1f} ms{peak / 1024:29.0f} MB", flush=True)


def main():
    arguments = argparse.ArgumentParser(usage=__doc__)
    arguments.add_argument("build")
    arguments.add_argument("--runs", type=int, default=3)
    arguments.add_argument("--decks", type=int, default=1000)
    arguments.add_argument("--no-growth", action="store_true")
    arguments.add_argument("--cpu", action="store_true")
    options = arguments.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(os.path.abspath(options.build), folder, options.runs, options.cpu)
        print(f"{'':52}{'a deck':>12}{'floor':>12}{'times':>8}{'peak':>11}{'Python':>10}{'Octave':>10}")
        results = {(kind, count): bench.workload(title, kind, count, decks, with_others)
                   for title, kind, count, decks, with_others in WORKLOADS}
        more = results["text", 5000][1] - results["text", 1000][1]
        print(f"\nMemory for each further slide of text: {more / 4000:.1f} kB")
        bench.profiles()
        bench.openings()
        if options.no_growth:
            return
        (seconds, _), = bench.measure([bench.deck("text", 10000)])
        print(f"10,000 such slides: {seconds / results['text', 1000][0]:.1f} times the time of 1,000")
        for kind, title in ("small", "W5"), ("small-path", "W5, reading the template for each,"):
            (_, few), = bench.measure([bench.deck(kind, 20)])
            _, many = run(bench.deck(kind, options.decks))
            print(f"Peak memory of {options.decks} decks of {title} in one process: "
                  f"{many / few:.2f} times that of 20")


if __name__ == "__main__":
    main()
