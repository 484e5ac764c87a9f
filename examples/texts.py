#!/usr/bin/env python3
"""Lists, texts that are too long, an SVG, and what stands around them: a slide for each.

    texts.py [output.pptx]
"""
import pathlib
import sys

import vellox
import vellox.ppt as ppt

PLANT = pathlib.Path(__file__).parent / "data" / "plant.svg"
LONG = "The pump ran for three weeks without a stop, and its efficiency fell by less than half a per cent. "


def add_lists(deck):
    steps = ["Switch off", "Open the valve", ["a quarter turn", "slowly"], "Wait for the pressure"]
    slide = deck.add("Two Content", {"Title": "Lists", "Left Content": steps, "Right Content": steps})
    slide["Left Content"].Bullet = "1. a)"
    slide["Left Content"].SpaceAfter = "6pt"
    slide["Right Content"].Bullet = "\u2713 \u2013"


def add_box(slide, autofit, number):
    box = ppt.TextBox()
    box.X, box.Y, box.Width, box.Height = f"{1.6 + 10.7 * number}cm", "5cm", "9cm", "4cm"
    box.BackgroundColor, box.Autofit = "#dce6ea", autofit
    box.add(f"{autofit}: " + LONG * 3)
    slide.add(box)


def main():
    output = sys.argv[1] if len(sys.argv) > 1 else "texts.pptx"
    with vellox.deck(output) as deck:
        deck.Date, deck.Footer, deck.SlideNumbers = "21 November 2026", "Pump station 4", True
        add_lists(deck)
        slide = deck.add("Title Only", {"Title": "Three ways to fit"})
        for number, autofit in enumerate(["none", "shrink", "resize"]):
            add_box(slide, autofit, number)
        plant = ppt.Picture(str(PLANT))
        plant.Fit = "enlarge"
        deck.add("Title and Picture", {"Title": "The plant", "Picture": plant})
    print(output)


if __name__ == "__main__":
    main()
