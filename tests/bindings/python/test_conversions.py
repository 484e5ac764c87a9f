"""Values of Python, NumPy and pandas on their way into the library, and back."""
import ctypes
import datetime
import decimal
import enum
import fractions
import io
import pathlib
import re
import struct
import uuid
import zipfile

import numpy as np
import pandas as pd
import pytest

import vellox
import vellox.ppt as ppt

PNG = b"\x89PNG\r\n\x1a\n" + struct.pack(">I4sII", 13, b"IHDR", 30, 20) + b"\x08\x02\0\0\0" + bytes(4) + bytes(4) + b"IDAT"


class Color(str, enum.Enum):
    RED = "red"


class Count(enum.IntEnum):
    TWO = 2


class Path:
    def __fspath__(self):
        return "from a path"


def show(value):
    """The texts of a box that takes a value, with the level of each paragraph."""
    box = ppt.TextBox()
    box.replace(value)
    return [(p.Level or 1, "".join(str(t.Content) for t in p.Children)) for p in box.Children]


def cells(value):
    table = ppt.Table(value)
    rows = len(table.Children)
    return [
        ["".join(str(t.Content) for p in table.entry(r, c).Children for t in p.Children)
         for c in range(1, table.NCols + 1)]
        for r in range(1, rows + 1)
    ]


def raises(identifier, function, *arguments):
    with pytest.raises(ppt.Error) as caught:
        function(*arguments)
    assert caught.value.identifier == identifier


@pytest.mark.parametrize(
    "value, content",
    [
        ("text", "text"),
        ("", ""),
        ("Grüße, 世界 🎈", "Grüße, 世界 🎈"),
        (np.str_("numpy"), "numpy"),
        (Color.RED, "red"),
        (Path(), "from a path"),
        (pathlib.PurePosixPath("a/b"), "a/b"),
        (True, 1.0),
        (np.True_, 1.0),
        (7, 7.0),
        (-3, -3.0),
        (2**31, 2.0**31),
        (2**64, "18446744073709551616"),
        (-(2**53) - 1, "-9007199254740993"),
        (Count.TWO, 2.0),
        (np.int8(-5), -5.0),
        (np.uint64(2**63 + 1), "9223372036854775809"),
        (0.25, 0.25),
        (np.float32(0.5), 0.5),
        (np.float16(1.5), 1.5),
        (np.longdouble(2.5), 2.5),
        (decimal.Decimal("1.25"), 1.25),
        (np.array(4.5), 4.5),
        (np.array([[6]], np.int16), 6.0),
        (np.array(3.5, ">f8"), 3.5),
        (np.array([[6]], ">i2"), 6.0),
        (np.datetime64("2026-03-01"), "2026-03-01"),
        (np.timedelta64(1, "D"), "1 days"),
        (datetime.timedelta(1), "1 day, 0:00:00"),
        (pd.Timedelta("1D"), "1 days 00:00:00"),
        (pd.NaT, "NaT"),
        (uuid.UUID(int=1), str(uuid.UUID(int=1))),
        (1 + 2j, "(1+2j)"),
    ],
)
def test_scalars_become_content(value, content):
    text = ppt.Text()
    text.Content = value
    assert text.Content == content and type(text.Content) is type(content)


@pytest.mark.parametrize("value", [[1, 2], object(), {}, b"bytes", range(2), np.array([1, 2]), ppt.Text()])
def test_other_values_are_no_content(value):
    raises("vellox:ppt_error:invalidPropertyValue", setattr, ppt.Text(), "Content", value)


@pytest.mark.parametrize("value, bold", [(True, True), (2, True), (0, False), (0.0, False), (np.bool_(1), True),
                                         (np.array([3, 0]), True), (np.ones((2, 2, 2)), True),
                                         (np.zeros((2, 2, 2)), False), (np.array([3, 0], ">i4"), True),
                                         (np.array(0.0, ">f8"), False), (2**64, True), (np.uint64(2**60), True),
                                         (None, None), ([], None)])
