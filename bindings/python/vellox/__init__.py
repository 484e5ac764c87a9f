"""PowerPoint decks by program. The classes are in vellox.ppt; begin with deck()."""
from __future__ import annotations

import os

TYPE_CHECKING = False  # as checkers read it, and without the module typing, which takes as long as a deck
if TYPE_CHECKING:
    from typing import Any

    from ._batch import Record, Result, batch
    from ._doctor import TemplateReport
    from ._findings import Finding
    from ._tables import table
    from .ppt import Presentation, Template

__all__ = ["Finding", "Record", "Result", "TemplateReport", "batch", "check", "deck", "heal", "inspect",
           "table"]

# What few programs need is imported when it is asked for: most decks are made sooner than all of it is read.
_HOMES = {"Record": "_batch", "Result": "_batch", "batch": "_batch", "TemplateReport": "_doctor", "Finding": "_findings",
          "table": "_tables"}


def __getattr__(name: str) -> Any:
    if name not in _HOMES:
        raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
    from importlib import import_module

    return getattr(import_module("." + _HOMES[name], __name__), name)


def deck(output: str | os.PathLike[str], template: str | os.PathLike[str] | Template | None = None, *,
         profile: str = "office", strict: bool = False) -> Presentation:
    """A presentation that is written to output when the with statement ends.

        with vellox.deck("report.pptx", "company.potx") as deck:
            slide = deck.add("Title and Content")

    Without a template it is made on the default one. For many decks on one, ppt.Template(path, "office") reads it
    once. The profile says by which rules slides are made of the template: "office" as the office programs do,
    "classic" as vellox.ppt.Presentation does by itself. A strict deck raises the first thing that was asked for and
    isn't in it; else deck.Findings tells it.
    """
    from . import ppt

    source = template if template is None or isinstance(template, ppt.Template) else os.fspath(template)
    presentation = ppt.Presentation(os.fspath(output), *([] if source is None else [source]))
    presentation.Profile = profile
    presentation.Strict = strict
    return presentation


def check(path: str | os.PathLike[str]) -> list[Finding]:
    """What a strict reader would want to repair in a presentation or template, and what else is amiss there.

    Nothing is changed, and nothing raised for a bad file: one without a finding of severity "error" is sound.
    """
    from . import ppt
    from ._findings import read_findings

    return read_findings(ppt.Template.checkPackage(os.fspath(path)))


def inspect(path: str | os.PathLike[str]) -> TemplateReport:
    """Masters, layouts and placeholders of a template, and what of it stands in the way of programs.

    Nothing is changed, and no slide made.
    """
    from . import ppt
    from ._doctor import read_report

    return read_report(ppt.Template.inspectTemplate(os.fspath(path)))


def heal(path: str | os.PathLike[str], output: str | os.PathLike[str]) -> list[Finding]:
    """Writes a copy of a template with names that speak, and with all else mended that can be without another look.

    What was changed is returned. The output may be the template itself: it is replaced once the copy is complete.
    """
    from . import ppt
    from ._findings import read_findings

    return read_findings(ppt.Template.healTemplate(os.fspath(path), os.fspath(output)))
