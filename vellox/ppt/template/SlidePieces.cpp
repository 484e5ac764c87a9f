#include "vellox/ppt/template/SlidePieces.h"

#include "vellox/opc/Utf8Serializer.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <string_view>
#include <utility>

namespace vellox::ppt {

using namespace xercesc;

namespace {

// Stands in a document where it will be cut. A document that holds it already comes to too many pieces.
constexpr std::string_view kCut = "<?vellox-cut?>";
constexpr XMLCh kCutName[] = u"vellox-cut";
constexpr std::string_view kNameCut = R"( name="vellox-cut")";

std::vector<std::string> split(std::string_view text, std::string_view cut) {
    std::vector<std::string> pieces;
    for (std::size_t at = text.find(cut); at != std::string_view::npos; at = text.find(cut)) {
        pieces.emplace_back(text.substr(0, at));
        text.remove_prefix(at + cut.size());
    }
    pieces.emplace_back(text);
    return pieces;
}

// Those that are in no other such.
void collectMarked(DOMElement& parent, std::vector<DOMElement*>& marked) {
    for (DOMElement* child : getChildElements(&parent))
        if (child->hasAttribute(xml::kDataUid))
            marked.push_back(child);
        else
            collectMarked(*child, marked);
}

bool hasMark(DOMDocument* document) {
    std::vector<DOMElement*> marked;
    collectMarked(*document->getDocumentElement(), marked);
    return !marked.empty() || document->getDocumentElement()->hasAttribute(xml::kDataUid);
}

DOMNode* makeCut(DOMDocument& document) {
    return document.createProcessingInstruction(kCutName, u"");
}

class Cutter {
public:
    explicit Cutter(const OwnedDocument& document) : work_(copyDocument(document)) {}

    bool cut() {
        DOMElement* data = findChild(work_->getDocumentElement(), xml::kCSld);
        DOMElement* tree = findChild(data, xml::kSpTree);
        if (!tree)
            return false;
        setAttribute(data, xml::kName, kCutName);
        std::vector<DOMElement*> shapes;
        collectMarked(*tree, shapes);
        for (DOMElement* shape : shapes)
            if (!cutShape(*shape))
                return false;
        tree->appendChild(makeCut(*work_.get()));
        return !hasMark(work_.get()) && cutDocument();
    }

    SlidePieces& getPieces() { return pieces_; }

private:
    bool cutShape(DOMElement& shape) {
        const std::size_t index = pieces_.shapes.size();
        SlidePieces::Shape& made = pieces_.shapes.emplace_back();
        takeMarks(shape, index);
        DOMElement* body = findChild(&shape, xml::kTxBody);
        made.takesText = body && !findChild(body, xml::kAP);
        if (made.takesText)
            body->appendChild(makeCut(*work_.get()));
        else
            ensureParagraph(&shape);
        opc::MarkupBuffer text;
        if (!opc::Utf8Serializer::appendPlain(shape, opc::Contents(), text))
            return false;
        std::vector<std::string> pieces = split(text.get(), kCut);
        if (pieces.size() != (made.takesText ? 2U : 1U))
            return false;
        made.text = std::move(pieces.front());
        if (made.takesText)
            made.textBehind = std::move(pieces.back());
        shape.getParentNode()->replaceChild(makeCut(*work_.get()), &shape);
        return true;
    }

    // What is within a marked element, such as the shapes of a group, gets its paragraph here.
    void takeMarks(DOMElement& element, std::size_t index, bool isWithin = false) {
        const std::wstring uid = getAttribute(&element, xml::kDataUid);
        if (!uid.empty()) {
            pieces_.shapesByUid.emplace(uid, index);
            element.removeAttribute(xml::kDataUid);
            if (isWithin)
                ensureParagraph(&element);
        }
        for (DOMElement* child : getChildElements(&element))
            takeMarks(*child, index, true);
    }

    bool cutDocument() {
        opc::MarkupBuffer text;
        if (!opc::Utf8Serializer::appendPlain(*work_.get(), opc::Contents(), text))
            return false;
        pieces_.between = split(text.get(), kCut);
        if (pieces_.between.size() != pieces_.shapes.size() + 2)
            return false;
        pieces_.behind = std::move(pieces_.between.back());
        pieces_.between.pop_back();
        std::vector<std::string> start = split(pieces_.between.front(), kNameCut);
        if (start.size() != 2)
            return false;
        pieces_.beforeName = std::move(start.front());
        pieces_.between.front() = std::move(start.back());
        return true;
    }

    OwnedDocument work_;
    SlidePieces pieces_;
};

} // namespace

std::optional<SlidePieces> cutIntoPieces(const OwnedDocument& document) {
    if (!document->getDocumentElement())
        return std::nullopt;
    Cutter cutter(document);
    if (!cutter.cut())
        return std::nullopt;
    SlidePieces pieces = std::move(cutter.getPieces());
    std::vector<DOMElement*> shapes;
    collectMarked(*document->getDocumentElement(), shapes);
    for (std::size_t i = 0; i < shapes.size(); ++i)
        pieces.shapes[i].element = shapes[i];
    return pieces;
}

} // namespace vellox::ppt
