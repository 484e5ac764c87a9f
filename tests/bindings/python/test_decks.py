"""Whole decks: the same from Python as from C++, and from what numbers are kept in."""
import datetime
import os
import pathlib
import re
import runpy
import subprocess
import sys
import zipfile

import numpy as np
import pandas as pd
import pytest

import vellox
import vellox.ppt as ppt

EXAMPLES = pathlib.Path(__file__).parents[3] / "examples"
UUID = re.compile(rb"[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}", re.IGNORECASE)


def read_parts(path):
    """All parts by name, without the numbers that are drawn anew each time."""
    with zipfile.ZipFile(path) as package:
        return {UUID.sub(b"uuid", name.encode()): UUID.sub(b"uuid", package.read(name)) for name in package.namelist()}


def test_the_demo_is_the_same_from_python(tmp_path, monkeypatch):
    subprocess.run([os.environ["VELLOX_DEMO"], tmp_path / "cpp.pptx"], check=True, stdout=subprocess.DEVNULL)
    monkeypatch.setattr(sys, "argv", ["demo.py", str(tmp_path / "python.pptx")])
    runpy.run_path(str(EXAMPLES / "demo.py"), run_name="__main__")
    expected, made = read_parts(tmp_path / "cpp.pptx"), read_parts(tmp_path / "python.pptx")
    assert made.keys() == expected.keys()
    assert [name for name in made if made[name] != expected[name]] == []


def test_the_weekly_report_is_made_on_any_template(tmp_path, monkeypatch):
    """By layouts and by samples: nothing is left unfilled, and a strict reader has nothing to repair."""
    monkeypatch.syspath_prepend(str(EXAMPLES / "templates"))
    monkeypatch.setattr(sys, "argv", ["make_templates.py", str(tmp_path)])
    runpy.run_path(str(EXAMPLES / "templates/make_templates.py"), run_name="__main__")
    report = runpy.run_path(str(EXAMPLES / "weekly_report.py"))
    for name, slides in (("dark", 10), ("art", 10), ("samples", 7)):
        template, output = tmp_path / f"{name}.pptx", tmp_path / f"report-{name}.pptx"
        monkeypatch.setattr(sys, "argv", ["weekly_report.py", str(template), str(output)])
        report["main"]()
        assert vellox.inspect(output).slides == slides
        assert [finding.text for path in (template, output) for finding in vellox.check(path)] == []
        text = b"".join(value for part, value in read_parts(output).items() if part.startswith(b"ppt/slides/slide"))
        assert b"Bench 3" in text and b"{" not in text.replace(b'id="{', b"").replace(b"Id>{", b"")


def test_a_slide_has_no_footer_where_it_wants_none(tmp_path):
    with vellox.deck(tmp_path / "deck.pptx") as deck:
        deck.Footer = "of the deck"
        with_footer, without = deck.add("Blank"), deck.add("Blank")
        without.Footer = ""
        assert (with_footer.Footer, without.Footer) == (None, "")
    parts = read_parts(tmp_path / "deck.pptx")
    assert [b"of the deck" in parts[b"ppt/slides/slide%d.xml" % number] for number in (1, 2)] == [True, False]


def get_rows(xml):
    return [re.findall("<a:t>([^<]*)</a:t>", row) for row in re.findall("<a:tr .*?</a:tr>", xml, re.DOTALL)]


def test_a_picture_whose_slide_is_gone_has_no_link(tmp_path):
    with vellox.deck(tmp_path / "linked.pptx") as deck:
        picture = ppt.Picture(EXAMPLES / "data/pump-curve.png")
        picture.Name, picture.Link = "Curve", "https://example.org"
        deck.add("Title Only").add(picture)
    with vellox.deck(tmp_path / "deck.pptx", tmp_path / "linked.pptx") as deck:
        [slide] = deck
        gone = deck.add("Title Only")
        slide["Curve"].leadTo(gone)
        deck.remove(gone)
    assert "emptyLinkTarget" in {finding.code for finding in deck.Findings}
    assert b"hlinkClick" not in read_parts(tmp_path / "deck.pptx")[b"ppt/slides/slide1.xml"]


