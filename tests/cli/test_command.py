"""The command, as a person at a terminal uses it."""
import json
import os
import pathlib
import pty
import re
import shutil
import signal
import subprocess
import xml.dom.minidom
import zipfile

import pytest

COMMAND = os.environ["VELLOX_COMMAND"]
PAGES = os.environ["VELLOX_PAGES"]
PICTURE = pathlib.Path(__file__).parents[2] / "docs/images/hello.png"

DECK = """\
slides:
  - layout: Title Slide
    contents:
      Title: Report for {name}
      Subtitle: |
        Week 47
        all sites
  - layout: Title and Content
    contents:
      Title: Points
      Content: [First, [deeper, 3.10], "{{last}}"]
  - layout: Title and Table
    contents:
      Title: Figures
      Table: {table: "flow-{id}.csv"}
tokens: {id: 1, name: World}
"""


@pytest.fixture
def work(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    pathlib.Path("deck.yaml").write_text(DECK)
    pathlib.Path("rows.csv").write_text("id,name\n1,Ada\n2,Bob\n3,Cy\n")
    for number in 1, 2:
        pathlib.Path(f"flow-{number}.csv").write_text(f'Site;Flow\n"North; old";{number}.50\nSouth;7\n')
    return tmp_path


def run(*arguments, status=0, **options):
    done = subprocess.run([COMMAND, *map(str, arguments)], capture_output=True, text=True, timeout=300, **options)
    assert done.returncode == status, done
    assert all(line.startswith("vellox: ") for line in done.stderr.splitlines()), done.stderr
    return done


def fail(*arguments, status=2):
    """The one line of an error."""
    lines = run(*arguments, status=status).stderr.splitlines()
    assert len(lines) == 1, lines
    return lines[0]


def list_files(pattern="*.pptx"):
    return sorted(path.name for path in pathlib.Path().glob(pattern))


def test_a_deck_from_a_description(work):
    done = run("fill", "default", "deck.yaml", "-o", "deck.pptx")
    assert (done.stdout, done.stderr) == ("", "")
    run("check", "deck.pptx", "--strict")
    text = run("text", "deck.pptx").stdout
    assert "Title: Report for World\nSubtitle:\n    Week 47\n    all sites\n" in text
    assert "Content:\n    First\n      deeper\n      3.10\n    {last}\n" in text
    assert "    | Site | Flow |\n    | North; old | 1.50 |\n    | South | 7 |\n" in text
    pathlib.Path("plots").mkdir()
    shutil.copy(PICTURE, "plots/flow.png")
    pathlib.Path("picture.yaml").write_text(
        "slides:\n  - layout: Title and Content\n    contents:\n"
        "      Content: {picture: plots/flow.png, fit: cover, alt: Flow over time}\n")
    run("fill", "default", "picture.yaml", "-o", "picture.pptx")
    assert f"Content: (picture, {PICTURE.stat().st_size} bytes, " in run("text", "picture.pptx").stdout
    run("check", "picture.pptx", "--strict")
    slides = json.loads(run("text", "deck.pptx", "--json").stdout)
    assert [slide["layout"] for slide in slides] == ["Title Slide", "Title and Content", "Title and Table"]


@pytest.mark.parametrize("wrong, right, words", [
    ("layout: Title Slide", "layuot: Title Slide", ":2: slides[1].layuot: nothing is known of that name; there is \"layout\""),
    ("layout: Title Slide", "layout: Titel Slide", ":2: slides[1].layout: "),
    ("[First, [", "[First, {a: b}, [", ":11: slides[2].contents.Content[2]: "),
    ("flow-{id}", "flow-{di}", ":15: slides[3].contents.Table.table: there is no column \"di\"; there is \"id\""),
    ("flow-{id}", "none-{id}", ":15: slides[3].contents.Table.table: none-1.csv: No such file"),
    ("Week 47", "{Week 47", ":5: slides[1].contents.Subtitle: "),
    ("table: ", "picture: ~, fit: ", ":15: slides[3].contents.Table.picture: it is nothing, and must be a text"),
    ("tokens: {", "tokens: {id: 2, ", "two values for \"id\""),
    ("tokens: {", "tokens: [", "it is no YAML: "),
])
def test_errors_name_their_place(work, wrong, right, words):
    pathlib.Path("deck.yaml").write_text(DECK.replace(wrong, right))
    assert words in fail("fill", "default", "deck.yaml", "-o", "deck.pptx")
    assert not list_files()


def test_json_and_csv_are_as_good(work):
    pathlib.Path("deck.json").write_text(json.dumps(
        {"slides": [{"layout": "Title Slide", "contents": {"Title": "Grüße \U0001F600 {x}"}}]}, indent=1))
    run("fill", "default", "deck.json", "-o", "deck.pptx")
    assert "Title: Grüße \U0001F600 {x}\n" in run("text", "deck.pptx").stdout
    pathlib.Path("deck.json").write_text('{\n"slides": [\n{"layout": 3}]}')
    assert "deck.json:3: slides[1].layout: it is a number, and must be a text" in fail(
        "fill", "default", "deck.json", "-o", "deck.pptx")
    pathlib.Path("deck.json").write_text('{\n"slides": [\n}')
    assert "deck.json:3: it is no JSON: " in fail("fill", "default", "deck.json", "-o", "deck.pptx")
    pathlib.Path("deck.json").write_text("[" * 100000)
    assert "too deep" in fail("fill", "default", "deck.json", "-o", "deck.pptx")
    assert "rows.csv: it has 3 rows" in fail("fill", "default", "rows.csv", "-o", "deck.pptx")
    pathlib.Path("latin.csv").write_bytes(b"id\nM\xfcller\n")
    assert "latin.csv: it isn't in UTF-8" in fail("fill", "default", "deck.yaml", "-o", "{id}.pptx", "--each", "latin.csv")


def test_tokens_of_the_templates_slides(work):
    pathlib.Path("slides.yaml").write_text(
        "slides:\n  - layout: Title and Content\n    contents:\n      Title: 'Dear {name}, {flow:.1f}, {day:%d.%m.%Y}'\n"
        "      Content: '{points}'\n  - layout: Title and Table\n    contents:\n      Title: '{sum.mean}'\n"
        "      Table: {table: [[Site, Flow], ['{rows.Site}', '{rows.Flow:.2f}']]}\n")
    run("fill", "default", "slides.yaml", "-o", "template.pptx")
    pathlib.Path("tokens.yaml").write_text(
        "tokens:\n  name: Ada\n  flow: 3.14159\n  day: 2026-11-21\n  points: [a, [b], c]\n  sum: {mean: 2.50}\n"
        "  rows: {rows: flow-1.csv}\n")
    assert run("fill", "template.pptx", "tokens.yaml", "-o", "deck.pptx").stderr == ""
    text = run("text", "deck.pptx").stdout
    assert "Title: Dear Ada, 3.1, 21.11.2026\nContent:\n    a\n      b\n    c\n" in text
    assert "Title: 2.50\n" in text and "    | North; old | 1.50 |\n    | South | 7.00 |\n" in text
    pathlib.Path("names.csv").write_text("name,flow\nBob,7.5\n")
    assert "warning: " in run("fill", "template.pptx", "names.csv", "-o", "bob.pptx").stderr
    assert "Title: Dear Bob, 7.5, {day:%d.%m.%Y}\n" in run("text", "bob.pptx").stdout
    run("fill", "template.pptx", "names.csv", "-o", "strict.pptx", "--strict", status=2)
    assert "strict.pptx" not in list_files()


def test_strict_writes_no_deck_that_is_other_than_asked(work):
    pathlib.Path("deck.yaml").write_text(DECK.replace("Title: Points", "Titel: Points"))
    run("fill", "default", "deck.yaml", "-o", "deck.pptx", "--strict", status=2)
    assert not list_files()
    warning = fail("fill", "default", "deck.yaml", "-o", "deck.pptx", status=0)
    assert "warning: deck.yaml:10: slides[2].contents.Titel: slide 2: " in warning
    former = pathlib.Path("deck.pptx").read_bytes()
    run("fill", "default", "deck.yaml", "-o", "deck.pptx", "--strict", status=2)
    assert pathlib.Path("deck.pptx").read_bytes() == former


def test_a_batch_goes_on_without_the_deck_that_fails(work):
    done = run("fill", "default", "deck.yaml", "--each", "rows.csv", "-o", "{name}-{id}.pptx", "--jobs", "2", status=1)
    assert sorted(done.stdout.split()) == list_files() == ["Ada-1.pptx", "Bob-2.pptx"]
    failed, summary = done.stderr.splitlines()
    assert failed.startswith("vellox: Cy-3.pptx: deck.yaml:15: ")
    assert summary == "vellox: 2 of 3 decks were made; not made: Cy-3.pptx"
    for output, words in [("deck.pptx", "rows.csv:3: the row's deck is deck.pptx"), ("{nam}.pptx", "no column")]:
        assert words in fail("fill", "default", "deck.yaml", "--each", "rows.csv", "-o", output)
    pathlib.Path("rows.csv").write_text("id,name\n1,../../Ada\n")
    assert "can't be part of a file's name" in fail(
        "fill", "default", "deck.yaml", "--each", "rows.csv", "-o", "{name}.pptx")
    pathlib.Path("rows.csv").write_text("id,name\n1\n")
    assert "rows.csv:2: the row has 1 cells" in fail(
        "fill", "default", "deck.yaml", "--each", "rows.csv", "-o", "{name}.pptx")


def start_long_batch(count=4000, **options):
    with open("rows.csv", "w") as rows:
        rows.write("id,number\n" + "".join(f"1,{number}\n" for number in range(count)))
    return subprocess.Popen(
        [COMMAND, "fill", "default", "deck.yaml", "--each", "rows.csv", "-o", "deck-{number}.pptx", "--jobs", "2"],
        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, start_new_session=True, **options)


def test_ctrl_c_leaves_whole_decks(work):
    batch = start_long_batch()
    for _ in range(3):
        batch.stdout.readline()
    os.killpg(batch.pid, signal.SIGINT)
    _, errors = batch.communicate(timeout=60)
    assert batch.returncode == 130
    decks = list_files()
    assert 3 <= len(decks) < 4000
    assert errors == f"vellox: {len(decks)} of 4000 decks were made\n"
    run("check", *decks)
    assert not [name for name in list_files("*") if "tmp" in name]


def test_a_worker_that_dies_costs_one_deck(work):
    batch = start_long_batch(400)
    batch.stdout.readline()
    workers = pathlib.Path(f"/proc/{batch.pid}/task/{batch.pid}/children").read_text().split()
    os.kill(int(workers[0]), signal.SIGKILL)
    _, errors = batch.communicate(timeout=300)
    assert batch.returncode == 1
    assert "its process has died: Killed" in errors
    assert "vellox: 399 of 400 decks were made; not made: deck-" in errors


def test_a_terminal_gets_a_bar(work):
    pathlib.Path("flow-3.csv").write_text("a\n")
    leader, follower = pty.openpty()
    done = subprocess.run([COMMAND, "fill", "default", "deck.yaml", "--each", "rows.csv", "-o", "{id}.pptx"],
                          stdout=follower, stderr=follower, timeout=60)
    os.close(follower)
    shown = os.read(leader, 65536).decode()
    assert done.returncode == 0
    assert "[##############################] 3 of 3 decks" in shown
    assert ".pptx" not in shown and shown.endswith("\r\x1b[K")


def test_differences(work):
    for number in 1, 2:
        pathlib.Path(f"{number}.yaml").write_text(DECK.replace("id: 1", f"id: {number}"))
        run("fill", "default", f"{number}.yaml", "-o", f"{number}.pptx")
    assert run("diff", "1.pptx", "1.pptx").stdout == ""
    assert run("diff", "1.pptx", "2.pptx", status=1).stdout == (
        "* slide 3\n  Table:\n    row 2, column 2: 1.50 -> 2.50\n")
    pathlib.Path("3.yaml").write_text(DECK.replace("Week 47", "Week 48").replace(
        "  - layout: Title and Content", "  - layout: Section Header\n  - layout: Title and Content"))
    run("fill", "default", "3.yaml", "-o", "3.pptx")
    assert run("diff", "1.pptx", "3.pptx", status=1).stdout == (
        "* slide 1\n  Subtitle:\n    - Week 47\n    + Week 48\n+ slide 2\n")
    [difference] = json.loads(run("diff", "1.pptx", "2.pptx", "--json", status=1).stdout)
    assert difference["kind"] == "cellChanged" and difference["presentSlide"] == 3


def test_broken_files(work):
    run("fill", "default", "deck.yaml", "-o", "deck.pptx")
    whole = pathlib.Path("deck.pptx").read_bytes()
    for name, contents in {"empty": b"", "text": b"no deck", "half": whole[:len(whole) // 2]}.items():
        pathlib.Path(f"{name}.pptx").write_bytes(contents)
        assert f"{name}.pptx" in fail("text", f"{name}.pptx")
        assert f"{name}.pptx" in fail("diff", "deck.pptx", f"{name}.pptx")
        assert f"{name}.pptx: error: " in run("check", f"{name}.pptx", status=2).stdout
        assert f"{name}.pptx" in fail("fill", f"{name}.pptx", "deck.yaml", "-o", "out.pptx")
    # What can be read of a deck is shown, without anything that a terminal would obey.
    with zipfile.ZipFile("deck.pptx") as source, zipfile.ZipFile("bad.pptx", "w") as target:
        for entry in source.namelist():
            data = source.read(entry)
            if entry == "ppt/slides/slide1.xml":
                data = data.replace(b"Report for World", "\u009b2J".encode())
            target.writestr(entry, data if entry != "ppt/slides/slide2.xml" else b"<p:sld>")
    done = run("text", "bad.pptx", status=1)
    assert "Title: \\x9b2J\n" in done.stdout and "slide2.xml" in done.stderr and "Figures" in done.stdout
    assert "No such file" in fail("check", "none.pptx")
    assert json.loads(run("check", "deck.pptx", "bad.pptx", "--json", status=1).stdout)[0]["isSound"]
    assert "[vellox:ppt_error:cannotOpenFile]" in fail("text", "half.pptx", "--verbose")


def test_templates_are_inspected_and_healed(work):
    run("new", "mine.pptx")
    shown = run("inspect", "mine.pptx", "--html", "mine.html").stdout + run("inspect", "mine.pptx").stdout
    assert shown.startswith("Master ") and "\n  1. Title Slide\n       Title: " in shown
    assert json.loads(run("inspect", "default", "--json").stdout)["masters"][0]["layouts"][0]["placeholders"]
    page = xml.dom.minidom.parseString(re.sub(r"<!DOCTYPE html>|<meta [^>]*>", "", pathlib.Path("mine.html").read_text()))
    assert len([svg for svg in page.getElementsByTagName("svg") if svg.getAttribute("viewBox")]) == 11
    assert "http" not in pathlib.Path("mine.html").read_text()
    with zipfile.ZipFile("mine.pptx") as source, zipfile.ZipFile("bad.pptx", "w") as target:
        for entry in source.namelist():
            data = source.read(entry)
            if entry == "ppt/slideLayouts/slideLayout2.xml":
                data = data.replace(b'name="Title and Content"', b'name="&lt;b&gt;Twice"').replace(
                    b'name="Content"', b'name="Title"')
            target.writestr(entry, data)
    found = run("doctor", "bad.pptx", "--strict", status=1).stdout
    assert "bad.pptx: warning: " in found and "or use --heal (duplicateName)" in found
    run("inspect", "bad.pptx", "--html", "bad.html")
    assert "<b>" not in pathlib.Path("bad.html").read_text()
    assert "healed.pptx: mended: " in run("doctor", "bad.pptx", "--heal", "healed.pptx").stdout
    assert "duplicateName" not in run("doctor", "healed.pptx").stdout
    run("check", "healed.pptx")
    assert "No such file" in fail("doctor", "none.pptx")
    assert "one template" in fail("doctor", "mine.pptx", "bad.pptx", "--heal", "x.pptx")
    assert "none/x.html" in fail("inspect", "mine.pptx", "--html", "none/x.html")


def test_new_templates(work):
    run("new", "mine")
    run("check", "mine.pptx", "--strict")
    assert "--force" in fail("new", "mine.pptx")
    run("new", "mine.pptx", "--force")
    assert "extension" in fail("new", "mine.potx")
    assert "No such file" in fail("new", "none/mine.pptx")
    assert list_files("*.tmp") == []


def test_outputs_that_cannot_be_written(work):
    assert "none" in fail("fill", "default", "deck.yaml", "-o", "none/deck.pptx")
    with open("/dev/full", "w") as full:
        done = subprocess.run([COMMAND, "--version"], stdout=full, stderr=subprocess.PIPE, text=True)
        assert (done.returncode, done.stderr.count("\n")) == (2, 1)
    if os.geteuid() != 0:
        os.chmod(".", 0o500)
        assert "deck.pptx" in fail("fill", "default", "deck.yaml", "-o", "deck.pptx")
        os.chmod(".", 0o700)


def test_outputs_replace_what_they_may_alone(work):
    pathlib.Path("rows.csv").write_text("id,part\r..,a\ra,b\ra.pptx,c\r")
    pathlib.Path("keep.png").write_bytes(PICTURE.read_bytes())
    run("new", "mine.pptx")
    os.mkdir("folder")
    before = {path: path.stat().st_mtime_ns for path in pathlib.Path().iterdir()}
    for words in (["fill", "mine.pptx", "deck.yaml", "-o", output] for output in
                  ("", ".", "..", "folder", "folder/", "deck.yaml", "deck.odp", "mine.pptx", "./mine", "folder/../mine.pptx")):
        fail(*words)
    for words in (["inspect", "default", "--html", output] for output in ("", "keep.png", "page", "folder")):
        fail(*words)
    for words in (["doctor", "mine.pptx", "--heal", output] for output in ("", "keep.png", "mine.pptx", "folder")):
        fail(*words)
    each = ["fill", "default", "deck.yaml", "--each", "rows.csv", "-o"]
    assert ":2: id: \"..\" can't be part of a file's name" in fail(*each, "{id}/deck.pptx")
    pathlib.Path("rows.csv").write_text("id,part\na,b\na.pptx,c\n")
    assert ":3: the row's deck is d-a.pptx, and so is that of line 2" in fail(*each, "d-{id}")
    del before[pathlib.Path("rows.csv")]
    assert all(path.stat().st_mtime_ns == time for path, time in before.items())
    assert sorted(path for path in pathlib.Path().iterdir()) == sorted([*before, pathlib.Path("rows.csv")])
    # Modes and links stay, and what is read-only is meant to.
    run("inspect", "default", "--html", "page.html")
    os.chmod("page.html", 0o640)
    os.symlink("page.html", "link.html")
    run("inspect", "mine.pptx", "--html", "link.html")
    assert os.path.islink("link.html") and os.stat("page.html").st_mode & 0o777 == 0o640
    os.chmod("page.html", 0o440)
    os.chmod("mine.pptx", 0o440)
    assert "read-only" in fail("inspect", "mine.pptx", "--html", "page.html")
    assert "read-only" in fail("new", "mine.pptx", "--force")
    os.mkfifo("pipe.pptx")
    for command in "text", "inspect", "doctor":
        assert "regular file" in fail(command, "pipe.pptx")
    assert "regular file" in run("check", "pipe.pptx", status=2).stdout
    name = os.fsdecode(b"d\xe4ck.pptx")
    done = subprocess.run([COMMAND, "fill", "default", "deck.yaml", "-o", name], capture_output=True)
    assert done.returncode == 2 and b"UTF-8" in done.stderr and len(list_files("d*.pptx")) == 0


def test_data_of_any_kind_ends_soon(work):
    """Files that took minutes, or were read by half."""
    lines = [f"a{i}: &a{i} [{', '.join([f'*a{i - 1}' if i else 'x'] * 10)}]" for i in range(9)]
    keys = "\n".join(f"  k{i}: 1" for i in range(20000))
    for name, text, words in (
            ("laugh.yaml", "\n".join(lines), "too much data"), ("deep.yaml", "[" * 5000, "too deep"),
            ("two.yaml", DECK + "---\n" + DECK, ":18: a second document"),
            ("keys.json", json.dumps({f"k{i}": 1 for i in range(20000)}), "nothing is known of that name"),
            ("keys.yaml", "tokens:\n" + keys + "\nslides: []\nslide: 1", "nothing is known of that name")):
        pathlib.Path(name).write_text(text)
        assert words in fail("fill", "default", name, "-o", "deck.pptx")
    pathlib.Path("lines.json").write_text(json.dumps({"slides": [
        {"layout": "Title and Content", "contents": {"Content": "a\r\nb\rc\n"}}]}))
    run("fill", "default", "lines.json", "-o", "lines.pptx")
    assert "Content:\n    a\n    b\n    c\n" in run("text", "lines.pptx").stdout
    pathlib.Path("mac.csv").write_text("id,name\r1,Ada\r2,Bob\r")
    run("fill", "default", "deck.yaml", "--each", "mac.csv", "-o", "mac-{id}.pptx")
    assert list_files("mac-*") == ["mac-1.pptx", "mac-2.pptx"]


def test_a_pipe_that_closes_ends_it_silently(work):
    pathlib.Path("long.yaml").write_text("slides:\n" + "".join(
        f"  - layout: Title Slide\n    contents: {{Title: {'word ' * 200}}}\n" for _ in range(200)))
    run("fill", "default", "long.yaml", "-o", "long.pptx")
    reader = subprocess.Popen([COMMAND, "text", "long.pptx"], stdout=subprocess.PIPE, stderr=subprocess.PIPE, bufsize=0)
    reader.stdout.read(10)
    reader.stdout.close()
    assert reader.stderr.read() == b""
    assert reader.wait(60) == -signal.SIGPIPE


def test_the_sessions_of_the_documents(work):
    page = (pathlib.Path(__file__).parents[2] / "docs/command.md").read_text()
    environment = {**os.environ, "PATH": f"{pathlib.Path(COMMAND).parent}:{os.environ['PATH']}"}
    for session in re.findall(r"^```console\n(.*?)^```$", page, re.M | re.S):
        for line, shown in re.findall(r"^\$ (.*)\n((?:(?!\$ ).*\n)*)", session, re.M):
            if line.startswith("cat ") and not pathlib.Path(line[4:]).exists():
                pathlib.Path(line[4:]).write_text(shown)
            done = subprocess.run(["bash", "-c", line], env=environment, stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT, text=True)
            assert done.stdout == shown, line


@pytest.mark.parametrize("arguments, words", [
    (["nothing"], "there is no command nothing"), (["--nothing"], "there is no option --nothing"), (["fill"], "--help"),
    (["fill", "default", "-o", "x"], "fill needs data"), (["check"], "vellox check --help"),
    (["fill", "default", "deck.yaml", "-o", "x", "--jobs", "0"], "--jobs"),
])
def test_wrong_arguments(work, arguments, words):
    assert words in fail(*arguments)


def test_completions_and_manual(work):
    def write(kind):
        text = subprocess.run([PAGES, kind], capture_output=True, text=True, check=True).stdout
        pathlib.Path(kind).write_text(text)
        return text

    write("bash")
    complete = 'source ./bash; COMP_WORDS=({}); COMP_CWORD={}; _vellox; echo "${{COMPREPLY[@]}}"'
    for words, place, found in [("vellox c", 1, "check"), ("vellox fill --j", 2, "--jobs"), ("vellox text rows", 2, "rows.csv")]:
        script = complete.format(words, place)
        assert subprocess.run(["bash", "-c", "compopt() { :; };" + script], capture_output=True, text=True).stdout.split() == [found]
    for shell in "zsh", "fish":
        write(shell)
        if shutil.which(shell):
            subprocess.run([shell, "-n", shell], check=True)
    assert ".SS \"vellox fill\"" in write("man")
    if shutil.which("groff"):
        done = subprocess.run(["groff", "-ww", "-man", "-z", "man"], capture_output=True, text=True)
        assert (done.returncode, done.stderr) == (0, "")


LOOKS = """\
title: Weekly report
decimalMark: ","
footer: "{name}\\nInternal"
slides:
  - layout: Title and Table
    notes: Say hello
    contents:
      Title: {text: Flow, fontColor: "#c00000"}
      Table:
        table: [[Site, Flow, Share], [North, 1014.567, 0.25], [South, ~, 1], [Total]]
        style: Medium Style 2 - Accent 1
        alt: Flow by site
        missingText: "-"
        totalRow: true
        headerRows: 1
        columns: [~, {numberFormat: "{:.1f} m"}, {numberFormat: .0%}]
        rows: [{height: 1cm}]
        cells: [{row: 2, column: 3, border: 2pt dash red}]
        merge: [[4, 2, 4, 3]]
  - layout: Title and Content
    footer: ""
    hidden: true
    contents:
      Title: {text: ~}
      Content: {text: [One, [deeper]], bullet: "1. a)", alt: A list}
tokens: {name: Pumps}
"""


def test_descriptions_set_properties(work):
    pathlib.Path("looks.yaml").write_text(LOOKS)
    assert run("fill", "default", "looks.yaml", "-o", "deck.pptx").stderr == ""
    run("check", "deck.pptx", "--strict")
    text = run("text", "deck.pptx").stdout
    for line in ("| North | 1014,6 m | 25% |", "| South | - | 100% |", "Notes: Say hello", "Footer: Pumps\\nInternal",
                 "Table: (table) Flow by site", "Content: (empty)"):
        assert (line in text) == (line != "Content: (empty)"), text
    assert text.count("Footer") == 1
    with zipfile.ZipFile("deck.pptx") as package:
        first, second = (package.read(f"ppt/slides/slide{i}.xml").decode() for i in (1, 2))
        assert "Weekly report" in package.read("docProps/core.xml").decode()
    for words in ('h="359999"', 'prstDash val="dash"', 'gridSpan="2"', 'lastRow="1"', '"C00000"'):
        assert words in first, words
    assert first.count('algn="r"') == 7, "columns of numbers, the merged cell with them"
    assert 'type="alphaLcParenR"' in second and 'show="0"' in second and 'descr="A list"' in second


@pytest.mark.parametrize("wrong, right, words", [
    ("totalRow: true", "totalRow: 3", ":14: slides[1].contents.Table.totalRow: it is a number, and must be a truth value"),
    ("headerRows: 1", "headerRows: 1.5", ".headerRows: it is a number, and must be a whole number"),
    ("headerRows: 1", "rowHeigth: 1cm", ".rowHeigth: nothing is known of that name; there is \"rowHeight\""),
    ("height: 1cm", "height: tall", ":17: slides[1].contents.Table.rows[1].height: \"tall\" isn't a value"),
    ("row: 2, ", "row: 9, ", ".cells[1]: the table has no such cell"),
    ("row: 2, ", "row: 0, ", ".cells[1]: the row \"0\" doesn't count from 1"),
    ("row: 2, ", "", ".cells[1]: it has no row"),
    ("height: 1cm", "height: 50%", ".rows[1].height: \"50%\" isn't a value"),
    ("columns: [~, ", "columns: [~, ~, ~, ", ".columns[4]: the table has no such column"),
    ("Title: {text: ~}", "Titel: {text: ~, bold: true}", "slides[2].contents.Titel: the slide has nothing of that name"),
    ("[[4, 2, 4, 3]]", "[[4, 2, 4, 4]]", ":19: slides[1].contents.Table.merge[1]: The cells from row 4, column 2"),
    ("[[4, 2, 4, 3]]", "[[4, 2]]", ".merge[1]: it must be a row, a column, and the last of each"),
    ("hidden: true", "hidden: yes", ":22: slides[2].hidden: it is a text, and must be a truth value"),
    ("{text: ~}", "{text: a, table: [[1]]}", "slides[2].contents.Title: it must have either"),
    ("title: ", "Title: ", ":1: Title: nothing is known of that name; there is \"title\""),
])
def test_properties_are_told_with_their_place(work, wrong, right, words):
    pathlib.Path("looks.yaml").write_text(LOOKS.replace(wrong, right, 1))
    assert words in fail("fill", "default", "looks.yaml", "-o", "deck.pptx")


def test_what_is_found_is_told_where_it_is(work):
    pathlib.Path("notes.json").write_text(json.dumps({"slides": [{"layout": "Title Only", "notes": "a\1b"}]}))
    warnings = run("fill", "default", "notes.json", "-o", "aux.pptx").stderr
    assert "slides[1]: slide 1: characters that a file can't hold" in warnings and "keeps this name" in warnings, warnings


def test_columns_of_numbers_stand_at_the_right(work):
    pathlib.Path("n.csv").write_text("a,b\nx,1\ny,nan\n")
    pathlib.Path("n.json").write_text(json.dumps({"slides": [
        {"layout": "Title and Table", "contents": {"Table": {"table": "n.csv", "missingText": "-"}}}]}))
    run("fill", "default", "n.json", "-o", "n.pptx")
    with zipfile.ZipFile("n.pptx") as package:
        assert package.read("ppt/slides/slide1.xml").decode().count('algn="r"') == 3


def test_all_properties_of_the_schema_are_known(work):
    definitions = json.loads((pathlib.Path(__file__).parents[2] / "cli/deck.schema.json").read_text())["definitions"]
    samples = {"boolean": True, "integer": 1}

    def sample(kind):
        known = definitions["property"]
        return {name: samples.get(str(known[name].get("type")), "x") for name in definitions[kind]["properties"]
                if name in known and "text" not in name}

    table = {"table": [["a"]], **sample("table"), "columns": [sample("column")], "rows": [sample("row")],
             "cells": [{"row": 1, "column": 1, **sample("cell")}]}
    contents = {"A": table, "B": {"text": "a", **sample("text")}, "C": {"picture": str(PICTURE), **sample("picture")}}
    deck = {"slides": [{"layout": "Title Slide", **sample("slide"), "contents": contents}]}
    pathlib.Path("all.json").write_text(json.dumps(deck))
    words = fail("fill", "default", "all.json", "-o", "deck.pptx")
    assert "isn't a value that this property can have" in words, "the form of all is right"


def test_the_schema_says_what_the_program_says(work):
    jsonschema = pytest.importorskip("jsonschema")
    yaml = pytest.importorskip("yaml")
    schema = json.loads((pathlib.Path(__file__).parents[2] / "cli/deck.schema.json").read_text())
    for wrong, right in [("", ""), ("layout: Title Slide", "layuot: Title Slide"), ("[First, [", "[First, {a: b}, ["),
                         ("layout: Title Slide", "layout: 3"), ("table: ", "tabel: "), ("tokens: {", "tokens: {z: [1, {a: b}], "),
                         ("tokens: {", "tokens: {z: {picture: 3}, ")]:
        text = DECK.replace(wrong, right) if wrong else DECK
        pathlib.Path("deck.yaml").write_text(text)
        done = subprocess.run([COMMAND, "fill", "default", "deck.yaml", "-o", "x.pptx"], capture_output=True)
        assert jsonschema.Draft7Validator(schema).is_valid(yaml.safe_load(text)) == (done.returncode == 0), text
    for wrong, right in [("", ""), ("totalRow: true", "totalRow: 3"), ("row: 2, ", ""), ("height:", "hieght:")]:
        text = LOOKS.replace(wrong, right, 1) if wrong else LOOKS
        assert jsonschema.Draft7Validator(schema).is_valid(yaml.safe_load(text)) == (not wrong), text
