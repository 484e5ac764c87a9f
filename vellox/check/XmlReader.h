/// @file
/// XML parts as documents, with findings instead of exceptions.

#ifndef VELLOX_CHECK_XMLREADER_H
#define VELLOX_CHECK_XMLREADER_H

#include <string>

#include "vellox/check/Report.h"
#include "vellox/opc/BoundedParser.h"
#include "vellox/opc/PhysicalPackage.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"

namespace vellox::check {

class XmlReader {
public:
    explicit XmlReader(Report& report);

    /// @return null if the part can't be read, which is reported
    opc::DocumentScope read(const opc::PhysicalPart& part, const Place& place);
    opc::DocumentScope read(opc::InputStream& stream, const Place& place);
    /// Reads a part of any kind to its end, for its checksum.
    /// @return false if it can't be read, which is reported
    bool readThrough(const opc::PhysicalPart& part, const Place& place);

private:
    Report& report_;
    opc::XercesProcess xerces_;
    opc::BoundedParser parser_;
};

/// An attribute of no namespace, or the empty text.
std::wstring getAttribute(const xercesc::DOMElement& element, const XMLCh* name);

} // namespace vellox::check

#endif