def test_logical_properties(value, bold):
    paragraph = ppt.Paragraph("x")
    paragraph.Bold = False
    paragraph.Bold = value
    assert paragraph.Bold is bold
    for refused in ("yes", [True], np.array([True, False])):
        raises("vellox:ppt_error:invalidLogicalPropertyValue", setattr, paragraph, "Bold", refused)


def test_optional_properties_are_emptied_by_none_and_del():
    shape = ppt.TextBox()
    assert shape.X is None
    shape.X = "2in"
    assert shape.X == "2in"
    del shape.X
    assert shape.X is None
    paragraph = ppt.Paragraph("x")
    for level in (np.uint8(3), np.array(3, ">i8")):
        paragraph.Level = level
        assert paragraph.Level == 3
    for refused in (10, 0, 1.5, "2", True):
        raises("vellox:ppt_error:invalidPropertyValue", setattr, paragraph, "Level", refused)
    paragraph.Level = None
    assert paragraph.Level is None
    with pytest.raises(TypeError, match="Shape.X takes str | None, not int"):
        shape.X = 3
    with pytest.raises(AttributeError):
        ppt.Table(2).NCols = 3


@pytest.mark.parametrize(
    "value, shown",
    [
        ("one", [(1, "one")]),
        (["a", ["b", ("c", 2)], 3.5], [(1, "a"), (2, "b"), (3, "c"), (3, "2.0"), (1, "3.5")]),
        ((True, None, 4), [(1, ""), (1, ""), (1, "4.0")]),
        (np.array([1, 2], np.int64), [(1, "1.0"), (1, "2.0")]),
        (np.arange(6.0)[::-2], [(1, "5.0"), (1, "3.0"), (1, "1.0")]),
        (np.array(["x", "y"]), [(1, "x"), (1, "y")]),
        (np.array([3, 4], ">i4"), [(1, "3.0"), (1, "4.0")]),
        (memoryview(np.array([2**40, 1])), [(1, str(2.0**40)), (1, "1.0")]),
        (np.array([2**60 + 1, 1]), [(1, str(2**60 + 1)), (1, "1.0")]),
        ([10**400], [(1, "1" + 400 * "0")]),
        ((ctypes.c_short * 2)(-1, 2), [(1, "-1.0"), (1, "2.0")]),
        (pd.Series([1.5, 2.5]), [(1, "1.5"), (1, "2.5")]),
        (np.array(["2026-03-01"], "M8[D]"), [(1, "2026-03-01")]),
        (["a", np.array(["b", "c"])], [(1, "a"), (2, "b"), (2, "c")]),
        ([datetime.date(2026, 3, 1), pd.Timestamp("2026-03-02")], [(1, "2026-03-01"), (1, "2026-03-02 00:00:00")]),
        (np.ma.array([1, 2, 3], mask=[0, 1, 0]), [(1, "1.0"), (1, ""), (1, "3.0")]),
        ([1.5, np.ma.masked], [(1, "1.5"), (1, "")]),
        (pd.Series(pd.to_datetime(["2026-03-01", None])), [(1, "2026-03-01"), (1, "NaT")]),
        (pd.Series(["a", None], dtype="category"), [(1, "a"), (1, "NaN")]),
        (pd.to_timedelta(["1D", "2D"]), [(1, "1 days"), (1, "2 days")]),
        ([], None),
        (None, None),
    ],
)
def test_lists_become_paragraphs(value, shown):
    if shown is None:
        raises("vellox:ppt_error:invalidReplaceArg", show, value)
        return
    assert show(value) == shown


def test_lists_that_hold_themselves_are_refused():
    endless = ["a"]
    endless.append(endless)
    array = np.empty(1, object)
    array[0] = array
    for value in (endless, array):
        with pytest.raises(ValueError, match="nested too deeply"):
            show(value)
    deep = ["bottom"]
    for _ in range(500):
        deep = [deep]
    assert show(deep) == [(501, "bottom")]


