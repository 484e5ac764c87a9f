#include "vellox/reading/ShapeContents.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/XercesString.h"

#include <algorithm>

namespace vellox::reading {

using namespace check;
using ppt::DeckParagraph;
using ppt::DeckShape;
using xercesc::DOMElement;

namespace {

constexpr unsigned kMaxLevel = 8;
constexpr std::size_t kMaxPoints = 1000000; // of a series

std::wstring getContent(const DOMElement& element) {
    return opc::toWideString(element.getTextContent());
}

} // namespace

std::vector<DeckShape> ShapeContents::read(const DOMElement& slide, const PartKey& part) {
    slide_ = part;
    shapes_.clear();
    if (const DOMElement* tree = markup_.find(slide, kPresentation, u"cSld", u"spTree"))
        readShapes(*tree);
    return std::move(shapes_);
}

std::vector<DeckParagraph> ShapeContents::readNotes(const DOMElement& page, const PartKey& part) {
    std::vector<DeckParagraph> notes;
    for (DeckShape& shape : read(page, part))
        if (shape.placeholder == L"body")
            std::move(shape.paragraphs.begin(), shape.paragraphs.end(), std::back_inserter(notes));
    return notes;
}

void ShapeContents::readShapes(const DOMElement& tree) {
    markup_.forEach(tree, [this](const DOMElement& child) {
        if (markup_.is(child, kPresentation, u"grpSp"))
            readShapes(child);
        else
            readShape(child);
    });
}

void ShapeContents::readShape(const DOMElement& element) {
    DeckShape shape = readIdentity(element);
    if (markup_.is(element, kPresentation, u"sp")) {
        if (const DOMElement* body = markup_.find(element, kPresentation, u"txBody"))
            shape.paragraphs = readParagraphs(*body);
    } else if (markup_.is(element, kPresentation, u"pic")) {
        readPicture(element, shape);
    } else if (markup_.is(element, kPresentation, u"graphicFrame")) {
        readFrame(element, shape);
    } else {
        return; // the tree's own properties, connectors, and what nobody knows
    }
    shapes_.push_back(std::move(shape));
}

/// The properties are the first child of any shape: p:nvSpPr, p:nvPicPr and so on.
DeckShape ShapeContents::readIdentity(const DOMElement& element) {
    DeckShape shape;
    const DOMElement* properties = element.getFirstElementChild();
    if (!properties)
        return shape;
    if (const DOMElement* common = markup_.find(*properties, kPresentation, u"cNvPr")) {
        shape.name = markup_.get(*common, u"name");
        shape.altText = markup_.get(*common, u"descr");
    }
    if (const DOMElement* ph = markup_.find(*properties, kPresentation, u"nvPr", u"ph")) {
        shape.placeholder = markup_.get(*ph, u"type");
        if (shape.placeholder.empty())
            shape.placeholder = L"obj"; // what the format means by leaving it out
    }
    return shape;
}

// Texts

std::vector<DeckParagraph> ShapeContents::readParagraphs(const DOMElement& body) {
    std::vector<DeckParagraph> paragraphs;
    markup_.forEach(body, [&](const DOMElement& child) {
        if (!markup_.is(child, kDrawing, u"p"))
            return;
        DeckParagraph paragraph;
        if (const DOMElement* properties = markup_.find(child, kDrawing, u"pPr"))
            paragraph.level = std::min(str2uint(markup_.get(*properties, u"lvl")), kMaxLevel);
        paragraph.text = readText(child);
        paragraphs.push_back(std::move(paragraph));
    });
    const bool isEmpty = std::all_of(paragraphs.begin(), paragraphs.end(),
                                     [](const DeckParagraph& paragraph) { return paragraph.text.empty(); });
    return isEmpty ? std::vector<DeckParagraph>() : paragraphs;
}

/// Runs, fields and line breaks; a formula is the texts that stand in it, one behind the other.
std::wstring ShapeContents::readText(const DOMElement& paragraph) {
    std::wstring text;
    markup_.forEach(paragraph, [&](const DOMElement& child) {
        if (markup_.is(child, kDrawing, u"br"))
            text += L'\n';
        else if (xercesc::XMLString::equals(child.getLocalName(), u"t"))
            text += getContent(child);
        else
            text += readText(child);
    });
    return text;
}

// Pictures

void ShapeContents::readPicture(const DOMElement& element, DeckShape& shape) {
    shape.kind = DeckShape::Kind::Picture;
    const DOMElement* fill = markup_.find(element, kPresentation, u"blipFill");
    const DOMElement* blip = fill ? markup_.find(*fill, kDrawing, u"blip") : nullptr;
    if (!blip)
        return;
    const std::wstring embedded = markup_.getReference(*blip, u"embed");
    if (const PartKey part = follow(embedded); !part.empty()) {
        const PictureFacts& facts = parts_.readPicture(part);
        shape.picture = shorten(parts_.getIndex().getName(part));
        shape.digest = facts.digest;
        shape.bytes = facts.bytes;
    } else if (const RelationshipRow* row =
                   parts_.getIndex().findRelationship(slide_, markup_.getReference(*blip, u"link"))) {
        shape.picture = shorten(row->target);
    }
}

PartKey ShapeContents::follow(const std::wstring& reference) const {
    const RelationshipRow* row = parts_.getIndex().findRelationship(slide_, reference);
    return row && !row->isExternal ? row->part : PartKey();
}

// Frames

void ShapeContents::readFrame(const DOMElement& element, DeckShape& shape) {
    shape.kind = DeckShape::Kind::Other;
    const DOMElement* data = markup_.find(element, kDrawing, u"graphic", u"graphicData");
    if (!data)
        return;
    markup_.forEach(*data, [&](const DOMElement& child) {
        if (markup_.is(child, kDrawing, u"tbl"))
            readTable(child, shape);
        else if (markup_.is(child, kChart, u"chart"))
            readChart(follow(markup_.getReference(child, u"id")), shape);
        else if (const std::wstring diagram = markup_.getReference(child, u"dm"); !diagram.empty())
            readDiagram(follow(diagram), shape);
    });
}

void ShapeContents::readTable(const DOMElement& table, DeckShape& shape) {
    shape.kind = DeckShape::Kind::Table;
    markup_.forEach(table, [&](const DOMElement& row) {
        if (!markup_.is(row, kDrawing, u"tr"))
            return;
        shape.rows.emplace_back();
        markup_.forEach(row, [&](const DOMElement& cell) {
            if (!markup_.is(cell, kDrawing, u"tc"))
                return;
            std::wstring text;
            if (const DOMElement* body = markup_.find(cell, kDrawing, u"txBody"))
                for (const DeckParagraph& paragraph : readParagraphs(*body))
                    text += (text.empty() ? L"" : L"\n") + paragraph.text;
            shape.rows.back().push_back(std::move(text));
        });
    });
}

/// From what the chart keeps of its data, so that no workbook is opened.
void ShapeContents::readChart(const PartKey& chart, DeckShape& shape) {
    shape.kind = DeckShape::Kind::Chart;
    const opc::DocumentScope document = parts_.read(chart);
    if (!document)
        return;
    std::vector<std::wstring> categories;
    markup_.forEachWithin(*document->getDocumentElement(), kChart, u"ser", [&](const DOMElement& series) {
        std::vector<std::wstring> row = readValues(series, u"tx");
        row.resize(1);
        std::vector<std::wstring> names = readValues(series, u"cat"), values = readValues(series, u"val");
        if (names.empty() && values.empty()) { // of points in a plane
            names = readValues(series, u"xVal");
            values = readValues(series, u"yVal");
        }
        row.insert(row.end(), values.begin(), values.end());
        names.insert(names.begin(), std::wstring());
        if (names.size() > 1 && names != categories) {
            categories = names;
            shape.rows.push_back(std::move(names));
        }
        shape.rows.push_back(std::move(row));
    });
}

// Names may have several levels, the innermost first. A name of an outer one stands for all up to the next.
ShapeContents::Texts ShapeContents::readValues(const DOMElement& series, const XMLCh* name) {
    const DOMElement* holder = markup_.find(series, kChart, name);
    if (!holder)
        return {};
    std::vector<Texts> levels;
    markup_.forEachWithin(*holder, kChart, u"lvl",
                          [&](const DOMElement& level) { levels.push_back(readPoints(level)); });
    Texts values = levels.empty() ? readPoints(*holder) : levels.front();
    markup_.forEachWithin(*holder, kChart, u"ptCount", [&](const DOMElement& count) {
        const std::size_t given = str2uint(markup_.get(count, u"val"));
        resize(values, std::max(values.size(), std::min(given, kMaxPoints)));
    });
    for (std::size_t i = 1; i < levels.size(); ++i) {
        std::wstring outer;
        for (std::size_t at = 0; at < values.size(); ++at) {
            if (at < levels[i].size() && !levels[i][at].empty())
                outer = levels[i][at];
            parts_.charge(opc::kXmlTextCharacterCost * outer.size());
            values[at] = outer + (outer.empty() ? L"" : L" ") + values[at];
        }
    }
    return values;
}

ShapeContents::Texts ShapeContents::readPoints(const DOMElement& cache) {
    Texts values;
    markup_.forEachWithin(cache, kChart, u"pt", [&](const DOMElement& point) {
        const std::size_t index = str2uint(markup_.get(point, u"idx"));
        if (index >= kMaxPoints)
            return;
        resize(values, std::max(values.size(), index + 1));
        if (const DOMElement* value = markup_.find(point, kChart, u"v"))
            values[index] = getContent(*value);
    });
    if (values.empty()) // a name that stands there by itself
        markup_.forEachWithin(cache, kChart, u"v",
                              [&](const DOMElement& value) { values.push_back(getContent(value)); });
    return values;
}

// An index is a number that anybody can write.
void ShapeContents::resize(Texts& values, std::size_t count) {
    parts_.charge(opc::kXmlNodeCost * (count - values.size()));
    values.resize(count);
}

void ShapeContents::readDiagram(const PartKey& data, DeckShape& shape) {
    shape.kind = DeckShape::Kind::Diagram;
    const opc::DocumentScope document = parts_.read(data);
    if (!document)
        return;
    markup_.forEachWithin(*document->getDocumentElement(), kDrawing, u"p", [&](const DOMElement& paragraph) {
        if (std::wstring text = readText(paragraph); !text.empty())
            shape.paragraphs.push_back({0, std::move(text)});
    });
}

} // namespace vellox::reading
