"""What is in decks and templates, and a deck for every row of a table, where the command vellox isn't installed:

    python3 -m vellox inspect corporate.potx
"""
from __future__ import annotations

import argparse
import csv
import json
import os
import sys
from collections.abc import Iterable

import vellox
from vellox import ppt
from vellox._doctor import Placeholder

EMU_A_CM = 360000


def main(arguments: list[str] | None = None) -> int:
    options = _make_parser().parse_args(arguments)
    try:
        status = options.run(options)
        sys.stdout.flush()
        return int(status)
    except BrokenPipeError:  # whoever reads has seen enough; nothing is left to be flushed at exit
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
        return 2
    except (OSError, ValueError, csv.Error, ppt.Error) as error:
        print(f"vellox: {error}", file=sys.stderr)
        return 2


def _make_parser() -> argparse.ArgumentParser:
    parser = argparse.ArgumentParser(prog="python3 -m vellox", description="PowerPoint decks by program",
                                     epilog="The status is 1 if a deck has errors or couldn't be made, and 2 if nothing came "
                                            "of it.")
    parser.add_argument("--version", action="version", version=f"vellox {ppt.__version__}")
    verbs = parser.add_subparsers(required=True, metavar="VERB")

    inspect = verbs.add_parser("inspect", help="layouts and placeholders of a template")
    inspect.add_argument("template")
    inspect.add_argument("--json", action="store_true", help="all that is known")
    inspect.set_defaults(run=_inspect)

    check = verbs.add_parser("check", help="what a strict reader would want to repair in decks")
    check.add_argument("deck", nargs="+")
    check.add_argument("--json", action="store_true")
    check.set_defaults(run=_check)

    heal = verbs.add_parser("heal", help="a copy of a template with names that speak and places for all")
    heal.add_argument("template")
    heal.add_argument("output")
    heal.set_defaults(run=_heal)

    batch = verbs.add_parser("batch", help="a deck for every row of a table, by the template's tokens")
    batch.add_argument("template")
    batch.add_argument("rows", help="a CSV file, whose first row has the names of the tokens")
    batch.add_argument("output", help="such as letter-{id}.pptx")
    batch.add_argument("--jobs", type=int, help="how many processes; as many as processors unless told")
    batch.add_argument("--strict", action="store_true", help="no deck in which something isn't as asked")
    batch.set_defaults(run=_batch)
    return parser


def _inspect(options: argparse.Namespace) -> int:
    report = vellox.inspect(options.template)
    if options.json:
        print(json.dumps(report.as_dict(), indent=2))
        return 0
    for master in report.masters:
        print("Master", _on_one_line(master.handle))
        for number, layout in enumerate(master.layouts, 1):
            print(f"  {number}. {_on_one_line(layout.handle)}")
            for placeholder in layout.placeholders:
                if placeholder.handle:
                    print(f"       {_on_one_line(placeholder.handle)}: {placeholder.kind}, {_describe_box(placeholder)}")
    return 0


def _check(options: argparse.Namespace) -> int:
    found = {deck: vellox.check(deck) for deck in options.deck}
    if options.json:
        rows = {deck: [finding.as_dict() for finding in findings] for deck, findings in found.items()}
        print(json.dumps(rows, indent=2))
    else:
        for deck, findings in found.items():
            _print_findings(deck, (finding for finding in findings if finding.severity != "info"))
    return int(any(finding.severity == "error" for findings in found.values() for finding in findings))


def _heal(options: argparse.Namespace) -> int:
    _print_findings(options.template, vellox.heal(options.template, options.output))
    return 0


def _batch(options: argparse.Namespace) -> int:
    records = _read_rows(options.rows)
    results = vellox.batch(options.template, records, options.output, jobs=options.jobs, strict=options.strict)
    for result in results:
        if result.error:
            print(f"{result.output}: {result.error}", file=sys.stderr)
        else:
            _print_findings(result.output, result.findings)
    return int(any(result.error for result in results))


def _read_rows(path: str) -> list[dict[str, str]]:
    with open(path, newline="", encoding="utf-8-sig") as file:
        rows = csv.reader(file)
        names: list[str] = next(rows, [])
        if len(set(names)) < len(names):
            raise ValueError(f"{path}: two columns have one name")
        records = []
        for row in rows:
            if row and len(row) != len(names):
                raise ValueError(f"{path}:{rows.line_num}: the row has {len(row)} cells, and there are {len(names)} columns")
            if row:
                records.append(dict(zip(names, row)))
        return records


def _print_findings(path: str, findings: Iterable[vellox.Finding]) -> None:
    for finding in findings:
        print(f"{path}: {finding.severity}: {_on_one_line(str(finding))} ({finding.code})")


def _describe_box(placeholder: Placeholder) -> str:
    box = placeholder.box
    if box is None:
        return "without a place"
    x, y, width, height = (f"{emu / EMU_A_CM:.1f}" for emu in (box.x, box.y, box.cx, box.cy))
    return f"{width} x {height} cm at {x}, {y}"


def _on_one_line(text: str) -> str:
    return "".join(sign if sign.isprintable() else sign.encode("unicode_escape").decode() for sign in text)


if __name__ == "__main__":
    sys.exit(main())