def test_tables_of_numpy_and_pandas(tmp_path):
    path = tmp_path / "deck.pptx"
    numbers = np.round(np.linspace(0, 1, 15).reshape(3, 5).T[::2], 3)
    frame = pd.DataFrame({"run": ["a", "b"], "flow": [1.25, np.nan], "count": [3, 2**40]})
    with ppt.Presentation(path) as deck:
        for data in (numbers, frame):
            slide = deck.add("Title and Table")
            slide.replace("Table", ppt.Table(data))
    parts = {name: data.decode() for name, data in read_parts(path).items() if name.endswith(b".xml")}
    first, second = (get_rows(parts[f"ppt/slides/slide{number}.xml".encode()]) for number in (1, 2))
    assert [[float(text) for text in row] for row in first] == numbers.tolist()
    assert second[0] == ["run", "flow", "count"] and second[1] == ["a", "1.25", "3"]
    assert second[2][0] == "b" and float(second[2][2]) == 2**40


def test_decks_of_a_template_that_is_read_once(tmp_path):
    path = tmp_path / "corporate.potx"
    with ppt.Presentation(path) as deck:
        deck.add("Blank")
    corporate = ppt.Template(path)
    assert corporate.Path == str(path)
    path.unlink()
    made = []
    for compression in "normal", "normal", "small":
        with ppt.Presentation(tmp_path / "deck.pptx", corporate) as deck:
            deck.Compression = compression
            deck.add("Title and Content").replace("Title", compression)
        made.append((tmp_path / "deck.pptx").read_bytes())
    assert made[0] == made[1] != made[2]
    assert len(made[2]) < len(made[0])
    output = tmp_path / "office.pptx"
    output.write_text("last week's")
    with vellox.deck(output, corporate) as deck:
        assert deck.Profile == "office"
        deck.add("Title and Content").replace("Title", "this week's")
        assert output.read_text() == "last week's"
    assert b"this week&apos;s" in read_parts(output)[b"ppt/slides/slide2.xml"].replace(b"'", b"&apos;")


def test_charts_get_data(tmp_path):
    sys.path.insert(0, str(EXAMPLES.parent / "benchmarks"))
    from charts import add_charts
    sys.path.pop(0)
    plain, template, path = tmp_path / "plain.pptx", tmp_path / "template.pptx", tmp_path / "deck.pptx"
    with vellox.deck(plain) as deck:
        deck.add("Blank")
        deck.add("Blank")
        deck.add("Blank")
    add_charts(plain, template)
    frame = pd.DataFrame({"North": [1.5, np.nan], "South": [2, 3]}, index=["Spring", "Summer"])
    with vellox.deck(path, template) as deck:
        given = [(frame.index, frame), (frame.reset_index(),),
                 (["Spring", "Summer"], {"North": [1.5, None], "South": np.array([2, 3])})]
        for slide, data in zip(deck, given):
            assert slide.getChartNames() == ["Chart"]
            slide.chart("Chart").setData(*data)
        with pytest.raises(LookupError, match='no chart "Other"'):
            slide.chart("Other")
        with pytest.raises(ValueError, match="different lengths"):
            slide.chart("Chart").setData(["a"], {"A": [1], "B": [1, 2]})
        with pytest.raises(ValueError, match="is no number: much"):
            slide.chart("Chart").setData(["a"], {"A": ["much"]})
    with zipfile.ZipFile(path) as package:
        charts = [package.read(f"ppt/charts/chart{i}.xml").decode() for i in (1, 2, 3)]
    assert re.findall("<c:v>([^<]*)</c:v>", charts[0]) == ["North", "Spring", "Summer", "1.5",
                                                           "South", "Spring", "Summer", "2", "3"]
    assert charts[1] == charts[0] and charts[2] == charts[0]
