"""Many decks of one template, in several processes."""
from __future__ import annotations

import multiprocessing
import os
import signal
import string
import sys
from collections import deque
from collections.abc import Callable, Iterable, Mapping
from dataclasses import dataclass, field
from multiprocessing.connection import Connection, wait
from multiprocessing.reduction import ForkingPickler
from typing import TYPE_CHECKING, Any

from ._findings import Finding

if TYPE_CHECKING:
    from .ppt import Presentation

Record = Mapping[str, Any]
Make = Callable[["Presentation", Record], object]


@dataclass
class Result:
    """What came of one record: a deck, or an error."""

    record: Record
    output: str
    #: why there is no deck, in words; None if there is one
    error: str | None = None
    #: that error's identifier, such as "vellox:ppt_error:invalidLayoutName", if it has one
    identifier: str | None = None
    #: what was asked for and isn't in the deck, or is other than asked
    findings: list[Finding] = field(default_factory=list)


def batch(template: str | os.PathLike[str] | None, records: Iterable[Record], output: str | Callable[[Record], str],
          make: Make | None = None, *, jobs: int | None = None, strict: bool = False, progress: bool | None = None,
          told: Callable[[Result], object] | None = None) -> list[Result]:
    """Makes a deck of every record, several at a time, each in a process of its own that reads the template once.

        def make(deck, customer):
            deck.add("Title Slide").replace("Title", f"Dear {customer['name']}")

        results = vellox.batch("letter.potx", customers, "letter-{id}.pptx", make)

    Without a function the values of a record are put in the place of the template's tokens, as fillTokens does; those that no
    token asks for may be for the output's name alone. Records are mappings, or the rows of a data frame. Where to write a deck is a text with names of the record in braces,
    or a function of it. A deck that fails doesn't stop the others: its result has an error. told() hears of each
    result as it comes; what is returned has the order of the records. Progress is shown by tqdm where that is installed and
    somebody looks, unless it is said otherwise. Ctrl-C lets the decks end that have been begun: none is left half.

    The processes are forked, so that the function may be any, unless multiprocessing.set_start_method() says otherwise.

    Raises ValueError if two records have one output, or that of the template, if a value can't be part of a file's name, and
    for less than one job; TypeError for a function that can't go to processes that aren't forked.
    """
    if jobs is not None and jobs < 1:
        raise ValueError(f"there can't be {jobs} jobs")
    rows = _read_records(records)
    outputs = [os.fspath(output(row)) if callable(output) else _fill_in(os.fspath(output), row) for row in rows]
    source = None if template is None else os.fspath(template)
    _check_outputs(outputs, source)
    results: list[Result | None] = [None] * len(rows)
    with _Pool(min(jobs or len(os.sched_getaffinity(0)), len(rows)), (source, make, strict)) as pool, \
            _Progress(len(rows), progress) as bar:
        for number, result in pool.run(list(zip(rows, outputs))):
            results[number] = result
            bar.update()
            if told:
                told(result)
    return [result for result in results if result]


def _read_records(records: Any) -> list[Record]:
    if hasattr(records, "to_dict") and hasattr(records, "columns"):
        rows: list[Record] = records.to_dict("records")
        return rows
    return list(records)


def _check_outputs(outputs: list[str], template: str | None) -> None:
    """Compares files, however their paths are spelled."""
    own = None if template is None else _find_place(template)
    taken = set()
    for output in outputs:
        place = _find_place(output)
        if place in taken:
            raise ValueError(f"several records have the output {output!r}")
        if place == own:
            raise ValueError(f"the output {output!r} is the template")
        taken.add(place)


def _find_place(path: str) -> str:
    return os.path.abspath(path if os.path.splitext(path)[1] else path + ".pptx")


class _NameFormatter(string.Formatter):
    """Lets values be part of a name, and no way to elsewhere."""

    def get_field(self, field_name: str, args: Any, kwargs: Any) -> Any:
        self.field = field_name
        return super().get_field(field_name, args, kwargs)

    def format_field(self, value: Any, format_spec: str) -> Any:
        text = super().format_field(value, format_spec)
        if text in (".", "..") or any(c in text for c in "/\\\0"):
            raise ValueError(f"{self.field}: {text!r} can't be part of a file's name")
        return text


def _fill_in(output: str, record: Record) -> str:
    try:
        return _NameFormatter().vformat(output, (), record)
    except (AttributeError, LookupError, TypeError) as error:
        raise ValueError(f"{output}: a record has no such value: {error}") from error


class _Progress:
    """A bar of tqdm, or nothing."""

    def __init__(self, count: int, wanted: bool | None) -> None:
        self.bar: Any = None
        if wanted or (wanted is None and sys.stderr is not None and sys.stderr.isatty()):
            try:
                from tqdm import tqdm
            except ImportError:
                return
            # It has a thread otherwise, which stays, and what is forked beside threads may wait for ever.
            quiet: Any = type("Bar", (tqdm,), {"monitor_interval": 0})
            self.bar = quiet(total=count, unit="deck")

    def __enter__(self) -> _Progress:
        return self

    def __exit__(self, *_: object) -> None:
        if self.bar is not None:
            self.bar.close()

    def update(self) -> None:
        if self.bar is not None:
            self.bar.update()


# What a worker does

