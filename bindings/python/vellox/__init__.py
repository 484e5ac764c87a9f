"""PowerPoint decks by program. The classes are in vellox.ppt; begin with deck()."""
from __future__ import annotations

import os
from typing import TYPE_CHECKING

from ._findings import Finding, read_findings

if TYPE_CHECKING:
    from .ppt import Presentation

__all__ = ["Finding", "check", "deck"]


def deck(output: str | os.PathLike[str], template: str | os.PathLike[str] | None = None, *,
         profile: str = "office", strict: bool = False) -> Presentation:
    """A presentation that is written to output when the with statement ends.

        with vellox.deck("report.pptx", "company.potx") as deck:
            slide = deck.add("Title and Content")

    Without a template it is made on the default one. The profile says by which rules slides are made of the
    template: "office" as the office programs do, "classic" as vellox.ppt.Presentation does by itself. A strict one
    raises the first thing that was asked for and isn't in the deck; else deck.Findings tells it.
    """
    from . import ppt

    paths = [os.fspath(path) for path in (output, template) if path is not None]
    presentation = ppt.Presentation(*paths)
    presentation.Profile = profile
    presentation.Strict = strict
    return presentation


def check(path: str | os.PathLike[str]) -> list[Finding]:
    """What a strict reader would want to repair in a presentation or template, and what else is amiss there.

    Nothing is changed, and nothing raised for a bad file: one without a finding of severity "error" is sound.
    """
    from . import ppt

    return read_findings(ppt.Template.checkPackage(os.fspath(path)))
