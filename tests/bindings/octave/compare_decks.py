"""Makes the demo deck from C++ and from Octave, and says in which parts they differ but for numbers drawn anew:

    compare_decks.py <demo> <folder> <octave command...>
"""
import pathlib
import re
import subprocess
import sys
import zipfile

UUID = re.compile(rb"[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}", re.IGNORECASE)


def read_parts(path):
    with zipfile.ZipFile(path) as package:
        return {UUID.sub(b"uuid", name.encode()): UUID.sub(b"uuid", package.read(name)) for name in package.namelist()}


def main():
    demo, folder, *octave = sys.argv[1:]
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    subprocess.run([demo, folder / "cpp.pptx"], check=True)
    subprocess.run([*octave, folder / "octave.pptx"], check=True)
    expected, made = read_parts(folder / "cpp.pptx"), read_parts(folder / "octave.pptx")
    different = sorted(name for name in expected.keys() | made.keys() if expected.get(name) != made.get(name))
    print(f"{len(expected)} parts, different: {different}")
    return 0 if expected and not different else 1


sys.exit(main())
