/// @file
/// A serializer of Xerces that is quick where a document is plain.

#ifndef VELLOX_OPC_UTF8SERIALIZER_H
#define VELLOX_OPC_UTF8SERIALIZER_H

#include <functional>
#include <map>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMLSSerializerImpl.hpp>

#include "vellox/opc/MarkupBuffer.h"
#include "vellox/opc/Streams.h"

namespace opc {

/// What stands in elements behind their children, and was never made nodes of.
using Contents = std::map<xercesc::DOMNode*, MarkupBuffer, std::less<>>;

/// Writes a document in UTF-8, to the byte as its base class does with no parameter set. A document of
/// elements and attributes without namespaces, text, comments and processing instructions, which is all that
/// BoundedParser makes of nearly every part, is written at once into a buffer that stays from document to
/// document. For any other the base class is asked, and what that can't write fails as it does there.
class Utf8Serializer : public xercesc::DOMLSSerializerImpl {
public:
    /// @throws opc::Exception
    void writeDocument(xercesc::DOMDocument& document, OutputStream& stream);

    /// The same into a buffer, with contents. A document that isn't plain may come out of it changed.
    /// @throws opc::Exception
    static void appendDocument(xercesc::DOMDocument& document, const Contents& contents, MarkupBuffer& out);
    /// A plain document, or one node of it.
    /// @return false if it wasn't plain; what has been written then counts for nothing
    static bool appendPlain(const xercesc::DOMNode& node, const Contents& contents, MarkupBuffer& out);

private:
    MarkupBuffer buffer_;
};

} // namespace opc

#endif
