"""Tables and columns of other libraries, such as pandas, as rows and lists. The module vellox.ppt calls this.

Numbers and texts stay what they are. What only a whole column knows how to show, such as dates without an hour, becomes
the texts that pandas itself shows.
"""
from __future__ import annotations

from typing import Any, NamedTuple

_TIMES = ("m", "M")


Span = tuple[int, int, int, int]


class Grid(NamedTuple):
    """What a frame shows: a row for each level of the columns' names, then its rows."""

    rows: list[list[Any]]
    header: int  # rows of it
    spans: list[Span]  # labels that stand for several rows or columns: from one corner to the other, from 0
    labels: int  # columns of labels of rows


def read_frame(frame: Any) -> list[list[Any]]:
    """The rows of a frame. The labels of rows are shown if they have levels."""
    return read_grid(frame).rows


def is_frame(data: Any) -> bool:
    """Whether something is a table with named columns, whatever library it is of."""
    return hasattr(data, "columns") and hasattr(data, "to_numpy") or hasattr(data, "__dataframe__")


def read_grid(frame: Any, index: bool | None = None) -> Grid:
    """What a frame shows, with the labels of rows, without, or with them if they have levels."""
    if not (hasattr(frame, "columns") and hasattr(frame, "to_numpy")):
        frame = _exchange(frame)
    header = _read_levels(frame.columns)
    columns = _read_columns(frame, len(header[0]))
    labels: Any = getattr(frame, "index", None)
    corner: list[str] = []
    spans: list[Span] = []
    has_labels = getattr(labels, "nlevels", 1) > 1 if index is None else index and labels is not None
    if has_labels:
        corner = ["" if name is None else str(name) for name in labels.names]
        levels = _read_levels(labels)
        columns = _leave_out_repeats(levels) + columns
        spans = [(first + len(header), level, last + len(header), level) for level, first, last in _find_runs(levels)]
    spans += [(level, first + len(corner), level, last + len(corner)) for level, first, last in _find_runs(header)]
    rows = [[""] * len(corner) + level for level in _leave_out_repeats(header)]
    rows[-1][: len(corner)] = corner
    return Grid(rows + [list(row) for row in zip(*columns)] if columns else [], len(header), spans, len(corner))


def _exchange(frame: Any) -> Any:
    """Frames that only offer what the exchange protocol has are read by pandas."""
    try:
        from pandas.api.interchange import from_dataframe
    except ImportError as error:
        raise TypeError(f"pandas is needed to read a {type(frame).__name__}") from error
    return from_dataframe(frame)


def read_dictionary(columns: dict[Any, Any]) -> list[list[Any]]:
    """The names of columns, then their rows; columns of different lengths are an error."""
    lists = [_read_values(column) for column in columns.values()]
    if len({len(column) for column in lists}) > 1:
        raise ValueError(f"columns have different lengths: {[len(column) for column in lists]}")
    return [[str(name) for name in columns], *(list(row) for row in zip(*lists))] if lists else []


def _read_values(column: Any) -> list[Any]:
    if hasattr(column, "dtype"):
        return _to_list(read_column(column) if hasattr(column, "to_numpy") else column)
    return list(column)


def read_column(column: Any) -> Any:
    """The values of a series, an index or an array: a list, or an array of NumPy."""
    codes = getattr(getattr(column, "cat", column), "codes", None)
    if hasattr(column.dtype, "categories") and codes is not None:
        return _read_categories(column.dtype.categories, codes)
    if getattr(column.dtype, "kind", "") in _TIMES:
        return column.astype(str).tolist()
    return column.to_numpy() if hasattr(column, "to_numpy") else column


def _read_columns(frame: Any, count: int) -> list[list[Any]]:
    if hasattr(frame, "items"):
        columns = [_to_list(read_column(column)) for _, column in frame.items()]
    elif hasattr(frame, "get_columns"):
        columns = [_to_list(read_column(column)) for column in frame.get_columns()]
    else:
        array = frame.to_numpy()
        if len(array.shape) != 2:
            raise ValueError("to_numpy() gives no table")
        columns = [_to_list(array[:, i]) for i in range(array.shape[1])]
    if len(columns) != count:
        raise ValueError("a frame has other columns than it says")
    return columns


def _read_levels(labels: Any) -> list[list[Any]]:
    """The labels of columns or rows as texts, a list for each of their levels."""
    if not hasattr(labels, "to_numpy"):
        return [[str(label) for label in labels]]
    if getattr(labels, "nlevels", 1) == 1:
        levels = [labels]
    else:
        levels = [labels.get_level_values(i) for i in range(labels.nlevels)]
    return [["NaN" if label != label else str(label) for label in _to_list(read_column(level))] for level in levels]


def _leave_out_repeats(levels: list[list[Any]]) -> list[list[Any]]:
    """A label is shown once for all that stand under it; those of the last level always are."""
    shown = [list(level) for level in levels]
    for i in range(1, len(levels[0])):
        for level, texts in zip(levels[:-1], shown):
            if level[i] != level[i - 1]:
                break
            texts[i] = ""
    return shown


def _find_runs(levels: list[list[Any]]) -> list[tuple[int, int, int]]:
    """For each label that stands for several: its level, and the first and the last that it stands for."""
    runs = []
    for number in range(len(levels) - 1):
        keys = list(zip(*levels[: number + 1]))
        first = 0
        for i in range(1, len(keys) + 1):
            if i == len(keys) or keys[i] != keys[first]:
                if i - first > 1:
                    runs.append((number, first, i - 1))
                first = i
    return runs


def _read_categories(categories: Any, codes: Any) -> list[Any]:
    labels = _to_list(read_column(categories))
    missing = "NaT" if getattr(categories.dtype, "kind", "") in _TIMES else "NaN"
    return [labels[code] if code >= 0 else missing for code in codes]


def _to_list(values: Any) -> list[Any]:
    if not isinstance(values, list) and values.dtype.kind in _TIMES:
        return [str(value) for value in values]
    return list(values) if isinstance(values, list) else list(values.tolist())