def test_texts_that_no_document_can_hold_are_refused(tmp_path):
    box = ppt.TextBox()
    for call in (lambda: box.add("a\ud800"), lambda: setattr(box, "Name", "\udce9"),
                 lambda: ppt.Presentation(str(tmp_path) + "/r\udce9port.pptx")):
        with pytest.raises(UnicodeEncodeError):
            call()


class Frame:
    def __init__(self, columns, array):
        self.columns, self.array = columns, array

    def to_numpy(self):
        return self.array


@pytest.mark.parametrize("frame", [Frame("abc", np.array("abc")), Frame("ab", np.zeros((2, 2, 2))),
                                   Frame("abc", np.zeros((2, 2)))])
def test_frames_that_arent_what_they_say(frame):
    with pytest.raises(ValueError):
        ppt.Table(frame)


class Plain:
    pass


class Worded:
    def __repr__(self):
        return "in words"


ITEMS = [
    (datetime.timedelta(1), "1 day, 0:00:00"),
    (datetime.datetime(2026, 3, 1, 12), "2026-03-01 12:00:00"),
    (np.datetime64("2026-03-01"), "2026-03-01"),
    (pd.Timedelta("1D"), "1 days 00:00:00"),
    (pd.NaT, "NaT"),
    (pd.NA, "<NA>"),
    (pd.Interval(0, 1), "(0, 1]"),
    (fractions.Fraction(1, 4), "0.25"),
    (Worded(), "in words"),
    (b"x", "b'x'"),
    (2**60 + 1, str(2**60 + 1)),
    (None, ""),
    (np.ma.masked, ""),
]


def hold_in_array(items):
    array = np.empty((len(items), 2), object)
    array[:, 0], array[:, 1] = items, "x"
    return array


@pytest.mark.parametrize(
    "hold",
    [
        lambda items: [[item, "x"] for item in items],
        hold_in_array,
        lambda items: pd.DataFrame({"a": pd.Series(items, dtype=object), "b": "x"}),
    ],
)
def test_values_are_alike_whatever_holds_them(hold):
    items, texts = zip(*ITEMS)
    assert [row[0] for row in cells(hold(items))[-len(items):]] == list(texts)
    assert [text for _, text in show(list(items))] == list(texts)
    assert cells([[Plain(), "x"], ["y", "z"]])[0][0] == "" and show([Plain()]) == [(1, "Plain [1x1]")]


def test_frames_show_what_pandas_shows():
    index = pd.MultiIndex.from_product([["a", "b"], [1, 2]], names=["outer", None])
    columns = pd.MultiIndex.from_tuples([("p", "x"), ("p", "y"), ("q", "y")])
    frame = pd.DataFrame(np.arange(12).reshape(4, 3), index, columns)
    assert cells(frame) == [
        ["", "", "p", "", "q"],
        ["outer", "", "x", "y", "y"],
        ["a", "1", "0.0", "1.0", "2.0"],
        ["", "2", "3.0", "4.0", "5.0"],
        ["b", "1", "6.0", "7.0", "8.0"],
        ["", "2", "9.0", "10.0", "11.0"],
    ]
    frame = pd.DataFrame({
        "day": pd.to_datetime(["2026-03-01", None]),
        "time": pd.to_datetime(["2026-03-01 10:00", "2026-03-02"]).tz_localize("UTC"),
        "took": pd.to_timedelta(["1D", "2h"]),
        "kind": pd.Categorical(["a", None]),
        "part": pd.cut([1, 3], [0, 2, 4]),
        "period": pd.period_range("2026-03", periods=2, freq="M"),
        "id": [2**60 + 1, 7],
        "share": [0.5, 1],
    })
    assert cells(frame)[1:] == [
        ["2026-03-01", "2026-03-01 10:00:00+00:00", "1 days 00:00:00", "a", "(0, 2]", "2026-03", str(2**60 + 1), "0.5"],
        ["NaT", "2026-03-02 00:00:00+00:00", "0 days 02:00:00", "NaN", "(2, 4]", "2026-04", "7.0", "1.0"],
    ]
    frame = pd.DataFrame([[1, 2]], columns=pd.to_datetime(["2026-03-01", "2026-04-01"]))
    assert cells(frame)[0] == ["2026-03-01", "2026-04-01"]


