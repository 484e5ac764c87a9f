"""Decks in a second: one after the other in this process, and by vellox.batch in one process and in one for each
processor. A deck is what a record fills of a template of five slides.

    batches.py [decks]"""
import os
import sys
import tempfile
import time

import vellox
from vellox import ppt


def make_template():
    with vellox.deck("letter.pptx") as deck:
        for number in range(5):
            slide = deck.add("Title and Content")
            slide.replace("Title", f"{{name}}: part {number}")
            slide.replace("Content", ["Dear {name}", "of {city}", "this is no. {id}"])


def make_in_turn(records):
    template = ppt.Template("letter.pptx", "office")
    for record in records:
        with vellox.deck(f"{record['id']}.pptx", template) as deck:
            deck.fillTokens(record)


def make_batch(jobs):
    def make(records):
        results = vellox.batch("letter.pptx", records, "{id}.pptx", jobs=jobs, progress=False)
        assert not any(result.error for result in results)
    return make


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 2000
    records = [{"id": number, "name": f"Name {number}", "city": f"City {number}"} for number in range(count)]
    processors = len(os.sched_getaffinity(0))
    ways = {"one after the other": make_in_turn, "vellox.batch, 1 process": make_batch(1)}
    if processors > 1:
        ways[f"vellox.batch, {processors} processes"] = make_batch(processors)
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        make_template()
        for name, make in ways.items():
            started = time.perf_counter()
            make(records)
            print(f"    {name:26}{count / (time.perf_counter() - started):8.0f} decks/s")
        os.chdir("/")


if __name__ == "__main__":
    main()
