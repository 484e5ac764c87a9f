"""What a package says of itself, and what else is in it, as an independent reader of archives and XML has it."""
import datetime
import posixpath
import zipfile
from xml.etree import ElementTree

import pytest

import vellox
import vellox.ppt as ppt

CORE = "{http://schemas.openxmlformats.org/package/2006/metadata/core-properties}"
DC = "{http://purl.org/dc/elements/1.1/}"
TERMS = "{http://purl.org/dc/terms/}"
APP = "{http://schemas.openxmlformats.org/officeDocument/2006/extended-properties}"
TYPES = "{http://schemas.openxmlformats.org/package/2006/content-types}"
RELATIONSHIP = "{http://schemas.openxmlformats.org/package/2006/relationships}Relationship"
MACROS = "http://schemas.microsoft.com/office/2006/relationships/vbaProject"
OLD = "1999-01-01T00:00:00Z"


def read(path, part):
    with zipfile.ZipFile(path) as package:
        return ElementTree.fromstring(package.read(part))


def rewrite(source, target, changes, additions=()):
    """A copy of a package with other parts, each made from what stood there."""
    with zipfile.ZipFile(source) as package, zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED) as copy:
        for name in package.namelist():
            copy.writestr(name, changes.get(name, lambda data: data)(package.read(name)))
        for name, data in additions:
            copy.writestr(name, data)


@pytest.fixture
def template(tmp_path):
    """A template that somebody else made long ago."""
    plain, path = tmp_path / "plain.pptx", tmp_path / "template.pptx"
    with ppt.Presentation(plain) as deck:
        deck.add("Blank")

    def age(data):
        root = ElementTree.fromstring(data)
        for name, text in ((DC + "creator", "Somebody"), (TERMS + "created", OLD), (TERMS + "modified", OLD)):
            element = root.find(name)
            if element is None:
                element = ElementTree.SubElement(root, name)
            element.text = text
        return ElementTree.tostring(root, encoding="utf-8", xml_declaration=True)

    def count(data):
        root = ElementTree.fromstring(data)
        for element in root.findall(APP + "Slides"):
            root.remove(element)
        ElementTree.SubElement(root, APP + "Slides").text = "9"
        return ElementTree.tostring(root, encoding="utf-8", xml_declaration=True)

    rewrite(plain, path, {"docProps/core.xml": age, "docProps/app.xml": count})
    return path


def make(output, template, profile, **properties):
    deck = ppt.Presentation(output, template)
    deck.Profile = profile
    deck.add("Title and Content").replace("Title", "x")
    for name, value in properties.items():
        setattr(deck, name, value)
    deck.close()
    assert [finding.text for finding in vellox.check(output) if finding.severity == "error"] == []
    return deck


def test_properties_are_those_of_the_deck(tmp_path, template):
    given = {"Title": "Flow & <head>", "Author": "Åsa", "Subject": "Pumps", "Keywords": "flow, head"}
    names = {"Title": DC + "title", "Author": DC + "creator", "Subject": DC + "subject", "Keywords": CORE + "keywords"}
    output = tmp_path / "deck.pptx"
    for profile in "classic", "office":
        make(output, template, profile, **given)
        core = read(output, "docProps/core.xml")
        assert {key: [element.text for element in core.iter(name)] for key, name in names.items()} == {
            key: [value] for key, value in given.items()}
        assert len({element.tag for element in core}) == len(core)
        assert read(output, "docProps/app.xml").tag == APP + "Properties"

    make(output, template, "classic")
    core = read(output, "docProps/core.xml")
    assert (core.findtext(DC + "creator"), core.findtext(TERMS + "created")) == ("Somebody", OLD)

    make(output, template, "office")
    core = read(output, "docProps/core.xml")
    assert core.find(DC + "creator") is None
    created, modified = (core.findtext(TERMS + name) for name in ("created", "modified"))
    age = datetime.datetime.utcnow() - datetime.datetime.strptime(created, "%Y-%m-%dT%H:%M:%SZ")
    assert created == modified and abs(age) < datetime.timedelta(minutes=5)
    assert read(output, "docProps/app.xml").findtext(APP + "Slides") == "2"


def with_macros(template, path):
    def change_types(data):
        main = b"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml"
        macros = b"application/vnd.ms-powerpoint.presentation.macroEnabled.main+xml"
        assert main in data
        rest = b'<Override PartName="/ppt/vbaProject.bin" ContentType="application/vnd.ms-office.vbaProject"/></Types>'
        return data.replace(main, macros).replace(b"</Types>", rest)

    def change_relationships(data):
        row = f'<Relationship Id="rIdMacros" Type="{MACROS}" Target="vbaProject.bin"/></Relationships>'
        return data.replace(b"</Relationships>", row.encode())

    rewrite(template, path, {"[Content_Types].xml": change_types, "ppt/_rels/presentation.xml.rels": change_relationships},
            [("ppt/vbaProject.bin", bytes(range(256)) * 7)])


@pytest.mark.parametrize("name, keeps", [("deck.pptm", True), ("deck.potm", True), ("deck.pptx", False)])
def test_macros_go_where_the_extension_has_them(tmp_path, template, name, keeps):
    source, output = tmp_path / "macros.pptm", tmp_path / name
    with_macros(template, source)
    deck = make(output, source, "office")
    assert [finding.code for finding in deck.Findings].count("macrosLeftOut") == (0 if keeps else 1)
    targets = [posixpath.normpath(posixpath.join("/ppt", row.get("Target")))[1:] for row in
               read(output, "ppt/_rels/presentation.xml.rels").iter(RELATIONSHIP) if row.get("Type") == MACROS]
    assert len(targets) == (1 if keeps else 0)
    overrides = {row.get("PartName"): row.get("ContentType")
                 for row in read(output, "[Content_Types].xml").iter(TYPES + "Override")}
    assert ("macroEnabled" in overrides["/ppt/presentation.xml"]) == keeps
    with zipfile.ZipFile(output) as package:
        assert package.testzip() is None
        assert any("vba" in part for part in package.namelist()) == keeps
        if keeps:
            assert package.read(targets[0]) == bytes(range(256)) * 7
