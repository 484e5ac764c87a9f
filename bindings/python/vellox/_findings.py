"""What isn't as it was asked for, or as it should be, as objects."""
from __future__ import annotations

import dataclasses
from collections.abc import Iterable, Sequence
from typing import Any, Literal, cast


@dataclasses.dataclass(frozen=True, slots=True)
class Finding:
    """One finding. What it isn't about is None."""

    severity: Literal["error", "warning", "info"]
    code: str  # for programs: "unknownName"
    text: str  # for people, without a full stop
    slide: int | None = None  # its number, counted from 1
    shape: str | None = None  # its name
    part: str | None = None  # of the package: "/ppt/slides/slide1.xml"

    def as_dict(self) -> dict[str, Any]:
        """Names and values, as for JSON."""
        return dataclasses.asdict(self)

    def __str__(self) -> str:
        places = [self.part, f"slide {self.slide}" if self.slide else None, f'"{self.shape}"' if self.shape else None]
        return ", ".join(place for place in places if place) + (": " if any(places) else "") + self.text


def read_findings(rows: Iterable[Sequence[str]]) -> list[Finding]:
    """From rows of severity, code, part, number of the slide, shape and text."""
    return [Finding(cast(Any, severity), code, text, int(slide) or None, shape or None, part or None)
            for severity, code, part, slide, shape, text in rows]
