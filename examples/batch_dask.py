#!/usr/bin/env python3
"""A deck for every row of a table, on a cluster of Dask: on this machine unless the address of a scheduler is given.

    batch_dask.py TEMPLATE ROWS.csv OUTPUT [--scheduler ADDRESS] [--jobs N]

The values of a row are put in the place of the template's tokens, such as {name}, and of those in OUTPUT, such as
letter-{id}.pptx. Template and decks travel with the tasks: nothing but vellox and Dask has to be on the other machines.
"""
import argparse
import csv
import os
import pathlib
import sys
import tempfile

import distributed
import vellox
from vellox import ppt


def make_deck(template, record):
    """On a worker: what came of a record, and the bytes of its deck. No error leaves it, so that none ends the batch."""
    result = vellox.Result(record, "")
    try:
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, "deck.pptx")
            with vellox.deck(path, read_template(template)) as deck:
                deck.fillTokens(record)
            result.findings = [finding for finding in deck.Findings if finding.code != "valueWithoutToken"]
            return result, path.read_bytes()
    except Exception as error:
        result.error = f"{type(error).__name__}: {error}"
        result.identifier = getattr(error, "identifier", None)
        return result, None


def read_template(content):
    """Read once by each worker, which keeps it for the tasks to come."""
    worker = distributed.get_worker()
    kept, template = getattr(worker, "vellox_template", (None, None))
    if kept != content:
        with tempfile.NamedTemporaryFile(suffix=".potx") as file:
            file.write(content)
            file.flush()
            template = ppt.Template(file.name, "office")
        worker.vellox_template = (content, template)
    return template


def batch(client, template, records, output):
    """Makes the decks on the workers of a client, writes them here, and gives each result as it comes."""
    outputs = [output.format_map(record) for record in records]
    if len(set(outputs)) < len(outputs):
        raise ValueError(f"several records have one output: {output}")
    if any(info["nthreads"] != 1 for info in client.scheduler_info()["workers"].values()):
        raise ValueError("vellox is used from one thread: start the workers with --nthreads 1")
    [content] = client.scatter([pathlib.Path(template).read_bytes()], broadcast=True)
    tasks = [client.submit(make_deck, content, record, pure=False) for record in records]
    numbers = {task.key: number for number, task in enumerate(tasks)}
    waiting = distributed.as_completed(tasks)
    tasks.clear()  # nobody keeps a deck any more once it is written
    for task in waiting:
        number = numbers[task.key]
        if task.status == "finished":
            result, deck = task.result()
        else:  # such as a worker that dies of it again and again
            result, deck = vellox.Result(records[number], "", f"its task has failed: {task.exception()!r}"), None
        result.output = outputs[number]
        if deck is not None:
            write_whole(pathlib.Path(result.output), deck)
        yield result


def write_whole(path, content):
    """A deck is there whole or not at all, whenever this ends."""
    part = path.with_name(f".{path.name}.{os.getpid()}")
    part.write_bytes(content)
    part.replace(path)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("template")
    parser.add_argument("rows")
    parser.add_argument("output")
    parser.add_argument("--scheduler", help="its address, such as tcp://host:8786; a cluster on this machine unless given")
    parser.add_argument("--jobs", type=int, default=len(os.sched_getaffinity(0)), help="workers on this machine")
    options = parser.parse_args()
    with open(options.rows, newline="", encoding="utf-8-sig") as file:
        records = list(csv.DictReader(file))
    here = {"n_workers": options.jobs, "threads_per_worker": 1, "dashboard_address": None}
    failed = 0
    with distributed.Client(options.scheduler, **({} if options.scheduler else here)) as client:
        for result in batch(client, options.template, records, options.output):
            failed += result.error is not None
            print(f"{result.output}: {result.error or 'made'}")
            for finding in result.findings:
                print(f"    {finding}")
    print(f"{len(records) - failed} made, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
