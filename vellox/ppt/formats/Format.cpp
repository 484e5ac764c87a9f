#include "vellox/ppt/formats/Format.h"

#include "vellox/ppt/formats/FormatImpl.h"

namespace vellox::ppt {

const char* FormatImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Format";
}

FormatType FormatImpl::getFormatType() const {
    return FormatType::NoFormat;
}

void FormatImpl::applyToText(TextWriter&) const {}
void FormatImpl::applyToTableEntry(TableEntryWriter&) const {}
void FormatImpl::applyToParagraph(ParagraphWriter&) const {}
void FormatImpl::applyToTextBox(BaseTextBoxWriter&) const {}

Format::Format(FormatImpl* impl) : PPTObject(impl) {}

FormatImpl* Format::pimpl() {
    return implOf<FormatImpl>(*this);
}

const FormatImpl* Format::pimpl() const {
    return implOf<FormatImpl>(*this);
}

FormatType Format::getFormatType() const {
    return pimpl()->getFormatType();
}

boost::shared_ptr<Format> Format::makeInterface() const {
    return implOf<FormatImpl>(*this)->makeInterface();
}

} // namespace vellox::ppt
