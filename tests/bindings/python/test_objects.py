"""Identity and life of objects, and what they refuse."""
import copy
import gc
import pickle
import subprocess
import sys
import warnings
import weakref

import pytest

import vellox.ppt as ppt


def test_one_python_object_for_each_object(deck):
    slide = deck.deck.add("Title and Content")
    title = slide.find("Title")[0]
    assert slide.Children[0] is title and title.Parent is slide and slide.Parent is deck.deck
    assert deck.deck.Children[0] is slide
    box = ppt.TextBox()
    paragraph = box.add("text")
    assert slide.add(box) is box and box.Parent is slide and slide.Children[-1] is box
    assert paragraph.Parent is box and box.Children[0] is paragraph
    assert paragraph.Children[0].Parent is paragraph
    copied = title.replace(paragraph)
    assert copied is not paragraph and copied.Parent is title
    names = {type(child).__name__ for child in slide.Children}
    assert names == {"TextBoxPlaceholder", "ContentPlaceholder", "TextBox"}
    picture_side = deck.deck.add("Title and Table").find("Table")[0]
    table = picture_side.replace(ppt.Table([["a", "b"], ["c", "d"]]))
    assert type(table) is ppt.Table and table.Parent is deck.deck.Children[1]
    first, second = deck.texts()
    assert first.count("text") == 2 and {"a", "b", "c", "d"} <= set(second)


def test_an_object_that_is_being_dropped_isnt_given_out_again():
    box, seen = ppt.TextBox(), []

    class Note(ppt.Paragraph):
        pass

    class AtEnd:
        def __del__(self):
            seen.append(box.Children[0])

    paragraph = box.add("one")
    watch = weakref.ref(paragraph, lambda _: seen.append(box.Children[0]))
    del paragraph
    box.replace(Note("two"))
    note = Note("three")
    box.replace(note)
    note.end = AtEnd()
    del note
    assert watch() is None and [type(each) for each in seen] == [ppt.Paragraph] * 2
    assert seen[1] is box.Children[0] and seen[1].Children[0].Content == "three"


def test_an_object_that_is_made_again_in_a_call_on_it():
    class Number:
        def __index__(self):
            box.__init__()
            return 1

    class Array:
        def __array__(self):
            box.__init__()
            raise KeyError

    box = ppt.TextBox()
    box.Bold = Number()
    with pytest.raises(KeyError):
        box.add(Array())
    assert box.Children == []


def test_a_dropped_object_lives_on_in_the_tree():
    box = ppt.TextBox()
    box.add("one").Tag = "mark"
    gc.collect()
    assert box.Children[0].Tag == "mark"
    seen = weakref.ref(box.Children[0])
    assert seen() is None
    kept = box.Children[0]
    assert weakref.ref(kept)() is box.Children[0]
    del box
    assert kept.Parent is None and kept.Tag == "mark" and kept.Children[0].Content == "one"


def test_nodes_stand_in_one_place():
    paragraph, entry = ppt.Paragraph("x"), ppt.TableEntry()
    entry.append(paragraph)
    with pytest.raises(ppt.BadValueError) as caught:
        ppt.TableEntry().append(paragraph)
    assert caught.value.identifier == "vellox:ppt_error:failedToAppendChild"


class Note(ppt.TextBox):
    """A user's class."""

    def __init__(self, text, *, size="12pt"):
        super().__init__()
        self.text = text
        self.add(text).FontSize = size

    def add(self, text):
        return super().add("Note: " + text)


def test_users_derive_classes(deck):
    slide = deck.deck.add("Blank")
    note = Note("read me", size="9pt")
    note.Width, note.Height = "3in", "1in"
    assert slide.add(note) is note and slide.Children[0].text == "read me"
    assert note.Children[0].FontSize == "9pt" and "Note" in repr(note)
    assert "Note: read me" in deck.texts()[0]
    cycle = Note("cycle")
    cycle.itself = cycle
    seen = weakref.ref(cycle)
    del cycle
    gc.collect()
    assert seen() is None


