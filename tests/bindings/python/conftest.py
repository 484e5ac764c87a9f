"""What the tests share: decks in a folder of their own, and what can be read back from them."""
import re
import zipfile

import pytest

import vellox.ppt as ppt


class Deck:
    """A deck that is made and read in one test."""

    def __init__(self, path):
        self.path = path
        self.deck = ppt.Presentation(path)
        self.deck.open()

    def texts(self):
        """Closes the deck. Gives the texts of each slide, one for each run."""
        self.deck.close()
        with zipfile.ZipFile(self.path) as package:
            slides = [name for name in package.namelist() if re.fullmatch(r"ppt/slides/slide\d+\.xml", name)]
            slides.sort(key=lambda name: int(re.search(r"\d+", name).group()))
            return [re.findall(r"<a:t>([^<]*)</a:t>", package.read(name).decode()) for name in slides]


@pytest.fixture
def deck(tmp_path):
    return Deck(tmp_path / "deck.pptx")


@pytest.fixture
def dispatcher():
    """The dispatcher, whose filter is as before when the test ends."""
    the = ppt.MessageDispatcher.getTheDispatcher()
    flags = [name for name in dir(ppt.MessageFilter) if name.endswith("MessagesPass")]
    former = {name: getattr(the.Filter, name) for name in flags}
    yield the
    for name, value in former.items():
        setattr(the.Filter, name, value)
