#include "vellox/check/XmlReader.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/XercesString.h"

#include <boost/algorithm/string/predicate.hpp>

#include <array>
#include <exception>

namespace vellox::check {

namespace {

bool isUsualEncoding(const std::wstring& encoding) {
    return encoding.empty() || boost::algorithm::istarts_with(encoding, L"UTF-8") ||
           boost::algorithm::istarts_with(encoding, L"UTF-16") ||
           boost::algorithm::iends_with(encoding, L"ASCII");
}

} // namespace

XmlReader::XmlReader(Report& report) : report_(report) {
    parser_.setNamespaceAware(true);
}

opc::DocumentScope XmlReader::read(const opc::PhysicalPart& part, const Place& place) {
    // A damaged entry fails while it is parsed, with a text about XML; so it is read by itself first.
    if (!readThrough(part, place))
        return {};
    const auto stream = part.openInput();
    return read(*stream, place);
}

opc::DocumentScope XmlReader::read(opc::InputStream& stream, const Place& place) {
    try {
        opc::DocumentScope document(parser_.readDocument(stream));
        const std::wstring encoding = opc::toWideString(document->getXmlEncoding());
        if (!isUsualEncoding(encoding))
            report_.add(Code::notWellFormed, place,
                        L"its encoding is " + quote(encoding) + L", which is neither UTF-8 nor UTF-16");
        return document;
    } catch (const std::exception& failure) {
        report_.add(Code::notWellFormed, place, L"it can't be parsed: " + fromUtf8(failure.what()));
        return {};
    }
}

bool XmlReader::readThrough(const opc::PhysicalPart& part, const Place& place) {
    try {
        std::array<unsigned char, 65536> block;
        const auto stream = part.openInput();
        while (stream->read(block.data(), block.size()) > 0) {
        }
        return true;
    } catch (const std::exception& failure) {
        report_.add(Code::unreadablePart, place, L"it can't be read: " + fromUtf8(failure.what()));
        return false;
    }
}

std::wstring getAttribute(const xercesc::DOMElement& element, const XMLCh* name) {
    return opc::toWideString(element.getAttribute(name));
}

} // namespace vellox::check