class Failing:
    def __array__(self):
        raise KeyError("no array today")


def test_what_values_raise_reaches_the_caller():
    with pytest.raises(KeyError, match="no array today"):
        show(Failing())
    with pytest.raises(KeyError, match="no array today"):
        cells([["a", "b"], ["c", Failing()]])
    with pytest.raises(OverflowError):
        ppt.Paragraph("x").Bold = 10**400


@pytest.mark.parametrize(
    "value, texts",
    [
        ([["a", 1], [2.5, None]], [["a", "1.0"], ["2.5", ""]]),
        ((("a",), ("b",)), [["a"], ["b"]]),
        (np.arange(6).reshape(2, 3), [["0.0", "1.0", "2.0"], ["3.0", "4.0", "5.0"]]),
        (np.arange(6.0).reshape(2, 3).T, [["0.0", "3.0"], ["1.0", "4.0"], ["2.0", "5.0"]]),
        (np.arange(24).reshape(4, 6)[::2, 1::3], [["1.0", "4.0"], ["13.0", "16.0"]]),
        (np.array([[True, False], [False, True]]), [["", ""], ["", ""]]),
        (np.array([["x", 1], [None, 2.5]], object), [["x", "1.0"], ["", "2.5"]]),
        (np.array([["x", "y"], ["z", "w"]]), [["x", "y"], ["z", "w"]]),
        (
            pd.DataFrame({"name": ["A", "B"], "value": [1, 2.5], "at": [datetime.date(2026, 3, 1), None]}),
            [["name", "value", "at"], ["A", "1.0", "2026-03-01"], ["B", "2.5", ""]],
        ),
        (pd.DataFrame({1: [True], 2: [pd.NA]}), [["1", "2"], ["", "<NA>"]]),
        (pd.DataFrame({"t": pd.to_datetime(["2026-03-01"])}), [["t"], ["2026-03-01"]]),
    ],
)
def test_tables(value, texts):
    assert cells(value) == texts


@pytest.mark.parametrize("value", [[], [["a", "b"]], [["a", "b"], ["c"]], [1, 2], None, np.zeros((2, 2, 2)),
                                   np.zeros((0, 3)), pd.DataFrame(), "text", [[], []]])
def test_what_is_no_table(value):
    raises("vellox:ppt_error:invalidConstructorArg", ppt.Table, value)


def test_lists_of_objects():
    table = ppt.Table([["a", "b"], ["c", "d"]])
    columns = [ppt.ColSpec("1in"), ppt.ColSpec()]
    table.ColSpecs = columns
    assert all(mine is theirs for mine, theirs in zip(columns, table.ColSpecs))
    table.ColSpecs = columns[1]
    assert table.ColSpecs == columns[1:]
    for refused, name in (([columns[0], ppt.Bold()], "vellox.ppt.Bold"), (["1in"], "1in"), ("2in", "2in"), ([None], "")):
        with pytest.raises(ppt.BadValueError) as caught:
            table.ColSpecs = refused
        assert caught.value.arguments == (name,)
    paragraph = ppt.Paragraph("x")
    bold = ppt.Bold(True)
    paragraph.Style = (bold, "no format", ppt.FontColor("red"))
    assert bold in paragraph.Style and len(paragraph.Style) == 2 and paragraph.FontColor == "red"
    raises("vellox:ppt_error:invalidFormatStyle", setattr, paragraph, "Style", "bold")
    paragraph.Style = None
    assert paragraph.Style == []


