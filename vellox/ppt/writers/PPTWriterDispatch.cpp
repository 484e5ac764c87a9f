// From a node to the writer of its class, both halves: a node calls the operation of the driver for its class, which
// makes the writer. They stand apart from tree and driver, so that these need to know no writer and every writer
// can know both.

#include "vellox/ppt/tree/ExternalLinkImpl.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TableEntryImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TableRowImpl.h"
#include "vellox/ppt/tree/TextBoxImpl.h"
#include "vellox/ppt/tree/TextBoxPlaceholderImpl.h"
#include "vellox/ppt/writers/ExternalLinkWriter.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/ParagraphWriter.h"
#include "vellox/ppt/writers/PictureWriter.h"
#include "vellox/ppt/writers/SlideWriter.h"
#include "vellox/ppt/writers/TableEntryWriter.h"
#include "vellox/ppt/writers/TableRowWriter.h"
#include "vellox/ppt/writers/TableWriter.h"
#include "vellox/ppt/writers/TextBoxWriter.h"
#include "vellox/ppt/writers/TextWriter.h"

namespace vellox::ppt {

// Shapes of no other kind, groups and bare text boxes have no writer: they stay as the template has them.

void SlideImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeSlide(*this, parent);
}

void PPTWriter::writeSlide(const SlideImpl& slide, xercesc::DOMNode* parent) {
    SlideWriter(slide, *this, parent).write();
}

void ParagraphImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeParagraph(*this, parent);
}

void PPTWriter::writeParagraph(const ParagraphImpl& paragraph, xercesc::DOMNode* parent) {
    ParagraphWriter(paragraph, *this, parent).write();
}

void TextImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeText(*this, parent);
}

void PPTWriter::writeText(const TextImpl& text, xercesc::DOMNode* parent) {
    TextWriter(text, *this, parent).write();
}

void ExternalLinkImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeExternalLink(*this, parent);
}

void PPTWriter::writeExternalLink(const ExternalLinkImpl& link, xercesc::DOMNode* parent) {
    ExternalLinkWriter(link, *this, parent).write();
}

void PictureImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writePicture(*this, parent);
}

void PPTWriter::writePicture(const PictureImpl& picture, xercesc::DOMNode* parent) {
    PictureWriter(picture, *this, parent).write();
}

void TableImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeTable(*this, parent);
}

void PPTWriter::writeTable(const TableImpl& table, xercesc::DOMNode* parent) {
    TableWriter(table, *this, parent).write();
}

void TableRowImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeTableRow(*this, parent);
}

void PPTWriter::writeTableRow(const TableRowImpl& row, xercesc::DOMNode* parent) {
    TableRowWriter(row, *this, parent).write();
}

void TableEntryImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeTableEntry(*this, parent);
}

void PPTWriter::writeTableEntry(const TableEntryImpl& entry, xercesc::DOMNode* parent) {
    TableEntryWriter(entry, *this, parent).write();
}

void TextBoxImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeTextBox(*this, parent);
}

void PPTWriter::writeTextBox(const TextBoxImpl& textBox, xercesc::DOMNode* parent) {
    TextBoxWriter(textBox, *this, parent).write();
}

void TextBoxPlaceholderImpl::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    writer->writeTextBoxPlaceholder(*this, parent);
}

void PPTWriter::writeTextBoxPlaceholder(const TextBoxPlaceholderImpl& placeholder, xercesc::DOMNode* parent) {
    TextBoxPlaceholderWriter(placeholder, *this, parent).write();
}

} // namespace vellox::ppt
