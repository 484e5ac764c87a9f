"""Errors of the library as errors of Python."""
import pathlib
import re
import shutil

import numpy as np
import pytest

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
