/// @file
/// What the shapes of one slide show. Internal.

#ifndef VELLOX_READING_SHAPECONTENTS_H
#define VELLOX_READING_SHAPECONTENTS_H

#include <vector>

#include "vellox/reading/DeckReader.h"
#include "vellox/reading/Markup.h"
#include "vellox/reading/PartSource.h"

namespace vellox::reading {

class ShapeContents {
public:
    ShapeContents(Markup& markup, PartSource& parts) : markup_(markup), parts_(parts) {}

    /// The shapes of a slide, in the order of the page.
    std::vector<ppt::DeckShape> read(const xercesc::DOMElement& slide, const check::PartKey& part);
    /// The text of a notes page: that of its body placeholders.
    std::vector<ppt::DeckParagraph> readNotes(const xercesc::DOMElement& page, const check::PartKey& part);

private:
    void readShapes(const xercesc::DOMElement& tree);
    void readShape(const xercesc::DOMElement& element);
    ppt::DeckShape readIdentity(const xercesc::DOMElement& element);
    std::vector<ppt::DeckParagraph> readParagraphs(const xercesc::DOMElement& body);
    std::wstring readText(const xercesc::DOMElement& paragraph);
    void readPicture(const xercesc::DOMElement& element, ppt::DeckShape& shape);
    void readFrame(const xercesc::DOMElement& element, ppt::DeckShape& shape);
    void readTable(const xercesc::DOMElement& table, ppt::DeckShape& shape);
    void readChart(const check::PartKey& chart, ppt::DeckShape& shape);
    void readDiagram(const check::PartKey& data, ppt::DeckShape& shape);
    using Texts = std::vector<std::wstring>;
    Texts readValues(const xercesc::DOMElement& series, const XMLCh* name);
    /// Each point at its index: those that a series lacks are empty texts.
    Texts readPoints(const xercesc::DOMElement& cache);
    void resize(Texts& values, std::size_t count);
    /// What a reference of this slide leads to; empty if it is no part.
    check::PartKey follow(const std::wstring& reference) const;

    Markup& markup_;
    PartSource& parts_;
    check::PartKey slide_;
    std::vector<ppt::DeckShape> shapes_;
};

} // namespace vellox::reading

#endif
