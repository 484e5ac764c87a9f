/// @file
/// The document of one slide while it is written.

#ifndef VELLOX_PPT_TEMPLATE_SLIDEDOCUMENT_H
#define VELLOX_PPT_TEMPLATE_SLIDEDOCUMENT_H

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "vellox/opc/Utf8Serializer.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class Rules;
struct SlidePieces;

/// Made when a slide's turn comes, and gone when its part holds it: no record of the template is changed, and
/// whatever goes wrong, the slide can be written again. Shapes are found by the marks of their records.
///
/// A slide of the template is a copy of what was read. A new one consists of the pieces of its layout's prototype:
/// only what is changed in other ways than by paragraphs becomes nodes, when somebody asks for it.
class SlideDocument {
public:
    /// What a new slide consists of. What can be said of pieces doesn't reach the root element.
    enum class Form { Pieces, Nodes };

    SlideDocument(const TemplateSlide& slide, const Rules& rules, Form form = Form::Pieces);
    /// On a document with marks; new shapes are numbered from an id on.
    SlideDocument(OwnedDocument document, unsigned int firstFreeId);
    SlideDocument(const SlideDocument&) = delete;
    SlideDocument& operator=(const SlideDocument&) = delete;

    void setName(const std::wstring& name);
    /// The root element, if all of the slide is nodes; else null.
    xercesc::DOMElement* getRoot() const { return pieces_ ? nullptr : document_->getDocumentElement(); }
    /// A new element, attached to nothing.
    xercesc::DOMElement* createElement(const XMLCh* name);
    /// The element of a record; null if there is none.
    xercesc::DOMElement* findElement(const std::wstring& uid);
    /// Takes the element of a record off the slide.
    void removeElement(const std::wstring& uid);
    /// Whether the element of a record has a text body without paragraphs, and hasn't been asked for.
    bool takesText(const std::wstring& uid) const;
    /// The content of that text body. Without any it gets an empty paragraph.
    opc::MarkupBuffer& getText(const std::wstring& uid);
    /// What is written behind the children of an element.
    opc::MarkupBuffer& getContent(xercesc::DOMElement* element) { return contents_[element]; }
    /// The next id for a new shape.
    unsigned int takeShapeId() { return nextShapeId_++; }
    /// Puts a shape at the end of the shape tree, if the slide has one.
    void appendShape(xercesc::DOMElement* shape);
    /// The shape tree, if all of it is nodes; else null.
    xercesc::DOMElement* getShapeTree() const;
    /// @{ The one element that isn't found for the time being.
    void hide(const std::wstring& uid) { hiddenUid_ = uid; }
    void showHidden() { hiddenUid_.clear(); }
    /// @}
    /// Writes the whole. What no writer has visited, such as groups and placeholders that nothing came for, loses
    /// its mark, and may get a paragraph, since it may have been stripped of its text.
    /// @throws opc::Exception
    void writeTo(opc::MarkupBuffer& out);

private:
    /// What has become of a shape of the pieces.
    struct Slot {
        xercesc::DOMElement* holder = nullptr; ///< parent of the shape's node, or of what stands in its stead
        opc::MarkupBuffer text;                ///< paragraphs
    };

    void readMarks(xercesc::DOMElement* element);
    xercesc::DOMDocument& requireDocument();
    void makeNodes(std::size_t shape);
    void finishNodes();
    void writePieces(opc::MarkupBuffer& out) const;
    void writeChildren(const xercesc::DOMElement* holder, opc::MarkupBuffer& out) const;

    boost::shared_ptr<const SlidePrototype> prototype_; // of a slide in pieces
    const SlidePieces* pieces_ = nullptr;
    std::vector<Slot> slots_;                  // one for each of its shapes
    xercesc::DOMElement* newShapes_ = nullptr; // their parent
    std::optional<std::wstring> name_;
    OwnedDocument document_; // that of the nodes, all of them or those that were asked for
    std::map<std::wstring, xercesc::DOMElement*> elements_;
    opc::Contents contents_;
    std::wstring hiddenUid_;
    unsigned int nextShapeId_;
};

} // namespace vellox::ppt

#endif
