#!/usr/bin/env python3
"""The report of a week's runs on three test benches of pumps, on a designed template.

    weekly_report.py <template.pptx> [output.pptx] [--week 47]

A template with finished slides has their tokens filled; of any other, slides are made from the layouts. Needs
python3-pandas; with python3-matplotlib the runs are plotted, with python3-tqdm there is a progress bar."""
import argparse
import pathlib

import pandas as pd
import vellox
import vellox.ppt as ppt

try:
    from matplotlib import rc_context
    from matplotlib.figure import Figure
except ModuleNotFoundError:
    Figure = None
try:
    from tqdm import tqdm
except ModuleNotFoundError:
    def tqdm(items, **_):
        return items

RUNS = pathlib.Path(__file__).parent / "data" / "runs.csv"
WATER = 9.81 / 3.6  # watts that a cubic metre an hour takes for each metre of head
MINUTES = 12        # that a run takes
INK = ("axes.edgecolor", "axes.labelcolor", "xtick.color", "ytick.color", "text.color")


def read_week(number):
    runs = pd.read_csv(RUNS, parse_dates=["date"])
    runs["efficiency"] = WATER * runs.flow * runs["head"] / (1000 * runs.power)
    runs["passed"] = runs.passed == "yes"
    return runs[runs.date.dt.isocalendar().week == number]


def find_best_points(runs):
    """The run of the highest efficiency of each impeller."""
    best = runs.loc[runs.groupby("impeller").efficiency.idxmax(), ["impeller", "flow", "head", "efficiency"]]
    best.insert(1, "runs", runs.impeller.value_counts().reindex(best.impeller).values)
    return best


def make_table(frame, forms):
    """A frame whose columns show their numbers and dates in forms; None stands for as they are."""
    table = ppt.Table(frame)
    table.ColSpecs = [ppt.ColSpec() for _ in forms]
    for column, form in zip(table.ColSpecs, forms):
        column.NumberFormat = form
    return table


def plot(runs, template):
    """Head over flow in the colours of the template, on no background: a grey that is read on light and on dark pages."""
    if Figure is None:
        return ppt.Picture(str(RUNS.parent / "pump-curve.png"))
    colours = vellox.inspect(template).masters[0].colours
    with rc_context({name: "#7d8a94" for name in INK} | {"font.size": 14, "legend.frameon": False}):
        figure = Figure(figsize=(5.4, 4.7), dpi=200, facecolor="none", layout="constrained")
        axes = figure.add_subplot(xlabel="Flow in m³/h", ylabel="Head in m", facecolor="none")
        for number, (impeller, group) in enumerate(runs.groupby("impeller"), 1):
            axes.plot(group.flow, group["head"], "o", color=f"#{colours[f'accent{number}']}", label=f"Impeller {impeller}")
        axes.legend()
    return ppt.Picture(figure)


def describe(runs):
    """What is to be said of runs: a list, and what is below an item is a list in it."""
    failed = runs[~runs.passed]
    return [f"{len(runs)} runs, {len(failed)} beyond the limits",
            *([[f"{run.date:%A}, impeller {run.impeller}" for run in failed.itertuples()]] if len(failed) else []),
            f"Highest efficiency {runs.efficiency.max():.1%}", f"Highest head {runs['head'].max():.1f} m"]


def add_slides(deck, template, week, runs):
    """From layouts, which most templates have by these names."""
    deck.add("Title Slide", {"Title": "Pump test benches", "Subtitle": f"Week {week}"})
    deck.add("Title and Content", {"Title": "The week", "Content": describe(runs)})
    for bench, group in tqdm(list(runs.groupby("bench")), disable=None):
        deck.add("Two Content", {"Title": f"Bench {bench}", "Left Content": plot(group, template),
                                 "Right Content": describe(group)})
    best = find_best_points(runs)
    best.columns = ["Impeller", "Runs", "Flow in m³/h", "Head in m", "Efficiency"]
    deck.add("Title and Table", {"Title": "Points of best efficiency",
                                 "Table": make_table(best, [None, "d", ".1f", ".1f", ".1%"])})
    all_runs = runs[["date", "bench", "impeller", "flow", "head", "passed"]]
    all_runs.columns = ["Day", "Bench", "Impeller", "Flow in m³/h", "Head in m", "Within limits"]
    table = make_table(all_runs, ["%a %d.%m.", "d", None, ".1f", ".1f", None])
    table.TrueText, table.FalseText = "yes", "no"
    deck.addPages("Title and Table", "Table", table, title="All runs")


def fill_samples(deck, template, week, runs):
    """Slides that are finished but for their tokens. That of a bench is copied for each."""
    sample, place = deck.find("Bench")[0], 3
    for bench, group in tqdm(list(runs.groupby("bench")), disable=None):
        slide = deck.copy(sample, index=place + bench)
        slide.fillTokens({"bench": bench, "plot": plot(group, template), "remarks": describe(group)}, strict=True)
    deck.remove(sample)
    energy = runs.assign(day=runs.date.dt.strftime("%A"), energy=runs.power * MINUTES / 60).pivot_table(
        "energy", "day", "bench", "sum", sort=False).add_prefix("Bench ")
    deck.fillTokens({"title": "Pump test benches", "week": week, "from": runs.date.min(), "to": runs.date.max(),
                     "runs": len(runs), "passed": runs.passed.mean(), "hours": len(runs) * MINUTES / 60,
                     "points": find_best_points(runs)}, strict=True)
    for slide in deck:
        for name in slide.getChartNames():
            slide.chart(name).setData(energy.index, energy)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("template")
    parser.add_argument("output", nargs="?", default="weekly-report.pptx")
    parser.add_argument("--week", type=int, default=47)
    options = parser.parse_args()
    runs = read_week(options.week)
    with vellox.deck(options.output, options.template) as deck:
        make = fill_samples if deck.find("Bench") else add_slides
        make(deck, options.template, options.week, runs)
    for finding in deck.Findings:
        print(finding)
    print(f"{options.output}: {len(deck)} slides")


if __name__ == "__main__":
    main()
