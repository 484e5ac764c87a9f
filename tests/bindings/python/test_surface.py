"""The stubs, the docstrings, and the pages of the guide."""
import importlib
import inspect
import pathlib
import re
import subprocess
import sys

import pandas as pd
import pytest

import vellox
import vellox.ppt as ppt

GUIDE = pathlib.Path(__file__).parents[3] / "docs/python.md"


TYPED = """
import copy
import datetime
import pathlib

import numpy as np

import vellox.ppt as ppt

ppt.Slide()  # type: ignore[call-arg]
ppt.Format()  # type: ignore[call-arg]
deck = ppt.Presentation(pathlib.Path("typed"))
deck.OutputPath = pathlib.Path("typed.pptx")
names: list[str] = deck.getLayoutNames(deck.getMasterNames()[0])
styles: list[tuple[str, str]] = deck.getTableStyleNames()
slide = deck.add("Blank", np.int64(1))
shapes: list[ppt.Shape] = slide.Children + slide.find("Title")
deck.find("Title")[0].append("x")  # type: ignore[union-attr]
paragraph = ppt.Paragraph("x")
paragraph.Bold = np.bool_(True)
paragraph.Bold = "no"  # type: ignore[assignment]
paragraph.Bold = None
paragraph.Level = np.int8(2)
paragraph.FontSize = 3  # type: ignore[assignment]
paragraph.Style = (ppt.Bold(True), ppt.FontColor("red"))
paragraph.Children[0].Content = datetime.date.today()
paragraph.Children[0].Content = np.float32(2)
twin: ppt.Paragraph = copy.copy(paragraph)
"""


def test_stubs_say_what_the_module_has(tmp_path):
    package = pathlib.Path(ppt.__file__).parent
    script, typed = tmp_path / "report.py", tmp_path / "typed.py"
    script.write_text("\n".join(get_snippets()))
    typed.write_text(TYPED)
    # One signature stands for all overloads.
    known = tmp_path / "known"
    known.write_text("vellox\\.ppt\\.\\w+\\.(__init__|add|replace|append|setData)")
    check = [sys.executable, "-m", "mypy", "--strict", "--ignore-missing-imports", "--cache-dir", str(tmp_path)]
    for command in (
        [*check, "--allow-untyped-defs", "--allow-untyped-calls", str(script)],
        [*check, str(typed), str(package / "ppt.pyi"), *map(str, package.glob("_*.py"))],
        [sys.executable, "-m", "mypy.stubtest", "--allowlist", str(known), "vellox.ppt"],
    ):
        checked = subprocess.run(command, capture_output=True, text=True, check=False, cwd=tmp_path)
        assert checked.returncode == 0, checked.stdout + checked.stderr


def test_signatures_can_be_read():
    for call, signature in ((ppt.Table.entry, "(self, row, column, /)"), (ppt.Table(2).entry, "(row, column, /)"),
                            (ppt.Presentation.open, "(self, /)"), (ppt.MessageDispatcher.getTheDispatcher, "()"),
                            (ppt.Slide.add, "(self, argument1, argument2=Ellipsis, /)"),
                            (ppt.ExternalLink, "(argument1=Ellipsis, text=Ellipsis, /)")):
        assert str(inspect.signature(call)) == signature
    for call, signature in ((ppt.Object.__copy__, "(self)"), (ppt.Presentation.__enter__, "(self)")):
        assert str(inspect.signature(call)).startswith(signature)


def test_help_lists_the_overloads():
    text = ppt.Slide.add.__doc__
    assert "add(picture: Picture) -> Picture" in text and "add(name: str, text: str) -> None" in text
    assert "counts from 1" in ppt.Presentation.add.__doc__ and "Paragraph(text: str, level: int)" in ppt.Paragraph.__doc__
    assert "count from 1" in ppt.Table.entry.__doc__ and ppt.Shape.X.__doc__
    undocumented = [
        f"{name}.{member}"
        for name, bound in vars(ppt).items() if isinstance(bound, type)
        for member, value in vars(bound).items()
        if not member.startswith("_") and not (value.__doc__ or "").strip()
    ]
    assert undocumented in ([], ["Error.identifier", "Error.arguments"])


def get_snippets(page=GUIDE):
    return re.findall(r"^```python\n(.*?)^```$", page.read_text(), re.MULTILINE | re.DOTALL)


class Region(str):
    """Some pages want a name, some a record."""
    name, sales = property(str), 12


def make_samples(path):
    """The slides with tokens that pages speak of."""
    with vellox.deck(path) as deck:
        for name, title, content in (("Sample", "{region}", "{sales}"), ("Region", "{region}", "as before")):
            deck.add("Title and Content", {"Title": title, "Content": content}).Name = name
        deck.add("Two Content", {"Title": "{week}: {flow.mean} {flow.unit}", "Left Content": "{points}",
                                 "Right Content": "{plot}"})
        deck.add("Title and Table", {"Title": "Runs", "Table": [["Name", "Flow"], ["{rows.name}", "{rows.flow}"]]})


PAGES = [page for page in [GUIDE.parents[1] / "README.md", *sorted(GUIDE.parent.glob("*.md"))]
         if "```python\n" in page.read_text()]


@pytest.mark.parametrize("page", PAGES, ids=lambda page: page.stem)
def test_the_pages_run(page, tmp_path, monkeypatch):
    """All snippets of a page, in their order, as one script, with the files that pages speak of."""
    monkeypatch.chdir(tmp_path)
    for data in (GUIDE.parents[1] / "examples/data").iterdir():
        (tmp_path / data.name).write_bytes(data.read_bytes())
    (tmp_path / "plot.png").write_bytes((tmp_path / "pump-curve.png").read_bytes())
    ppt.Presentation("corporate.pptx").open()
    (tmp_path / "corporate.pptx").rename("corporate.potx")
    make_samples("samples.pptx")
    sys.path.insert(0, str(GUIDE.parents[1] / "examples/templates"))
    importlib.import_module("charts").add_charts("samples.pptx", "charts.pptx", "Sales")
    sys.path.pop(0)
    scope = {"__name__": page.stem, "ppt": ppt, "vellox": vellox, "regions": [Region("north"), Region("south")],
             "frame": pd.DataFrame({"North": [3.5, 4.0], "South": [2.0, 1.5]}, index=["Spring", "Summer"]),
             "runs": pd.DataFrame({"name": ["A", "B"], "flow": [47.0, 49.5]}),
             "deck": vellox.deck("page.pptx", "samples.pptx")}
    for number, snippet in enumerate(get_snippets(page), 1):
        exec(compile(snippet, f"{page.name}, snippet {number}", "exec"), scope)  # pylint: disable=exec-used
    assert list(tmp_path.glob("*.pptx"))
