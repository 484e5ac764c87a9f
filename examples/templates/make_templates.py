#!/usr/bin/env python3
"""Makes the templates that the weekly report is shown on.

    make_templates.py <folder> [default template]

dark.pptx     light text on a dark page, a stripe at its edge
art.pptx      layouts with backgrounds and shapes of their own
samples.pptx  finished slides with tokens, and one with a chart, but no layout to fill

All are made from vellox's default template, by what a designer does in an office program: other colours, another master."""
import pathlib
import re
import sys
import zipfile

import vellox
import vellox.ppt as ppt
from charts import add_charts

THEME = "ppt/theme/theme1.xml"
MASTER = "ppt/slideMasters/slideMaster1.xml"
STYLES = "ppt/tableStyles.xml"
TITLE, SECTION = "ppt/slideLayouts/slideLayout1.xml", "ppt/slideLayouts/slideLayout3.xml"

DARK = {"dk1": "101A22", "lt1": "F4F7F8", "dk2": "1C2C38", "lt2": "BFE6EC", "accent1": "35B5C8", "accent2": "FF9A5C",
        "accent3": "8FA8F6", "accent4": "E6C229", "accent5": "D58BD0", "accent6": "A5C76B", "hlink": "7CC6FE",
        "folHlink": "C5A8E8"}
ART = {"dk1": "2B2119", "dk2": "5A1F1B", "lt2": "F7EFE6", "accent1": "B8402F", "accent2": "E39A3B", "accent3": "4C7A6D",
       "accent4": "7C5A8C", "accent5": "3E6FA3", "accent6": "8A8F3C", "hlink": "9A3B2C", "folHlink": "6B4A77"}


def shape(number, name, box, colour, alpha=100, form="ellipse"):
    """Art of a master or a layout. The box is in millimetres."""
    x, y, width, height = (round(value * 36000) for value in box)
    return (f'<p:sp><p:nvSpPr><p:cNvPr id="{number}" name="{name}"/><p:cNvSpPr/><p:nvPr userDrawn="1"/></p:nvSpPr><p:spPr>'
            f'<a:xfrm><a:off x="{x}" y="{y}"/><a:ext cx="{width}" cy="{height}"/></a:xfrm><a:prstGeom prst="{form}"><a:avLst/>'
            f'</a:prstGeom><a:solidFill><a:schemeClr val="{colour}"><a:alpha val="{alpha * 1000}"/></a:schemeClr></a:solidFill>'
            '<a:ln><a:noFill/></a:ln></p:spPr></p:sp>')


def background(*colours):
    """One colour fills the page, several run over it from the upper left to the lower right."""
    stops = "".join(f'<a:gs pos="{100000 * number // (len(colours) - 1)}"><a:schemeClr val="{colour}"/></a:gs>'
                    for number, colour in enumerate(colours)) if len(colours) > 1 else ""
    fill = (f'<a:gradFill><a:gsLst>{stops}</a:gsLst><a:lin ang="2700000" scaled="0"/></a:gradFill>' if stops
            else f'<a:solidFill><a:schemeClr val="{colours[0]}"/></a:solidFill>')
    return f'<p:bg><p:bgPr>{fill}<a:effectLst/></p:bgPr></p:bg>'


class Design:
    """The parts of a package while they are changed."""

    def __init__(self, path):
        with zipfile.ZipFile(path) as package:
            self.parts = {name: package.read(name).decode() for name in package.namelist()}

    def colour(self, colours):
        for name, value in colours.items():
            self.replace(THEME, rf'(<a:{name}>\s*<a:srgbClr val=)"\w+"', rf'\1"{value}"')

    def replace(self, part, pattern, text):
        self.parts[part], count = re.subn(pattern, text, self.parts[part], count=1, flags=re.DOTALL)
        assert count == 1, f"{part} has no {pattern}"

    def drop(self, part, name):
        """Takes a shape away."""
        self.replace(part, rf'<p:sp>\s*<p:nvSpPr>\s*<p:cNvPr id="\d+" name="{name}"/>.*?</p:sp>\s*', "")

    def add(self, part, shapes):
        """Behind all that stands there already."""
        self.replace(part, r"(<p:spTree>.*?<p:grpSpPr/>)", rf"\1{shapes}")

    def write_on(self, part, colour):
        """A page of another background shows its texts in another colour."""
        self.replace(part, r'(<a:defRPr sz="\d+" b="1")/>',
                     rf'\1><a:solidFill><a:schemeClr val="{colour}"/></a:solidFill></a:defRPr>')
        self.replace(part, r'(type="(?:subTitle|body)".*?)<a:schemeClr val="tx1">.*?</a:schemeClr>',
                     rf'\1<a:schemeClr val="{colour}"/>')

    def save(self, path):
        with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
            for name, text in self.parts.items():
                package.writestr(zipfile.ZipInfo(name, (1980, 1, 2, 0, 0, 0)), text, zipfile.ZIP_DEFLATED)


