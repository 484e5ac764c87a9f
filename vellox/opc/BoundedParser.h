/// @file
/// A parser of Xerces that a hostile document can't hurt.

#ifndef VELLOX_OPC_BOUNDEDPARSER_H
#define VELLOX_OPC_BOUNDEDPARSER_H

#include <string>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/DOMLSParserImpl.hpp>

#include "vellox/opc/Streams.h"

namespace opc {

/// Parses for well-formedness only, fetches nothing, refuses document types, and counts depth and nodes
/// while the document grows. What documents mostly consist of, elements within others and their text, it puts
/// in place itself, which takes the base class much longer.
class BoundedParser : public xercesc::DOMLSParserImpl, private xercesc::DOMErrorHandler {
public:
    BoundedParser();

    /// Names of elements and attributes stay plain strings, prefix and all, unless this is switched on.
    void setNamespaceAware(bool aware);
    /// @return a document that the caller ends with release()
    /// @throws opc::Exception
    xercesc::DOMDocument* readDocument(InputStream& stream);

    void startElement(const xercesc::XMLElementDecl& declaration, const unsigned int uriId,
                      const XMLCh* const prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                      const XMLSize_t attributeCount, const bool isEmpty, const bool isRoot) override;
    void endElement(const xercesc::XMLElementDecl& declaration, const unsigned int uriId, const bool isRoot,
                    const XMLCh* const prefix) override;
    void docCharacters(const XMLCh* const text, const XMLSize_t length, const bool isCData) override;

private:
    void appendElement(const XMLCh* name, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                       XMLSize_t attributeCount);
    bool isWithinPlainElement() const;
    bool handleError(const xercesc::DOMError& error) override;

    std::string error_; // the first; empty if there is none
    unsigned depth_ = 0;
    unsigned long long nodes_ = 0;
    bool isNamespaceAware_ = false;
};

} // namespace opc

#endif
