#include "vellox/check/XmlReader.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/XercesString.h"

#include <boost/algorithm/string/predicate.hpp>
#include <boost/make_shared.hpp>

#include <array>
#include <exception>
#include <filesystem>

namespace vellox::check {

namespace {

bool isUsualEncoding(const std::wstring& encoding) {
    return encoding.empty() || boost::algorithm::istarts_with(encoding, L"UTF-8") ||
           boost::algorithm::istarts_with(encoding, L"UTF-16") ||
           boost::algorithm::iends_with(encoding, L"ASCII");
}

void readToEnd(opc::InputStream& stream) {
    std::array<unsigned char, 65536> block;
    while (stream.read(block.data(), block.size()) > 0) {
    }
}

/// A stream that keeps what the archive had wrong: a parser may have its own words for what came of it.
class WatchedStream : public opc::InputStream {
public:
    explicit WatchedStream(opc::InputStream& stream) : stream_(stream) {}

    std::size_t read(unsigned char* target, std::size_t count) override {
        try {
            return stream_.read(target, count);
        } catch (const std::exception& failure) {
            damage_ = failure.what();
            throw;
        }
    }
    bool isDone() const override { return stream_.isDone(); }

    /// Also in what nobody has read. Empty if there is nothing.
    const std::string& findDamage() {
        try {
            if (damage_.empty())
                readToEnd(*this);
        } catch (const std::exception&) { // is kept
        }
        return damage_;
    }

private:
    opc::InputStream& stream_;
    std::string damage_;
};

} // namespace

XmlReader::XmlReader(const std::wstring& path, Report& report)
    : report_(report),
      parser_(boost::make_shared<opc::XmlBudget>(getFileSize(path))) {
    parser_.setNamespaceAware(true);
}

XmlReader::XmlReader(Report& report) : report_(report) {
    parser_.setNamespaceAware(true);
}

opc::DocumentScope XmlReader::read(const opc::PhysicalPart& part, const Place& place) {
    try {
        const auto stream = part.openInput();
        return read(*stream, place);
    } catch (const std::exception& failure) {
        reportDamage(place, failure.what());
        return {};
    }
}

opc::DocumentScope XmlReader::read(opc::InputStream& stream, const Place& place) {
    WatchedStream watched(stream);
    opc::DocumentScope document;
    std::string fault;
    try {
        document = opc::DocumentScope(parser_.readDocument(watched));
    } catch (const std::exception& failure) {
        fault = failure.what();
    }
    if (const std::string& damage = watched.findDamage(); !damage.empty()) {
        reportDamage(place, damage);
        return {};
    }
    if (!document) {
        report_.add(Code::notWellFormed, place, L"it can't be parsed: " + fromUtf8(fault));
        return {};
    }
    const std::wstring encoding = opc::toWideString(document->getXmlEncoding());
    if (!isUsualEncoding(encoding))
        report_.add(Code::notWellFormed, place,
                    L"its encoding is " + quote(encoding) + L", which is neither UTF-8 nor UTF-16");
    return document;
}

void XmlReader::readThrough(const opc::PhysicalPart& part, const Place& place) {
    try {
        readToEnd(*part.openInput());
    } catch (const std::exception& failure) {
        reportDamage(place, failure.what());
    }
}

void XmlReader::reportDamage(const Place& place, const std::string& damage) {
    report_.add(Code::unreadablePart, place, L"it can't be read: " + fromUtf8(damage));
}

std::uint64_t getFileSize(const std::wstring& path) {
    std::error_code failure;
    const std::uintmax_t size = std::filesystem::file_size(toUtf8(path), failure);
    return failure ? 0 : size;
}

std::wstring getAttribute(const xercesc::DOMElement& element, const XMLCh* name) {
    return opc::toWideString(element.getAttribute(name));
}

} // namespace vellox::check