def make_dark(design):
    design.colour(DARK)
    design.replace(MASTER, 'bg1="lt1" tx1="dk1" bg2="lt2" tx2="dk2"', 'bg1="dk1" tx1="lt1" bg2="dk2" tx2="lt2"')
    design.drop(MASTER, "Top Accent")
    design.drop(MASTER, "Footer Rule")
    design.add(MASTER, shape(7, "Stripe", (0, 0, 4, 190.5), "accent1", form="rect"))
    # Tables write with the text colour of the page, and band its second background.
    design.parts[STYLES] = re.sub(r'<a:schemeClr val="accent1">\s*<a:satMod val="70000"/>.*?</a:schemeClr>',
                                  '<a:schemeClr val="bg2"/>', design.parts[STYLES].replace('"dk1"', '"tx1"'), flags=re.DOTALL)
    design.add(TITLE, shape(17, "Ring", (238, 60, 150, 150), "bg2", form="donut"))


def make_art(design):
    design.colour(ART)
    design.drop(MASTER, "Top Accent")
    design.add(MASTER, shape(7, "Sun", (308, -22, 52, 52), "accent2", 35) + shape(9, "Hill", (284, -14, 34, 34), "accent1", 18))
    for part, colours in ((TITLE, ("tx2", "accent1")), (SECTION, ("accent3",))):
        design.replace(part, "<p:sldLayout ", '<p:sldLayout showMasterSp="0" ')
        design.replace(part, r'(<p:cSld name="[^"]*">)', rf"\1{background(*colours)}")
        design.drop(part, "Accent Bar")
        design.add(part, shape(17, "Sun", (246, 24, 118, 118), "accent2", 55) +
                   shape(18, "Hill", (180, 124, 240, 160), "tx2", 40))
        design.write_on(part, "bg1")


def make_samples(path, default):
    """A designer's own slides: what changes from week to week stands in braces."""
    with vellox.deck(path, default) as deck:
        deck.add("Title Slide", {"Title": "{title}", "Subtitle": "Week {week}, {from:%d %B} to {to:%d %B %Y}"})
        slide = deck.add("Title Only", {"Title": "The week in figures"})
        for number, (name, unit) in enumerate((("runs", "runs"), ("passed:.0%", "within limits"), ("hours:.1f", "hours"))):
            box = slide.add(ppt.TextBox())
            box.X, box.Y, box.Width, box.Height = (ppt.cm(length) for length in (1.9 + 10.2 * number, 5.5, 9.6, 6))
            box.BackgroundColor = ("#1a6e82", "#17384a", "#41609f")[number]
            box.FontColor, box.VAlign = "white", "middle"
            figure, text = box.add(f"{{{name}}}"), box.add(unit)
            figure.FontSize, figure.Bold = "48pt", True
            figure.HAlign = text.HAlign = "center"
        slide = deck.add("Two Content", {"Title": "Bench {bench}", "Left Content": "{plot}", "Right Content": "{remarks}"})
        slide.Name = "Bench"
        table = ppt.Table([["Impeller", "Runs", "Flow in m³/h", "Head in m", "Efficiency"],
                           ["{points.impeller}", "{points.runs}", "{points.flow:.1f}", "{points.head:.1f}",
                            "{points.efficiency:.1%}"]])
        for row in (1, 2):
            for column in range(2, 6):
                table.entry(row, column).HAlign = "right"
        deck.add("Title and Table", {"Title": "Points of best efficiency", "Table": table})
        deck.add("Title Only", {"Title": "Energy of each day in kWh"})
    add_charts(path, path, "Energy", slides=[5])


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    default = folder / "default.pptx"
    if len(sys.argv) > 2:
        default = pathlib.Path(sys.argv[2])
    else:
        with vellox.deck(default):
            pass
    for name, make in (("dark", make_dark), ("art", make_art)):
        design = Design(default)
        make(design)
        design.save(folder / f"{name}.pptx")
    make_samples(folder / "samples.pptx", default)


if __name__ == "__main__":
    main()
