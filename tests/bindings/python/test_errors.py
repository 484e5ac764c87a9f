"""Errors of the library as errors of Python."""
import errno
import os
import pathlib
import pickle
import re
import shutil
import tempfile

import numpy as np
import pytest

import vellox
import vellox.ppt as ppt


@pytest.mark.parametrize(
    "call, identifier, builtin, arguments",
    [
        (lambda deck, _: deck.add("Nope"), "ppt_error:invalidLayoutName", LookupError, ("Nope",)),
        (lambda deck, _: deck.add("Blank", "Nope"), "ppt_error:invalidLayoutOrSlideMasterName", LookupError,
         ("Blank", "Nope")),
        (lambda *_: setattr(ppt.TextBox(), "X", "3 parsecs"), "dom_error:invalidDimensionUnits", ValueError, None),
        (lambda *_: ppt.FontColor("no colour"), "ppt_error:invalidPropertyValue", ValueError, ("no colour",)),
        (lambda *_: ppt.Paragraph("x").__setattr__("Bold", "x"), "ppt_error:invalidLogicalPropertyValue", TypeError,
         ()),
        (lambda *_: ppt.Picture().replace(ppt.Picture()), "ppt_error:pictureCannotBeReplaced", RuntimeError, ()),
        (lambda *_: ppt.TextBox().add(np.zeros((2, 2, 2))), "ppt_error:invalidAddArg", TypeError, None),
        (lambda _, path: ppt.Presentation(path / "none" / "x.pptx"), "ppt_error:pathNotFound", FileNotFoundError,
         None),
        (lambda _, path: ppt.Presentation(path / "x.pptx", path / "none.pptx").open(),
         "ppt_error:cannotOpenTemplate", OSError, None),
    ],
)
def test_errors_carry_what_the_library_says(tmp_path, call, identifier, builtin, arguments):
    deck = ppt.Presentation(tmp_path / "deck.pptx")
    with pytest.raises(ppt.Error) as caught:
        call(deck, tmp_path)
    error = caught.value
    assert error.identifier == "vellox:" + identifier and isinstance(error, builtin)
    if arguments is not None:
        assert error.arguments == arguments
    assert len(str(error)) > 10 and all(argument in str(error) for argument in error.arguments)


def test_errors_of_files_are_pythons_own(tmp_path):
    (tmp_path / "folder.pptx").mkdir()
    (tmp_path / "file").write_text("no deck")
    output = tmp_path / "deck.pptx"
    for template, builtin, ours, number in (
        ("none.pptx", FileNotFoundError, ppt.PathNotFoundError, errno.ENOENT),
        ("folder.pptx", IsADirectoryError, ppt.IsFolderError, errno.EISDIR),
        ("file/x.pptx", NotADirectoryError, ppt.NoFolderError, errno.ENOTDIR),
    ):
        with pytest.raises(builtin) as caught:
            ppt.Presentation(output, tmp_path / template).open()
        error = caught.value
        assert type(error) is ours and isinstance(error, ppt.FileError) and error.identifier.startswith("vellox:")
        assert error.errno == number and str(tmp_path) in error.filename and "Errno" not in str(error)
        again = pickle.loads(pickle.dumps(error))
        assert type(again) is ours and (again.errno, again.identifier, str(again)) == (
            number, error.identifier, str(error))
    (tmp_path / "damaged.pptx").write_text("no deck")
    with pytest.raises(ppt.Error) as caught:
        ppt.Presentation(output, tmp_path / "damaged.pptx").open()
    assert not isinstance(caught.value, FileNotFoundError)
    deck = ppt.Presentation(output)
    deck.open()
    output.unlink()
    with pytest.raises(FileNotFoundError) as caught:
        deck.close()
    assert caught.value.filename == str(output)


