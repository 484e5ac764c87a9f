"""python -m vellox, as a person would use it."""
import json
import subprocess
import sys

import pytest

import vellox


@pytest.fixture(autouse=True)
def folder(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    with vellox.deck("letter.pptx") as deck:
        deck.add("Title Slide").replace("Title", "Dear {name}")
    return tmp_path


def run(*arguments):
    done = subprocess.run([sys.executable, "-m", "vellox", *arguments], capture_output=True, text=True)
    assert "Traceback" not in done.stderr
    return done.returncode, done.stdout, done.stderr


def test_templates_and_decks_are_looked_into(folder):
    assert run("--version") == (0, f"vellox {vellox.ppt.__version__}\n", "")
    status, words, _ = run("inspect", "letter.pptx")
    assert status == 0 and "\n  1. Title Slide\n       Title: TextBoxPlaceholder, " in words
    assert json.loads(run("inspect", "letter.pptx", "--json")[1]) == vellox.inspect("letter.pptx").as_dict()
    assert run("check", "letter.pptx") == (0, "", "")
    (folder / "broken.pptx").write_bytes((folder / "letter.pptx").read_bytes()[:500])
    status, words, _ = run("check", "letter.pptx", "broken.pptx")
    assert status == 1 and words.startswith("broken.pptx: error: ") and words.count("\n") == 1
    assert list(json.loads(run("check", "letter.pptx", "--json")[1])) == ["letter.pptx"]
    assert run("heal", "letter.pptx", "healed.pptx")[0] == 0 and vellox.check("healed.pptx") == []
    status, _, words = run("inspect", "none.pptx")
    assert status == 2 and words.startswith("vellox: ") and words.count("\n") == 1


def test_a_table_becomes_decks(folder):
    (folder / "rows.csv").write_text("id,name\n1,Ada\n2,Bób\n", encoding="utf-8")
    assert run("batch", "letter.pptx", "rows.csv", "for-{id}.pptx", "--jobs", "2")[0] == 0
    with vellox.deck("again.pptx", "for-2.pptx") as deck:
        [slide] = deck
        assert slide["Title"].Text == "Dear Bób"
    status, _, words = run("batch", "none.pptx", "rows.csv", "new-{id}.pptx")
    assert status == 1 and words.count("none.pptx") == 2
    for name in ("{nobody}.pptx", "{id.x}.pptx", "{id[x]}.pptx", "{}.pptx"):
        assert run("batch", "letter.pptx", "rows.csv", name)[0] == 2
    for rows in ("id,name\n1\n", "id,name\n1,Ada,x\n", "id,id\n1,2\n"):
        (folder / "bad.csv").write_text(rows)
        status, _, words = run("batch", "letter.pptx", "bad.csv", "new-{id}.pptx")
        assert status == 2 and "bad.csv" in words
    assert not list(folder.glob("new-*"))
