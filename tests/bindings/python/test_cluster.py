"""examples/batch_dask.py, as somebody runs it, on a cluster of this machine."""
import os
import pathlib
import re
import subprocess
import sys
import zipfile

import pytest

import vellox

distributed = pytest.importorskip("distributed")

EXAMPLES = pathlib.Path(__file__).resolve().parents[3] / "examples"
sys.path.insert(0, str(EXAMPLES))


@pytest.fixture
def folder(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    with vellox.deck("letter.pptx") as deck:
        deck.add("Title Slide").replace("Title", "Dear {name}")
    return tmp_path


def test_decks_of_rows(folder):
    names = ["Ada", "Bob", "Cleo", "Dora"]
    pathlib.Path("rows.csv").write_text("id,name\n" + "".join(f"{i},{name}\n" for i, name in enumerate(names)))
    command = [sys.executable, str(EXAMPLES / "batch_dask.py"), "letter.pptx", "rows.csv"]
    run = subprocess.run([*command, "letter-{id}.pptx", "--jobs", "2"], text=True, capture_output=True, timeout=300)
    assert run.returncode == 0, run.stderr
    assert run.stdout.splitlines()[-1] == "4 made, 0 failed"
    for i, name in enumerate(names):
        assert vellox.check(f"letter-{i}.pptx") == []
        assert f"Dear {name}" in text_of(f"letter-{i}.pptx")
    assert not list(folder.glob(".*"))


def text_of(deck):
    with zipfile.ZipFile(deck) as package:
        return " ".join(re.findall(r"<a:t>([^<]*)</a:t>", package.read("ppt/slides/slide1.xml").decode()))


def test_failures_and_templates(folder):
    import batch_dask

    with distributed.LocalCluster(n_workers=1, threads_per_worker=1, dashboard_address=None) as cluster, \
            distributed.Client(cluster) as client:
        records = [{"id": str(number)} for number in range(3)]
        gaps = list(batch_dask.batch(client, "letter.pptx", records, "{id}.pptx"))
        assert {finding.code for result in gaps for finding in result.findings} == {"tokenWithoutValue"}
        assert sorted(result.output for result in gaps) == ["0.pptx", "1.pptx", "2.pptx"]
        # Read once by the worker, in a process that isn't this one.
        kept = client.run(lambda dask_worker: (os.getpid(), len(dask_worker.vellox_template[0])))
        [(pid, size)] = kept.values()
        assert (pid != os.getpid(), size) == (True, pathlib.Path("letter.pptx").stat().st_size)
        pathlib.Path("none.potx").write_bytes(b"no package")
        [bad] = batch_dask.batch(client, "none.potx", records[:1], "bad-{id}.pptx")
        assert bad.error and bad.record == records[0] and not pathlib.Path("bad-0.pptx").exists()
        with pytest.raises(ValueError, match="one output"):
            list(batch_dask.batch(client, "letter.pptx", records, "deck.pptx"))


def test_workers_have_one_thread(folder):
    import batch_dask

    with distributed.LocalCluster(n_workers=1, threads_per_worker=2, processes=False, dashboard_address=None) as cluster, \
            distributed.Client(cluster) as client, pytest.raises(ValueError, match="--nthreads 1"):
        list(batch_dask.batch(client, "letter.pptx", [{"id": "1"}], "{id}.pptx"))