def test_an_object_that_isnt_made_is_refused():
    class Lazy(ppt.TextBox):
        def __init__(self):
            pass

    for use in (lambda o: o.X, lambda o: o.add("x"), lambda o: setattr(o, "X", "1in")):
        with pytest.raises(RuntimeError, match="isn't made yet"):
            use(Lazy())
    for use in (lambda: ppt.Presentation().add("Blank", Lazy()), lambda: ppt.Paragraph(ppt.Text.__new__(ppt.Text))):
        with pytest.raises(TypeError):
            use()
    assert repr(Lazy()).endswith("Lazy>")
    empty = ppt.Null.DefaultObjectArrayElement()
    assert type(empty) is ppt.Null and type(ppt.Null()) is ppt.Null
    box = ppt.TextBox()
    box.add("first")
    box.__init__()  # makes it once more
    assert box.Children == []


def test_classes_that_the_library_alone_makes_objects_of():
    for name in ("Object", "Node", "Element", "Format", "Color", "Message", "Slide", "BodyPlaceholder",
                 "ContentPlaceholder", "MessageDispatcher"):
        with pytest.raises(TypeError, match="the library alone"):
            getattr(ppt, name)()


def test_a_class_that_claims_too_much_is_refused():
    class Both(ppt.TextBox, ppt.Table):
        pass

    both = Both()
    for use in (lambda: ppt.Table.NCols.__get__(both), lambda: both.row(1), lambda: ppt.Table.row(both, 1),
                lambda: ppt.Table.row(ppt.TextBox(), 1), lambda: ppt.Table.row(3, 1), lambda: ppt.Table.row()):
        with pytest.raises(TypeError):
            use()


def test_objects_are_no_bags():
    box = ppt.TextBox()
    with pytest.raises(AttributeError):
        box.Widht = "2in"
    assert not hasattr(box, "__dict__")
    assert {"Width", "BackgroundColor", "add", "Children", "Tag"} <= set(dir(box))
    with pytest.raises(TypeError):
        pickle.dumps(box)
    for call in (lambda: ppt.TextBox(x=1), lambda: box.add(text="x")):
        with pytest.raises(TypeError, match="no keyword arguments"):
            call()


@pytest.mark.parametrize("duplicate", [copy.copy, copy.deepcopy])
def test_copies(duplicate, deck):
    note = Note("one")
    note.Width, note.Tag, note.itself, note.data = "2in", "mark", note, [1]
    twin = duplicate(note)
    is_deep = duplicate is copy.deepcopy
    assert type(twin) is Note and twin.Width == "2in" and twin.Tag != "mark" and twin.Id != note.Id
    assert (twin.itself is twin) == is_deep == (twin.data is not note.data) and twin.text == "one"
    twin.Children[0].Children[0].Content = "two"
    assert note.Children[0].Children[0].Content == "Note: one"
    slide = deck.deck.add("Blank")
    slide.add(note)
    slide.add(twin)
    for made in (ppt.Bold(True), ppt.FontColor("red"), ppt.FontColor(), ppt.Underline("wavy"), ppt.ColWidth("1in"),
                 ppt.FontFamily("Arial", "David"), ppt.HAlign("left"), ppt.FontSize(), ppt.BaseDimension("3pt")):
        twin = duplicate(made)
        assert twin is not made and type(twin) is type(made)
        assert all(getattr(twin, name) == getattr(made, name)
                   for name in ("Value", "Style", "Font", "ComplexScriptFont") if hasattr(made, name))
    assert duplicate(slide.Children[0]).Parent is None and duplicate(ppt.ColSpec("1in")).Width == "1in"
    for refused in (deck.deck, ppt.MessageFilter(), ppt.MessageDispatcher.getTheDispatcher()):
        with pytest.raises(TypeError, match="can't be copied"):
            duplicate(refused)


def test_conveniences_are_inherited(tmp_path):
    class Report(ppt.Presentation):
        def close(self):
            self.add("Blank")
            return super().close()

    with Report(tmp_path / "report.pptx") as deck:
        assert type(deck) is Report and not deck.Children
    assert len(deck.Children) == 1 and (tmp_path / "report.pptx").exists()
    # Also by a class whose objects have methods of their own beside the table's.
    assert ppt.MessageDispatcher.__copy__ is ppt.Object.__copy__ and ppt.MessageDispatcher.addListener


def test_an_open_deck_that_is_dropped_is_warned_of(tmp_path):
    def leave_open():
        deck = ppt.Presentation(tmp_path / "lost.pptx")
        deck.add("Blank")
        return deck.Children[0]

    with pytest.warns(ResourceWarning, match="lost.pptx.* wasn't closed"):
        leave_open()
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        ppt.Presentation(tmp_path / "never opened.pptx")
        with ppt.Presentation(tmp_path / "closed.pptx") as deck:
            deck.add("Blank")
        with pytest.raises(KeyError):
            with ppt.Presentation(tmp_path / "error.pptx") as deck:
                deck.add("Blank")
                raise KeyError
        del deck


