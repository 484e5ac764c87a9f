"""The stubs, the docstrings, and the pages of the guide."""
import pathlib
import re
import subprocess
import sys

import pytest

import vellox.ppt as ppt

GUIDE = pathlib.Path(__file__).parents[3] / "docs/python.md"


def test_stubs_say_what_the_module_has(tmp_path):
    package = pathlib.Path(ppt.__file__).parent
    script = tmp_path / "report.py"
    script.write_text("\n".join(get_snippets()))
    # What __init__ takes stands in tables that introspection doesn't reach.
    known = tmp_path / "known"
    known.write_text(r"vellox\.ppt\.\w+\.__init__")
    check = [sys.executable, "-m", "mypy", "--strict", "--ignore-missing-imports", "--cache-dir", str(tmp_path)]
    for command in (
        [*check, str(script), str(package / "ppt.pyi")],
        [sys.executable, "-m", "mypy.stubtest", "--allowlist", str(known), "vellox.ppt"],
    ):
        checked = subprocess.run(command, capture_output=True, text=True, check=False, cwd=tmp_path)
        assert checked.returncode == 0, checked.stdout + checked.stderr


def test_help_lists_the_overloads():
    text = ppt.Slide.add.__doc__
    assert "add(picture: Picture) -> Picture" in text and "add(name: str, text: str) -> None" in text
    assert "counts from 1" in ppt.Presentation.add.__doc__ and "Paragraph(text: str, level: int)" in ppt.Paragraph.__doc__
    assert "count from 1" in ppt.Table.entry.__doc__ and ppt.Shape.X.__doc__
    undocumented = [
        f"{name}.{member}"
        for name, bound in vars(ppt).items() if isinstance(bound, type)
        for member, value in vars(bound).items()
        if not member.startswith("_") and not (value.__doc__ or "").strip()
    ]
    assert undocumented in ([], ["Error.identifier", "Error.arguments"])


def get_snippets():
    return re.findall(r"^```python\n(.*?)^```$", GUIDE.read_text(), re.MULTILINE | re.DOTALL)


def test_the_guide_runs(tmp_path, monkeypatch):
    """All snippets, in their order, as one script."""
    snippets = get_snippets()
    assert len(snippets) > 5
    monkeypatch.chdir(tmp_path)
    picture = GUIDE.parents[1] / "examples/data/pump-curve.png"
    (tmp_path / "pump-curve.png").write_bytes(picture.read_bytes())
    scope = {"__name__": "guide"}
    for number, snippet in enumerate(snippets, 1):
        exec(compile(snippet, f"snippet {number}", "exec"), scope)  # pylint: disable=exec-used
    assert len(list(tmp_path.glob("*.pptx"))) >= 3
