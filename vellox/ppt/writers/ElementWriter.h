/// @file
/// What all writers share: the way to the driver, the search for formats, and steps through the document of
/// the slide being written.

#ifndef VELLOX_PPT_WRITERS_ELEMENTWRITER_H
#define VELLOX_PPT_WRITERS_ELEMENTWRITER_H

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "vellox/opc/MarkupBuffer.h"
#include "vellox/ppt/formats/Format.h"
#include "vellox/ppt/formats/FormatType.h"
#include "vellox/ppt/writers/FormatsInForce.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

class ElementImpl;
class PPTPartWriter;
class PresentationModel;
class SlideDocument;
class PropertyElement;
class Rules;
struct TableContext;

/// Writes one element. A writer lives for the writing of one node, on the stack of the driver.
class ElementWriter {
public:
    using FormatTypes = std::vector<FormatType>;

    ElementWriter(const ElementImpl& element, PPTWriter& writer, xercesc::DOMNode* parentNode);
    ElementWriter(const ElementWriter&) = delete;
    ElementWriter& operator=(const ElementWriter&) = delete;
    virtual ~ElementWriter();

    virtual void write();
    /// Lets one format write itself through this writer.
    virtual void applyFormat(const Format& format);
    /// The format of a kind that is in force for the element: its own, or that of the nearest element above
    /// it. For what stands in a table, the row comes before the column, and both before the table.
    virtual const Format* findFormat(FormatType type) const;
    virtual bool acceptsFormat(const Format& format) const;
    /// The kinds that this writer looks for above where the element has none of its own.
    virtual const FormatTypes& inheritedFormatTypes() const;

    const ElementImpl& getElement() const { return element_; }
    PPTWriter& getWriter() const { return writer_; }
    xercesc::DOMNode* getParentNode() const { return parentNode_; }
    PPTPartWriter& getPartWriter() const;
    PresentationModel& getModel() const;
    const Rules& getRules() const;
    /// The slide being written, or null.
    SlideDocument* getCurrentSlide() const;
    /// The name of its part; empty without a slide.
    std::wstring getCurrentSlidePartName() const;

    /// For the writer of a node that has no place in the tree: that of the element around it.
    void setAround(const ElementWriter& around) { around_ = &around; }

    /// A new element of the slide's document, attached to nothing; null without a slide.
    xercesc::DOMElement* createElement(const XMLCh* name) const;
    /// The element that bears a data-uid in the slide; null if there is none.
    xercesc::DOMElement* findSlideElement(const std::wstring& uid) const;

protected:
    /// Applies the element's own formats in the order of their kinds, then what it inherits in the order of
    /// the list. Where formats append elements, this order shows in the document.
    void applyFormats();
    /// What is in force at the element's parent.
    FormatsInForce getFormatsAbove() const;
    /// What is in force at the element as styles are now: listeners may change them between two calls.
    const FormatsInForce& getFormatsInForce() const;
    /// Where the content of shapes is written. It never becomes nodes.
    opc::MarkupBuffer& getMarkup() const;
    /// What the writers of children have of this one: they write behind what has been written, in the table around
    /// this element.
    PPTWriter::Frame makeFrame() const;
    /// @{ Writes the element's children.
    /// @return how many paragraphs there are among them
    unsigned int writeChildren() const { return writeChildren(makeFrame()); }
    unsigned int writeChildren(const PPTWriter::Frame& frame) const;
    /// @}
    /// The size of text in force, in points, if there is any said.
    std::optional<double> findFontPoints() const;
    /// Puts that size into the properties of a run.
    void putFontSize(PropertyElement& properties) const;

    /// @{ Brings an element into the form that the rules want it to have, if they say so. The second takes null.
    void arrange(PropertyElement& properties) const;
    void arrange(xercesc::DOMElement* element) const;
    /// The same whatever the rules are: for properties of the template that classic knows no way to write to.
    static void arrangeAnyway(xercesc::DOMElement* element);
    /// @}

private:
    const ElementImpl& element_;
    PPTWriter& writer_;
    xercesc::DOMNode* parentNode_;
    const ElementWriter* around_ = nullptr; // null for a node in the tree
    mutable std::optional<FormatsInForce> inForce_;
};

/// Removes all child elements of a name.
void removeChildElements(xercesc::DOMElement* parent, const XMLCh* name);

} // namespace vellox::ppt

#endif