def test_overloads_take_numbers_as_they_want_them():
    assert ppt.Table(3).NCols == ppt.Table(3.0).NCols == ppt.Table(np.uint16(3)).NCols == 3
    assert ppt.Paragraph(2.5, 2).Level == ppt.Paragraph("x", np.float64(2)).Level == 2
    assert ppt.Paragraph(3).Children[0].Content == 3.0
    assert ppt.Paragraph(2**60 + 1).Children[0].Content == str(2**60 + 1)
    for arguments in [("x", 1.5), ("x", -1), (["x"],), ("x", 1, 2), ("a",) * 9, ("x", 2**60)]:
        with pytest.raises(TypeError, match=r"Paragraph\(text: str, level: int\)") as caught:
            ppt.Paragraph(*arguments)
        assert repr(arguments)[1:-1].rstrip(",") in str(caught.value)


class Figure:
    def savefig(self, stream, format):
        stream.write({"png": PNG}[format])


class Image:
    def save(self, stream, format):
        stream.write({"PNG": PNG}[format])


class Shown:
    def _repr_png_(self):
        return PNG


@pytest.mark.parametrize("source", [PNG, bytearray(PNG), memoryview(PNG), io.BytesIO(PNG), Figure(), Image(), Shown()])
def test_images_come_from_what_holds_or_makes_them(source):
    picture = ppt.Picture(source)
    assert (picture.Width, picture.Height) == ("30px", "20px")


def test_what_is_no_image_is_refused():
    with pytest.raises(ppt.BadValueError) as caught:
        ppt.Picture(b"<html/>")
    assert caught.value.identifier == "vellox:ppt_error:unknownImageBytes"
    with pytest.raises(TypeError, match="an image is bytes, not str"):
        ppt.Picture(io.StringIO("text"))
    with pytest.raises(TypeError):
        ppt.Picture(3.5)


class Exchanged:
    """A frame of a library that only offers the protocol."""

    def __init__(self, frame):
        self.frame = frame

    def __dataframe__(self, nan_as_null=False, allow_copy=True):
        return self.frame.__dataframe__(nan_as_null, allow_copy)


def test_frames_become_tables_with_labels_and_merged_headers(tmp_path):
    columns = pd.MultiIndex.from_tuples([("p", "x"), ("p", "y"), ("q", "y")])
    index = pd.MultiIndex.from_product([["a", "b"], [1, 2]], names=["outer", "inner"])
    frame = pd.DataFrame(np.arange(12).reshape(4, 3), index, columns)
    table = vellox.table(frame)
    assert table.HeaderRows == 2 and table.entry(1, 3).HAlign == "center" and table.NCols == 5
    with vellox.deck(tmp_path / "deck.pptx") as deck:
        slide = deck.add("Title and Table", {"Title": "x", "Table": table})
    with zipfile.ZipFile(tmp_path / "deck.pptx") as package:
        xml = package.read("ppt/slides/slide1.xml").decode()
    assert xml.count('gridSpan="2"') == 1 and xml.count('rowSpan="2"') == 2
    assert not deck.Findings and slide["Table"].entry(2, 1).Text == "outer"
    assert vellox.table(frame, index=False).NCols == 3
    plain = pd.DataFrame({"n": [1, 2]}, ["r", "s"])
    shown = vellox.table(plain, index=True)
    assert [[entry.Text for entry in row.Children] for row in shown.Children] == [["", "n"], ["r", "1"], ["s", "2"]] \
        or shown.entry(2, 1).Text == "r"
    years = vellox.table(pd.DataFrame({"n": [1, 2]}, ["007", 2026]), index=True)
    years.NumberFormat = ".1f"
    with vellox.deck(tmp_path / "labels.pptx") as deck:
        deck.add("Title and Table", {"Title": "x", "Table": years})
    with zipfile.ZipFile(tmp_path / "labels.pptx") as package:
        xml = package.read("ppt/slides/slide1.xml").decode()
    assert re.findall("<a:t>([^<]*)", xml)[-5:-1] == ["007", "1.0", "2026", "2.0"], "labels are what they are"
    assert vellox.table(pd.DataFrame({"n": []})).NCols in (0, 1)
    assert cells(Exchanged(plain)) == cells(plain)
    assert vellox.table(Exchanged(plain)).NCols == 1
    assert vellox.table([[1, 2], [3, 4]]).NCols == 2