def test_reprs_tell_objects_apart():
    box = ppt.TextBox()
    assert repr(box).startswith("<vellox.ppt.TextBox, tag ")
    box.Name = "Remark"
    box.add("Not in the annual means, which are of all runs")
    assert repr(box) == "<vellox.ppt.TextBox 'Remark': 'Not in the annual means, which are of a…'>"
    assert repr(ppt.Paragraph(3)) == "<vellox.ppt.Paragraph: '3'>"
    assert repr(ppt.Table([["a", "b"], ["c", "d"]])) == "<vellox.ppt.Table: 'a b c d'>"
    assert repr(ppt.Bold(False)) == "<vellox.ppt.Bold False>" and repr(ppt.FontColor("red")).endswith("'red'>")
    assert "deck.pptx" in repr(ppt.Presentation("deck.pptx"))


def test_nothing_crashes_after_close(deck):
    presentation = deck.deck
    slide = presentation.add("Title and Content")
    title, content = slide.Children
    assert presentation.close() and not presentation.close()
    slide.replace("Title", "late")
    content.add("late")
    title.X = "1in"
    slide.add(ppt.TextBox())
    for use in (lambda: presentation.add("Blank"), presentation.open, lambda: presentation.find("Title")):
        try:
            use()
        except ppt.Error:
            pass
    del presentation, deck
    assert slide.Name == "" and title.Parent is slide
    content.replace(ppt.Table([["a", "b"], ["c", "d"]]))
    with pytest.raises(ppt.StateError):
        content.add("too late")


def test_subscripts_count_from_one(deck):
    table = ppt.Table([["a", "b"], ["c", "d"]])
    assert table.entry(1, 2).Children[0].Children[0].Content == "b" and len(table.row(2).Children) == 2
    first, second = deck.deck.add("Blank"), deck.deck.add("Blank")
    assert deck.deck.add("Blank", 1) is deck.deck.Children[0] and deck.deck.Children[1:] == [first, second]
    for call, identifier, arguments in (
        (lambda: table.row(0), "positiveSubscript", ()),
        (lambda: table.row(3), "badRowSubscript", ("3", "2")),
        (lambda: table.entry(1, 3), "badColSubscript", ("3", "2")),
        (lambda: table.entry(1, 0), "positiveSubscript", ()),
        (lambda: deck.deck.add("Blank", 9), "badSlideSubscript", ("9", "3")),
    ):
        with pytest.raises(IndexError) as caught:
            call()
        assert caught.value.identifier == "vellox:ppt_error:" + identifier
        assert caught.value.arguments == arguments
        assert all(argument in str(caught.value) for argument in arguments)


EXIT = """
import sys
import vellox.ppt as ppt
deck = ppt.Presentation(sys.argv[1])
box = ppt.TextBox()
deck.add("Blank").add(box)
heard = []
dispatcher = ppt.MessageDispatcher.getTheDispatcher()
dispatcher.Filter.DebugMessagesPass = True
dispatcher.Filter.SourceFilter = box
dispatcher.addListener(lambda event: heard.append(event.Message.Source))
if sys.argv[2] == "drop":
    del dispatcher
sys.kept = [deck, box, heard]
"""


@pytest.mark.parametrize("mode", ["keep", "drop"])
def test_the_interpreter_ends_cleanly(tmp_path, mode):
    script = [sys.executable, "-X", "dev", "-W", "error", "-c", EXIT, str(tmp_path / "deck.pptx"), mode]
    ended = subprocess.run(script, capture_output=True, text=True, check=False)
    assert (ended.returncode, ended.stdout, ended.stderr) == (0, "", "")


def test_other_interpreters_are_refused():
    script = """
try:
    import _xxsubinterpreters as interpreters
except ImportError:
    import _interpreters as interpreters
other = interpreters.create()
interpreters.run_string(other, '''
try:
    import vellox.ppt
except ImportError as refused:
    assert "main interpreter" in str(refused)
else:
    raise SystemError
''')
interpreters.destroy(other)
"""
    subprocess.run([sys.executable, "-c", script], check=True)
