"""Tables of data frames, with their labels as people set them."""
from __future__ import annotations

from typing import Any

from . import ppt
from ._frames import is_frame, read_grid


def table(data: Any, *, index: bool | None = None, merge: bool = True) -> ppt.Table:
    """A table of a data frame, or of anything else that ppt.Table takes.

        slide.fill({"Table": vellox.table(frame, index=True)})

    The labels of rows are shown with index=True, and hidden with False; without either they are shown if they have
    levels. Labels of columns and rows that stand for several are one merged cell, unless merge is false. Labels of rows
    don't take part in the forms of numbers of the table: their ColSpecs have the form "none". A frame is of pandas, of polars, or of any library whose frames have __dataframe__, which pandas reads.
    """
    if not is_frame(data):
        return ppt.Table(data)
    grid = read_grid(data, index)
    made = _make_table(grid.rows)
    made.HeaderRows = grid.header
    made.ColSpecs = [_label_column() for _ in range(grid.labels)]
    if merge:
        for first_row, first_column, last_row, last_column in grid.spans:
            made.merge(first_row + 1, first_column + 1, last_row + 1, last_column + 1)
            if last_column > first_column:
                made.entry(first_row + 1, first_column + 1).HAlign = "center"
    return made


def _label_column() -> ppt.ColSpec:
    column = ppt.ColSpec()
    column.NumberFormat = "none"
    return column


def _make_table(rows: list[list[Any]]) -> ppt.Table:
    if len(rows) > 1:
        return ppt.Table(rows)
    made = ppt.Table()
    for cells in rows:
        row = ppt.TableRow()
        for cell in cells:
            row.append(ppt.TableEntry(str(cell)))
        made.append(row)
    return made