def make_deck(source: Any, make: Make | None, strict: bool, record: Record, output: str) -> Result:
    """Makes one deck of a ppt.Template that was read before, and tells what came of it. Nothing is raised."""
    from . import deck

    result = Result(record, output)
    try:
        with deck(output, source, strict=strict) as presentation:
            if make:
                make(presentation, record)
            else:
                presentation.fillTokens(dict(record))
        result.findings = [finding for finding in presentation.Findings if make or finding.code != "valueWithoutToken"]
    except Exception as error:  # the user's function may raise anything
        result.error = f"{type(error).__name__}: {error}"
        result.identifier = getattr(error, "identifier", None)
    return result


def _serve(connection: Connection, template: str | None, make: Make | None, strict: bool) -> None:
    signal.signal(signal.SIGINT, signal.SIG_IGN)  # the terminal tells all; whoever has begun ends its deck
    from . import ppt

    source: Any = None
    parent = os.getppid()
    while True:
        while not connection.poll(5):
            if os.getppid() != parent:  # others hold the far end, too, so that it doesn't tell
                return
        try:
            task = connection.recv()
        except EOFError:
            return
        except Exception as error:  # pickle calls what the record's classes have for it
            connection.send(Result({}, "", f"the record can't be read in another process: {error}"))
            continue
        if task is None:
            return
        record, output = task
        try:
            source = source or _read_template(ppt, template)
        except Exception as error:
            result = Result(record, output, f"{type(error).__name__}: {error}", getattr(error, "identifier", None))
        else:
            result = make_deck(source, make, strict, record, output)
        result.record = {}  # the other side has it
        connection.send(result)


def _read_template(ppt: Any, template: str | None) -> Any:
    return ppt.Template(template if template is not None else ppt.Template().Path, "office")


class _Worker:
    def __init__(self, context: Any, arguments: tuple[Any, ...]) -> None:
        self.connection, far = context.Pipe()
        self.process = context.Process(target=_serve, args=(far, *arguments), daemon=True)
        self.process.start()
        far.close()
        self.number: int | None = None
        self.is_new = True

    def end(self) -> None:
        try:
            self.connection.send(None)
        except OSError:
            pass  # it has died
        self.connection.close()
        self.process.join()


class _Pool:
    """Workers, and the decks that they are at."""

    def __init__(self, jobs: int, arguments: tuple[Any, ...]) -> None:
        self.jobs = jobs
        self.arguments = arguments
        method = multiprocessing.get_start_method(allow_none=True) or "fork"
        self.context = multiprocessing.get_context(method)
        if method != "fork":
            _check_pickles(arguments, method)
        self.workers: list[_Worker] = []

    def __enter__(self) -> _Pool:
        return self

    def __exit__(self, *_: object) -> None:
        for worker in self.workers:
            worker.end()

    def run(self, tasks: list[tuple[Record, str]]) -> Iterable[tuple[int, Result]]:
        """Number and result of each task, as they come."""
        waiting = deque(range(len(tasks)))
        for _ in range(self.jobs):
            yield from self._start(waiting, tasks)
        interruption: KeyboardInterrupt | None = None
        while busy := {worker.connection: worker for worker in self.workers if worker.number is not None}:
            try:
                ready = wait(list(busy))
            except KeyboardInterrupt as error:
                if interruption:
                    raise
                interruption = error
                waiting.clear()
                continue
            for connection in ready:
                worker = busy[connection]
                yield self._take(worker, tasks)
                yield from self._give(worker, waiting, tasks) if worker in self.workers else self._start(waiting, tasks)
        if interruption:
            raise interruption

    def _start(self, waiting: deque[int], tasks: list[tuple[Record, str]]) -> Iterable[tuple[int, Result]]:
        if waiting:
            self.workers.append(_Worker(self.context, self.arguments))
            yield from self._give(self.workers[-1], waiting, tasks)

    def _give(self, worker: _Worker, waiting: deque[int],
              tasks: list[tuple[Record, str]]) -> Iterable[tuple[int, Result]]:
        """Hands out the next record that can be sent. The results are those of records that can't."""
        while waiting:
            number = waiting.popleft()
            try:
                worker.connection.send(tasks[number])
            except OSError:
                if not worker.is_new:  # it has died after its last deck
                    waiting.appendleft(number)
                    self._end(worker)
                    yield from self._start(waiting, tasks)
                    return
            except Exception as error:  # pickle calls what the record's classes have for it
                yield number, Result(*tasks[number], f"the record can't be sent to another process: {error}")
                continue
            worker.number = number
            worker.is_new = False
            return

    def _take(self, worker: _Worker, tasks: list[tuple[Record, str]]) -> tuple[int, Result]:
        number = worker.number
        assert number is not None
        worker.number = None
        try:
            result: Result = worker.connection.recv()
        except (EOFError, ConnectionError):
            return number, self._bury(worker, tasks[number])
        result.record, result.output = tasks[number]
        return number, result

    def _end(self, worker: _Worker) -> None:
        self.workers.remove(worker)
        worker.end()

    def _bury(self, worker: _Worker, task: tuple[Record, str]) -> Result:
        self._end(worker)
        code = worker.process.exitcode
        reason = signal.strsignal(-code) if code is not None and code < 0 else f"status {code}"
        return Result(*task, f"its process has died: {reason}")


def _check_pickles(arguments: tuple[Any, ...], method: str) -> None:
    try:
        ForkingPickler.dumps(arguments)
    except Exception as error:
        raise TypeError(f"processes that are started by {method!r} take functions at the top of a module only: {error}"
                        ) from error
