"""Puts a chart with a workbook on each slide of a deck, or on some of them, so that the deck is a template to fill.

    charts.py <deck.pptx> <template.pptx> [name of the charts]
"""
import re
import sys
import zipfile

CHART = "application/vnd.openxmlformats-officedocument.drawingml.chart+xml"
WORKBOOK = "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet"
TYPE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/"
NAMESPACES = ('xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" '
              'xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" '
              f'xmlns:r="{TYPE[:-1]}"')
NO_ARCHIVE = b"PK\5\6" + bytes(18)

FRAME = ('<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id="900" name="Chart"/><p:cNvGraphicFramePr/><p:nvPr/>'
         '</p:nvGraphicFramePr><p:xfrm><a:off x="914400" y="1600200"/><a:ext cx="10363200" cy="4572000"/></p:xfrm>'
         f'<a:graphic><a:graphicData uri="http://schemas.openxmlformats.org/drawingml/2006/chart"><c:chart {NAMESPACES} '
         'r:id="rIdChart"/></a:graphicData></a:graphic></p:graphicFrame>')


def make_series(index):
    column = "BCD"[index]
    return (f'<c:ser><c:idx val="{index}"/><c:order val="{index}"/><c:tx><c:strRef><c:f>Data!${column}$1</c:f><c:strCache>'
            f'<c:ptCount val="1"/><c:pt idx="0"><c:v>Series {index + 1}</c:v></c:pt></c:strCache></c:strRef></c:tx>'
            f'<c:spPr><a:solidFill><a:schemeClr val="accent{index + 1}"/></a:solidFill></c:spPr><c:invertIfNegative val="0"/>'
            f'<c:val><c:numRef><c:f>Data!${column}$2</c:f><c:numCache><c:formatCode>General</c:formatCode>'
            '<c:ptCount val="1"/><c:pt idx="0"><c:v>1</c:v></c:pt></c:numCache></c:numRef></c:val></c:ser>')


def make_chart():
    axes = [f'<c:{kind}Ax><c:axId val="{own}"/><c:scaling><c:orientation val="minMax"/></c:scaling><c:delete val="0"/>'
            f'<c:axPos val="{place}"/><c:numFmt formatCode="General" sourceLinked="1"/><c:majorTickMark val="none"/>'
            f'<c:minorTickMark val="none"/><c:tickLblPos val="nextTo"/><c:crossAx val="{other}"/><c:crosses val="autoZero"/>'
            f'</c:{kind}Ax>' for kind, own, other, place in (("cat", 1, 2, "b"), ("val", 2, 1, "l"))]
    return (f'<?xml version="1.0" encoding="UTF-8" standalone="yes"?><c:chartSpace {NAMESPACES}><c:chart>'
            '<c:autoTitleDeleted val="1"/><c:plotArea><c:layout/><c:barChart><c:barDir val="col"/>'
            f'<c:grouping val="clustered"/><c:varyColors val="0"/>{"".join(map(make_series, range(3)))}'
            f'<c:gapWidth val="80"/><c:axId val="1"/><c:axId val="2"/></c:barChart>{"".join(axes)}</c:plotArea>'
            '<c:legend><c:legendPos val="b"/><c:overlay val="0"/></c:legend><c:plotVisOnly val="1"/></c:chart>'
            '<c:externalData r:id="rId1"><c:autoUpdate val="0"/></c:externalData></c:chartSpace>')


def add_charts(source, target, chart="Chart", slides=None):
    with zipfile.ZipFile(source) as deck:
        parts = {name: deck.read(name) for name in deck.namelist()}
    types = parts["[Content_Types].xml"].decode().replace(
        "<Override", f'<Default Extension="xlsx" ContentType="{WORKBOOK}"/><Override', 1)
    for name in [name for name in parts if re.fullmatch(r"ppt/slides/slide\d+\.xml", name)]:
        number = re.search(r"\d+", name).group()
        if slides and int(number) not in slides:
            continue
        relations = f"ppt/slides/_rels/slide{number}.xml.rels"
        link = f'<Relationship Id="rIdChart" Type="{TYPE}chart" Target="../charts/chart{number}.xml"/></Relationships>'
        parts[relations] = parts[relations].replace(b"</Relationships>", link.encode())
        parts[name] = parts[name].replace(
            b"</p:spTree>", FRAME.replace('"Chart"', f'"{chart}"').encode() + b"</p:spTree>")
        parts[f"ppt/charts/chart{number}.xml"] = make_chart().encode()
        parts[f"ppt/charts/_rels/chart{number}.xml.rels"] = (
            '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>'
            '<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">'
            f'<Relationship Id="rId1" Type="{TYPE}package" Target="../embeddings/book{number}.xlsx"/>'
            "</Relationships>").encode()
        parts[f"ppt/embeddings/book{number}.xlsx"] = NO_ARCHIVE
        types = types.replace("</Types>", f'<Override PartName="/ppt/charts/chart{number}.xml" '
                                          f'ContentType="{CHART}"/></Types>')
    parts["[Content_Types].xml"] = types.encode()
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED) as template:
        for name, content in parts.items():
            template.writestr(name, content)


if __name__ == "__main__":
    add_charts(*sys.argv[1:])
