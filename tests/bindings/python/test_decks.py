"""Whole decks: the same from Python as from C++, and from what numbers are kept in."""
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


def get_rows(xml):
    return [re.findall("<a:t>([^<]*)</a:t>", row) for row in re.findall("<a:tr .*?</a:tr>", xml, re.DOTALL)]


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
        for slide, data in zip(deck.Children, given):
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
