#!/usr/bin/env python3
"""The deck of demo.cpp, from Python: text with levels, a free text box, formats, a picture and a styled table.

    demo.py [output.pptx]
"""
import pathlib
import sys

import vellox.ppt as ppt

PICTURE = pathlib.Path(__file__).parent / "data" / "pump-curve.png"


def add_title_slide(deck):
    slide = deck.add("Title Slide")
    slide.replace("Title", "Pump test bench, week 47")
    slide.replace("Subtitle", "Flow, head and temperature of three impellers")


def add_bullets(deck):
    slide = deck.add("Title and Content")
    slide.replace("Title", "What we did")
    # A list in a list is one level deeper.
    slide.replace("Content", [
        "Three impellers, twelve runs each",
        ["Speed from 900 to 2900 rpm", "Water at 20 and 60 °C", ["each run ten minutes"]],
        "All runs within the limits of vibration",
    ])
    link = ppt.Paragraph("The raw data are at ")
    link.append(ppt.ExternalLink("https://example.org/bench/47", "example.org/bench/47"))
    slide.add("Content", link)


def add_text_box(deck):
    slide = deck.add("Title Only")
    slide.replace("Title", "A remark in a place of its own")
    box = ppt.TextBox()
    box.Name = "Remark"
    box.X, box.Y, box.Width, box.Height = "3cm", "6cm", "14cm", "3cm"
    box.add("The sensor at the outlet was replaced on Tuesday.")
    box.Italic = True
    slide.add(box)


def add_formats(deck):
    slide = deck.add("Title Only")
    slide.replace("Title", "Formats act on all that is below them")
    box = ppt.TextBox()
    box.Name = "Formats"
    box.X, box.Y, box.Width, box.Height = "1.8cm", "4cm", "29cm", "12cm"
    box.BackgroundColor = "whitesmoke"
    box.VAlign = "middle"
    box.FontSize = "20pt"  # of the box: all its text that has no size of its own

    runs = ppt.Paragraph("Normal, ")
    runs.append("bold, ").Bold = True
    runs.append("italic, ").Italic = True
    runs.append("underlined, ").Underline = "wavyHeavy"
    runs.append("struck, ").Strike = "single"
    runs.append("tomato, ").FontColor = "tomato"
    runs.append("#1a6e82, ").FontColor = "#1a6e82"
    runs.append("larger").FontSize = "28pt"
    box.add(runs)

    formula = ppt.Paragraph("H")
    formula.append("2").Subscript = True
    formula.append("O at 20 °C flows at 3·10")
    formula.append("-2").Superscript = True
    formula.append(" m")
    formula.append("3").Superscript = True
    formula.append("/s")
    box.add(formula)

    centred = ppt.Paragraph("A centred paragraph in a font of its own")
    centred.HAlign = "center"
    centred.Font = "DejaVu Serif"
    box.add(centred)

    right = ppt.Paragraph("All bold but for ")
    right.HAlign = "right"
    right.Bold = True
    right.append("one word").Bold = False  # the nearest format counts
    box.add(right)
    slide.add(box)


def add_picture(deck):
    slide = deck.add("Picture with Caption")
    slide.replace("Title", "Head over flow")
    slide.replace("Picture", ppt.Picture(PICTURE))
    slide.replace("Caption", "Measured points and fitted curves at 2900 rpm. Impeller A has the most head, "
                             "impeller C the flattest curve.")


def add_table(deck):
    table = ppt.Table([
        ["Impeller", "Speed in rpm", "Flow in m³/h", "Head in m", "Remark"],
        ["A", "900", "14.5", "4.0", ""],
        ["A", "2900", "47.0", "41.8", "highest head"],
        ["B", "2900", "49.5", "37.6", ""],
        ["C", "2900", "52.0", "33.1", "repeated on Friday"],
    ])
    table.row(1).BackgroundColor = "#17384a"
    table.row(1).FontColor = "white"
    table.entry(3, 4).BackgroundColor = "#ffe2d2"  # rows and columns count from 1

    columns = [ppt.ColSpec(width) for width in ("4cm", "5cm", "5cm", "5cm", "9cm")]
    columns[0].Bold = True
    for column in columns[1:4]:
        column.HAlign = "right"
    table.ColSpecs = columns

    slide = deck.add("Title and Table")
    slide.replace("Title", "Points of best efficiency")
    # What stands on the slide then is a table of its own, made from this one.
    on_slide = slide.find("Table")[0].replace(table)
    on_slide.StyleName = "Plain Grid"


def main():
    output = sys.argv[1] if len(sys.argv) > 1 else "demo.pptx"
    with ppt.Presentation(output) as deck:
        add_title_slide(deck)
        add_bullets(deck)
        add_text_box(deck)
        add_formats(deck)
        add_picture(deck)
        add_table(deck)
    print(deck.OutputPath)


if __name__ == "__main__":
    main()
