/// @file
/// XML parts as documents, with findings instead of exceptions.

#ifndef VELLOX_CHECK_XMLREADER_H
#define VELLOX_CHECK_XMLREADER_H

#include <cstdint>
#include <string>

#include "vellox/check/Report.h"
#include "vellox/opc/BoundedParser.h"
#include "vellox/opc/PhysicalPackage.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"

namespace vellox::check {

class XmlReader {
public:
    /// @param path of the package, whose size bounds what reading it may cost
    XmlReader(const std::wstring& path, Report& report);
    /// Of documents that the library has made itself, which may cost what they do.
    explicit XmlReader(Report& report);

    /// @return null if the part can't be read, which is reported
    opc::DocumentScope read(const opc::PhysicalPart& part, const Place& place);
    opc::DocumentScope read(opc::InputStream& stream, const Place& place);
    /// Reads a part of any kind to its end, for its checksum.
    void readThrough(const opc::PhysicalPart& part, const Place& place);

private:
    void reportDamage(const Place& place, const std::string& damage);

    Report& report_;
    opc::XercesProcess xerces_;
    opc::BoundedParser parser_;
};

/// What a package takes on disk; 0 for a folder.
std::uint64_t getFileSize(const std::wstring& path);

/// An attribute of no namespace, or the empty text.
std::wstring getAttribute(const xercesc::DOMElement& element, const XMLCh* name);

} // namespace vellox::check

#endif