def test_a_template_is_inspected_and_healed(tmp_path):
    template = tmp_path / "template.pptx"
    ppt.Presentation(template).open()
    report = vellox.inspect(template)
    content = report.masters[0].layouts[1].placeholders[1]
    assert content.kind == "ContentPlaceholder" and content.box.cx > 0 and report.as_dict()["slides"] == 0
    assert report.masters[0].colours["accent1"] and report.table_styles[0].name
    changes = vellox.heal(template, tmp_path / "healed.pptx")
    assert all(change.severity == "info" for change in changes) and vellox.heal(tmp_path / "healed.pptx", template) == []


def test_slides_are_filled_by_name_or_not_at_all(tmp_path):
    with vellox.deck(tmp_path / "filled.pptx") as deck:
        slide = deck.add("Title and Content", {"Title": "Week 47", "Content": ["a", ["b"]]})
        first = deck.add("Title and Table", {"Table": [["x", 1], ["y", 2.5]]}, index=1, drop_empty=True)
        before = deck.add("Title Only", before=slide)
        assert [len(deck), len(list(first))] == [3, 1]
        assert list(deck) == [first, before, slide]
        assert slide["Title"].Text == slide["type:title"].Text == "Week 47"
        with pytest.raises(ppt.UnknownNameError, match="Titel"):
            slide.fill({"Title": "lost", "Titel": "x"})
        with pytest.raises(ppt.BadTypeError):
            deck.add("Title Only", {"Title": ppt.Table([["a"]])})
        with pytest.raises(TypeError, match="'position'"):
            deck.add("Title Only", position=1)
        with pytest.raises(TypeError, match="keyword"):
            slide.replace("Title", text="x")
        assert [len(deck), slide["Title"].Text] == [3, "Week 47"]
        del slide, before, first
        for each in deck:
            deck.remove(each)
        assert len(deck) == 0 and deck


def test_tokens_take_what_python_has(tmp_path):
    sample = tmp_path / "sample.pptx"
    with vellox.deck(sample) as deck:
        slide = deck.add("Title and Table", {"Title": "{week} {flow.mean:.1f} {day:%d.%m.%Y} {{x}}"})
        slide.fill({"Table": [["Name", "Value"], ["{rows.name}", "{rows.value}"]]})
        deck.add("Title and Content", {"Title": "T", "Content": "{points}"})
    rows = [{"name": "a", "value": 1}, {"name": "b", "value": None}]
    with vellox.deck(tmp_path / "filled.pptx", sample) as deck:
        values = {"week": 47, "flow": {"mean": 2.04}, "day": datetime.date(2026, 11, 21), "rows": rows,
                  "points": ["a", ("b",), 3]}
        with pytest.raises(ppt.Error, match="unused"):
            deck.fillTokens(values | {"unused": 1}, strict=True)
        copy = deck.copy(list(deck)[0])
        assert deck.fillTokens(values, strict=True) == 15
        title = copy["Title"].Text
        table = copy["Table"]
        assert [table.entry(r, c).Text for r in (2, 3) for c in (1, 2)] == ["a", "1", "b", ""]
        table.entry(3, 2).Text = "none"
        copy.Notes, copy.Hidden = "Say it", True
        deck.move(copy, 1)
        deck.clear()
        assert [title, copy.Notes, copy.Hidden, len(deck)] == ["47 2.0 21.11.2026 {x}", "Say it", True, 1]


def test_lengths_are_made_of_numbers():
    box = ppt.TextBox()
    box.X, box.Y, box.Width, box.Height = ppt.cm(2), ppt.mm(2.5), ppt.inch(1), ppt.pt(12)
    assert [box.X, box.Y, box.Width, box.Height, ppt.emu(360000)] == ["2cm", "2.5mm", "1in", "12pt", "360000emu"]
