"""Many decks in several processes."""
import multiprocessing
import os
import pathlib
import signal
import subprocess
import sys
import time

import pytest

import vellox

RECORDS = [{"id": number, "name": f"Name {number}"} for number in range(8)]


def make(deck, record):
    if record["name"] == "bad":
        deck.add("No such layout")
    if record["name"] == "dead":
        os.kill(os.getpid(), signal.SIGKILL)
    deck.add("Title Slide").replace("Title", f"Dear {record['name']}")


@pytest.fixture(autouse=True)
def folder(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    return tmp_path


def test_every_record_has_a_deck(folder):
    told = []
    results = vellox.batch(None, RECORDS, "deck-{id}.pptx", make, jobs=3, told=told.append)
    assert [result.record for result in results] == RECORDS
    assert sorted(result.output for result in told) == sorted(path.name for path in folder.iterdir())
    for result in results:
        assert (result.error, vellox.check(result.output)) == (None, [])
    assert vellox.batch(None, [], "deck.pptx", make) == []


def test_failures_cost_one_deck(folder):
    records = [dict(record) for record in RECORDS]
    records[2]["name"], records[5]["name"] = "bad", "dead"
    results = vellox.batch(None, records, "deck-{id}.pptx", make, jobs=2)
    assert [number for number, result in enumerate(results) if result.error] == [2, 5]
    assert results[2].identifier == "vellox:ppt_error:invalidLayoutName"
    assert results[5].error == "its process has died: Killed"
    assert len(list(folder.glob("*.pptx"))) == 6
    [result] = vellox.batch("none.potx", RECORDS[:1], "x.pptx", make)
    assert "none.potx" in result.error
    [result] = vellox.batch(None, RECORDS[:1], "x.pptx", lambda deck, _: deck.add("Title Slide").replace("Titel", "x"))
    assert [finding.code for finding in result.findings if finding.severity == "error"] == ["unknownName"]


def test_records_that_cannot_travel_cost_one_deck(folder):
    class Local:
        pass

    records = [{"id": 1, "name": "a"}, {"id": 2, "name": Local()}, {"id": 3, "name": lambda: 0}, {"id": 4, "name": "b"}]
    results = vellox.batch(None, records, "{id}.pptx", make, jobs=1)
    assert [bool(result.error) for result in results] == [False, True, True, False]
    assert "can't be sent" in results[1].error and [result.output for result in results][1] == "2.pptx"


def test_a_second_batch_runs_like_the_first(folder):
    pathlib.Path("tqdm.py").write_text(  # of which a bar leaves a thread behind
        "import threading\n"
        "class tqdm:\n"
        "    monitor_interval = 10\n"
        "    def __init__(self, **_):\n"
        "        if self.monitor_interval:\n"
        "            threading.Thread(target=threading.Event().wait, daemon=True).start()\n"
        "    def update(self): pass\n"
        "    def close(self): pass\n")
    pathlib.Path("twice.py").write_text(
        "import threading, vellox\n"
        "print('run')\n"
        "threading.Thread(target=threading.Event().wait, daemon=True).start()\n"
        "for name in 'ab':\n"
        "    [result] = vellox.batch(None, [{'id': 1}], name + '{id}.pptx', lambda deck, _: deck.add('Blank'), progress=True)\n"
        "    assert result.error is None, result.error\n"
        "assert threading.active_count() == 2\n")
    done = subprocess.run([sys.executable, "-W", "ignore", "twice.py"], capture_output=True, text=True, timeout=120)
    assert (done.stdout, done.returncode) == ("run\n", 0), done.stderr
    with pytest.raises(TypeError, match="top of a module"):
        multiprocessing.set_start_method("spawn", force=True)
        try:
            vellox.batch(None, RECORDS, "{id}.pptx", lambda deck, _: None)
        finally:
            multiprocessing.set_start_method(None, force=True)


def test_records_fill_tokens_by_themselves(folder):
    with vellox.deck("letter.pptx") as deck:
        deck.add("Title Slide").replace("Title", "Dear {name}, {city}")
    records = [{"id": 1, "name": "Ada", "city": "Turin"}, {"id": 2, "name": "Bob"}]
    whole, gap = vellox.batch("letter.pptx", records, "{id}.pptx")
    assert (whole.error, whole.findings) == (None, [])
    assert [finding.code for finding in gap.findings] == ["tokenWithoutValue"]
    whole, gap = vellox.batch("letter.pptx", records, "strict-{id}.pptx", strict=True)
    assert whole.error is None and "{city}" in gap.error
    assert sorted(path.name for path in folder.glob("*.pptx")) == ["1.pptx", "2.pptx", "letter.pptx", "strict-1.pptx"]


def test_outputs_are_names_of_their_own(folder):
    for jobs in 0, -1:
        with pytest.raises(ValueError, match="jobs"):
            vellox.batch(None, RECORDS, "{id}.pptx", make, jobs=jobs)
    for output, records in (("{id}/x.pptx", [{"id": ".."}]), ("{id}", [{"id": "1"}, {"id": "1.pptx"}]),
                            (lambda record: record["id"], [{"id": "1.pptx"}, {"id": "./1.pptx"}])):
        with pytest.raises(ValueError):
            vellox.batch(None, [dict(record, name="a") for record in records], output, make)
    with pytest.raises(ValueError, match="is the template"):
        vellox.batch("letter.pptx", RECORDS[:1], "letter.pptx", make)
    [result] = vellox.batch(None, [{"i": "a/b", "id": 3, "name": "x"}], "of-{id:02}.pptx", make)
    assert (result.output, result.error) == ("of-03.pptx", None)
    with pytest.raises(ValueError, match="several records"):
        vellox.batch(None, RECORDS, "deck.pptx", make)
    with pytest.raises(ValueError, match="can't be part"):
        vellox.batch(None, [{"id": "../x"}], "{id}.pptx", make)
    pandas = pytest.importorskip("pandas")
    results = vellox.batch(None, pandas.DataFrame(RECORDS), lambda record: f"{record['name']}.pptx", make)
    assert results[3].output == "Name 3.pptx"


def test_ctrl_c_leaves_whole_decks(folder):
    pathlib.Path("many.py").write_text(
        "import vellox\n"
        "def make(deck, record):\n    deck.add('Title Slide').replace('Title', str(record))\n"
        "vellox.batch(None, [{'id': i} for i in range(5000)], '{id}.pptx', make, jobs=2)\n")
    process = subprocess.Popen([sys.executable, "many.py"], stderr=subprocess.PIPE, text=True, start_new_session=True)
    while process.poll() is None and not list(folder.glob("*.pptx")):
        time.sleep(0.01)
    os.killpg(process.pid, signal.SIGINT)
    _, errors = process.communicate(timeout=60)
    decks = list(folder.glob("*.pptx"))
    assert "KeyboardInterrupt" in errors and 0 < len(decks) < 5000
    assert all(vellox.check(deck) == [] for deck in decks)
    assert sorted(folder.iterdir()) == sorted([*decks, folder / "many.py"])
