// From the class of a node to the writer of that class. These operations stand apart from the driver, so that
// it needs to know no writer and every writer can know the driver.

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

void PPTWriter::writeSlide(const SlideImpl& slide, xercesc::DOMNode* parent) {
    SlideWriter(slide, *this, parent).write();
}

void PPTWriter::writeParagraph(const ParagraphImpl& paragraph, xercesc::DOMNode* parent) {
    ParagraphWriter(paragraph, *this, parent).write();
}

void PPTWriter::writeText(const TextImpl& text, xercesc::DOMNode* parent) {
    TextWriter(text, *this, parent).write();
}

void PPTWriter::writeExternalLink(const ExternalLinkImpl& link, xercesc::DOMNode* parent) {
    ExternalLinkWriter(link, *this, parent).write();
}

void PPTWriter::writePicture(const PictureImpl& picture, xercesc::DOMNode* parent) {
    PictureWriter(picture, *this, parent).write();
}

void PPTWriter::writeTable(const TableImpl& table, xercesc::DOMNode* parent) {
    TableWriter(table, *this, parent).write();
}

void PPTWriter::writeTableRow(const TableRowImpl& row, xercesc::DOMNode* parent) {
    TableRowWriter(row, *this, parent).write();
}

void PPTWriter::writeTableEntry(const TableEntryImpl& entry, xercesc::DOMNode* parent) {
    TableEntryWriter(entry, *this, parent).write();
}

void PPTWriter::writeTextBox(const TextBoxImpl& textBox, xercesc::DOMNode* parent) {
    TextBoxWriter(textBox, *this, parent).write();
}

void PPTWriter::writeTextBoxPlaceholder(const TextBoxPlaceholderImpl& placeholder, xercesc::DOMNode* parent) {
    TextBoxPlaceholderWriter(placeholder, *this, parent).write();
}

} // namespace vellox::ppt
