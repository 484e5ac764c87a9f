"""PowerPoint decks by program. The classes are in vellox.ppt; begin with deck()."""
from __future__ import annotations

import os
from typing import TYPE_CHECKING

if TYPE_CHECKING:
    from .ppt import Presentation

__all__ = ["deck"]


def deck(output: str | os.PathLike[str], template: str | os.PathLike[str] | None = None, *,
         profile: str = "office") -> Presentation:
    """A presentation that is written to output when the with statement ends.

        with vellox.deck("report.pptx", "company.potx") as deck:
            slide = deck.add("Title and Content")

    Without a template it is made on the default one. The profile says by which rules slides are made of the
    template: "office" as the office programs do, "classic" as vellox.ppt.Presentation does by itself.
    """
    from . import ppt

    paths = [os.fspath(path) for path in (output, template) if path is not None]
    presentation = ppt.Presentation(*paths)
    presentation.Profile = profile
    return presentation
