"""Lengths of numbers, for where a length is wanted: shape.Width = ppt.cm(2)."""
from __future__ import annotations

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import SupportsFloat

__all__ = ["cm", "emu", "inch", "mm", "pt"]


def cm(number: SupportsFloat, /) -> str:
    """So many centimetres."""
    return _measure(number, "cm")


def mm(number: SupportsFloat, /) -> str:
    """So many millimetres."""
    return _measure(number, "mm")


def inch(number: SupportsFloat, /) -> str:
    """So many inches."""
    return _measure(number, "in")


def pt(number: SupportsFloat, /) -> str:
    """So many points, of which an inch has 72."""
    return _measure(number, "pt")


def emu(number: SupportsFloat, /) -> str:
    """So many of the units that files count in: 914400 to the inch, 360000 to the centimetre."""
    return _measure(number, "emu")


def _measure(number: SupportsFloat, unit: str) -> str:
    return f"{float(number):.6f}".rstrip("0").rstrip(".") + unit
