"""What an inspection tells of a template, as objects."""
from __future__ import annotations

import dataclasses
import json
from typing import Any

from ._findings import Finding


@dataclasses.dataclass(frozen=True, slots=True)
class Box:
    """A place and a size in EMU."""

    x: int
    y: int
    cx: int
    cy: int


@dataclasses.dataclass(frozen=True, slots=True)
class Placeholder:
    """A placeholder of a layout. Dates, footers and numbers, which can't be filled by name, have no handle and no kind."""

    name: str  # as the file has it
    handle: str  # by which the profile "office" finds it
    kind: str  # its class, such as "ContentPlaceholder"
    type: str  # with index: as the file has it
    index: str
    box: Box | None
    is_box_inherited: bool  # from the master
    is_filled_in_classic: bool  # whether the profile "classic" finds it, too


@dataclasses.dataclass(frozen=True, slots=True)
class Layout:
    name: str
    handle: str
    type: str
    part: str
    shows_master_shapes: bool
    has_background: bool
    placeholders: list[Placeholder]


@dataclasses.dataclass(frozen=True, slots=True)
class Master:
    name: str
    handle: str
    part: str
    heading_font: str
    body_font: str
    colours: dict[str, str]
    layouts: list[Layout]


@dataclasses.dataclass(frozen=True, slots=True)
class TableStyle:
    name: str
    id: str


@dataclasses.dataclass(frozen=True, slots=True)
class Font:
    name: str
    is_installed: bool | None  # None where nobody can tell


@dataclasses.dataclass(frozen=True, slots=True)
class TemplateReport:
    """A template. Lengths are in EMU."""

    path: str
    slide_width: int
    slide_height: int
    masters: list[Master]
    table_styles: list[TableStyle]
    fonts: list[Font]
    slides: int  # how many it brings along
    findings: list[Finding]

    def as_dict(self) -> dict[str, Any]:
        """Names and values, as for JSON."""
        return dataclasses.asdict(self)


def read_report(text: str) -> TemplateReport:
    """From the JSON of the library."""
    fields = json.loads(text)
    fields["masters"] = [_read_master(master) for master in fields["masters"]]
    fields["table_styles"] = [TableStyle(**style) for style in fields["table_styles"]]
    fields["fonts"] = [Font(**font) for font in fields["fonts"]]
    fields["findings"] = [_read_finding(finding) for finding in fields["findings"]]
    return TemplateReport(**fields)


def _read_master(fields: dict[str, Any]) -> Master:
    layouts = [_read_layout(layout) for layout in fields.pop("layouts")]
    return Master(layouts=layouts, colours=dict(fields.pop("colours")), **fields)


def _read_layout(fields: dict[str, Any]) -> Layout:
    placeholders = [_read_placeholder(placeholder) for placeholder in fields.pop("placeholders")]
    return Layout(placeholders=placeholders, **fields)


def _read_placeholder(fields: dict[str, Any]) -> Placeholder:
    box = fields.pop("box")
    return Placeholder(box=Box(**box) if box else None, **fields)


def _read_finding(fields: dict[str, Any]) -> Finding:
    return Finding(fields["severity"], fields["code"], fields["text"], fields["slide"] or None, fields["shape"] or None,
                   fields["part"] or None)
