/// @file
/// The state behind Format. Internal: users hold facades.

#ifndef VELLOX_PPT_FORMATS_FORMATIMPL_H
#define VELLOX_PPT_FORMATS_FORMATIMPL_H

#include "vellox/ppt/formats/Format.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::ppt {

class BaseTextBoxWriter;
class ParagraphWriter;
class TableEntryWriter;
class TextWriter;

/// A format writes itself: of the four operations that let it, each class fills those that it has an action
/// for. All others do nothing, so that any format may stand in any style.
class FormatImpl : public PPTObjectImpl {
public:
    FormatImpl() = default;
    FormatImpl(const FormatImpl&) = default;

    const char* getFullyQualifiedHostTypeName() const override;
    boost::shared_ptr<PPTObject> makeHandle() override { return makeInterface(); }
    virtual boost::shared_ptr<Format> makeInterface() = 0;
    virtual FormatType getFormatType() const;
    virtual void applyToText(TextWriter& writer) const;
    virtual void applyToTableEntry(TableEntryWriter& writer) const;
    virtual void applyToParagraph(ParagraphWriter& writer) const;
    virtual void applyToTextBox(BaseTextBoxWriter& writer) const;
};

/// How often any set of formats in this process has been changed or has ended. What was found in sets counts for as long
/// as this stays the same.
unsigned long long countFormatChanges();

} // namespace vellox::ppt

#endif