def test_what_may_not_be_read_is_a_permission_error():
    user = os.geteuid()
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        template = pathlib.Path(folder) / "secret.pptx"
        template.touch(mode=0)
        if user == 0:
            os.seteuid(65534)  # root may read all
        try:
            with pytest.raises(PermissionError) as caught:
                ppt.Presentation(f"{folder}/deck.pptx", template).open()
        finally:
            os.seteuid(user)
    assert caught.value.errno == errno.EACCES and isinstance(caught.value, ppt.PermissionDeniedError)


def test_refusals_name_the_value():
    for call, words in (
        (lambda: setattr(ppt.Paragraph("x"), "Bold", "no"), "Paragraph.Bold was given 'no'"),
        (lambda: setattr(ppt.Paragraph("x"), "Style", "bold"), "Element.Style was given 'bold'"),
        (lambda: setattr(ppt.Paragraph("x"), "Level", True), "TRUE"),
        (lambda: ppt.Table([["a"], ["b", "c"]]), "Table was given [['a'], ['b', 'c']]"),
        (lambda: ppt.TextBox().replace({}), "TextBox.replace was given {}"),
        (lambda: setattr(ppt.TextBox(), "X", 3), "int 3"),
    ):
        with pytest.raises((TypeError, ValueError)) as caught:
            call()
        assert words in str(caught.value)


def test_every_identifier_has_a_fitting_type():
    """An identifier that the table doesn't know would be a plain Error."""
    top = pathlib.Path(__file__).parents[3]
    identifiers = set()
    for name in ("dom_error", "ppt_error"):
        catalog = next(top.glob(f"resources/messages/**/*{name}.po")).read_text()
        identifiers |= set(re.findall(r'^msgid "(\w+)"', catalog, re.MULTILINE))
    table = (top / "bindings/python/PyErrors.cpp").read_text()
    assert identifiers and identifiers == set(re.findall(r'\{"(\w+)", Kind::', table))


def test_with_closes_only_on_success(tmp_path):
    path = tmp_path / "decks" / "deck.pptx"
    path.parent.mkdir()
    with pytest.raises(KeyError):
        with ppt.Presentation(path) as deck:
            deck.add("Blank")
            raise KeyError
    assert deck.close()
    with ppt.Presentation(path) as deck:
        deck.add("Blank")
        deck.close()
    assert not deck.close()
    with ppt.Presentation(tmp_path / "decks" / "bare.pptx") as deck:
        pass
    assert (tmp_path / "decks" / "bare.pptx").exists()
    with pytest.raises(ppt.FileError):
        with ppt.Presentation(path) as deck:
            deck.add("Blank")
            shutil.rmtree(path.parent)
    assert list(tmp_path.iterdir()) == []


def test_errors_of_names_have_the_nearest_as_a_note(tmp_path):
    for make in (ppt.Presentation, vellox.deck):
        with pytest.raises(ppt.UnknownNameError) as caught:
            make(tmp_path / "deck.pptx").add("Blnak")
        assert caught.value.__notes__ == ['The nearest names are "Blank".'] and "nearest" not in str(caught.value)


def test_findings(tmp_path):
    with vellox.deck(tmp_path / "deck.pptx") as deck:
        slide = deck.add("Title Only")
        slide.add("Titel", "x")
    wrong, empty = deck.Findings
    assert (wrong.severity, wrong.code, wrong.slide, wrong.shape) == ("error", "unknownName", 1, None)
    assert wrong.as_dict()["text"] == wrong.text and str(wrong) == "slide 1: " + wrong.text
    assert (empty.code, str(empty)) == ("emptyPlaceholder", 'slide 1, "Title": the placeholder was left empty')
    strict = vellox.deck(tmp_path / "strict.pptx", strict=True)
    with pytest.raises(ppt.BadValueError, match="slide 1: nothing bears") as caught:
        strict.add("Blank").add("Nobody", "x")
    assert caught.value.arguments[1] == "unknownName" and strict.Findings == []
    assert [finding for finding in vellox.check(tmp_path / "deck.pptx") if finding.severity == "error"] == []
    assert vellox.check(tmp_path / "none.pptx")[0].code == "cannotOpen"
