/// @file
/// A serializer of Xerces that is quick where a document is plain.

#ifndef VELLOX_OPC_UTF8SERIALIZER_H
#define VELLOX_OPC_UTF8SERIALIZER_H

#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMLSSerializerImpl.hpp>

#include "vellox/opc/Streams.h"

namespace opc {

/// Writes a document in UTF-8, to the byte as its base class does with no parameter set. A document of
/// elements and attributes without namespaces, text, comments and processing instructions, which is all that
/// BoundedParser makes of nearly every part, is written at once into a buffer that stays from document to
/// document. For any other the base class is asked, and what that can't write fails as it does there.
class Utf8Serializer : public xercesc::DOMLSSerializerImpl {
public:
    /// @throws opc::Exception
    void writeDocument(const xercesc::DOMDocument& document, OutputStream& stream);

private:
    void writeByBaseClass(const xercesc::DOMDocument& document, OutputStream& stream);

    std::string buffer_;
};

} // namespace opc

#endif
