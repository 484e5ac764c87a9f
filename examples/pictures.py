#!/usr/bin/env python3
"""The four ways in which a picture goes into its box, on one slide.

    pictures.py [output.pptx]
"""
import pathlib
import sys

import vellox
import vellox.ppt as ppt

PICTURE = (pathlib.Path(__file__).parent / "data" / "pump-curve.png").read_bytes()


def add_box(slide, fit, number):
    x = f"{1.5 + 8 * number}cm"
    frame = ppt.TextBox()
    frame.X, frame.Y, frame.Width, frame.Height = x, "5cm", "6.5cm", "8cm"
    frame.BackgroundColor = "#dce6ea"
    slide.add(frame)
    picture = slide.add(ppt.Picture(PICTURE))
    picture.X, picture.Y, picture.Width, picture.Height = x, "5cm", "6.5cm", "8cm"
    picture.Fit = fit
    picture.AltText = f"A pump curve, fitted: {fit}"
    label = ppt.TextBox()
    label.X, label.Y, label.Width, label.Height = x, "13.2cm", "6.5cm", "1cm"
    label.add(fit).HAlign = "center"
    slide.add(label)


def main():
    output = sys.argv[1] if len(sys.argv) > 1 else "pictures.pptx"
    with vellox.deck(output) as deck:
        slide = deck.add("Title Only")
        slide.replace("Title", "Four ways to fit")
        for number, fit in enumerate(["contain", "enlarge", "cover", "stretch"]):
            add_box(slide, fit, number)
    print(output)


if __name__ == "__main__":
    main()
