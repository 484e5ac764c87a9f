/// @file
/// A parser of Xerces that a hostile document can't hurt.

#ifndef VELLOX_OPC_BOUNDEDPARSER_H
#define VELLOX_OPC_BOUNDEDPARSER_H

#include <boost/shared_ptr.hpp>
#include <cstdint>
#include <string>
#include <unordered_set>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/DOMLSParserImpl.hpp>

#include "vellox/opc/Streams.h"
#include "vellox/opc/XmlBudget.h"

namespace opc {

/// Parses for well-formedness only, fetches nothing, refuses document types, and counts depth, nodes and names
/// while the document grows. What documents mostly consist of, elements within others and their text, it puts
/// in place itself, which takes the base class much longer.
class BoundedParser : public xercesc::DOMLSParserImpl, private xercesc::DOMErrorHandler {
public:
    /// @param budget what all that this parser reads is charged to; empty for none
    explicit BoundedParser(boost::shared_ptr<XmlBudget> budget = {});

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
    void docComment(const XMLCh* const text) override;
    void docPI(const XMLCh* const target, const XMLCh* const data) override;
    void XMLDecl(const XMLCh* const version, const XMLCh* const encoding, const XMLCh* const standalone,
                 const XMLCh* const actualEncoding) override;

private:
    void appendElement(const XMLCh* name, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                       XMLSize_t attributeCount);
    bool isWithinPlainElement() const;
    bool handleError(const xercesc::DOMError& error) override;
    void charge(std::uint64_t cost);
    void countNodes(XMLSize_t count);
    void countName(const XMLCh* name);
    void countNamespace(const xercesc::XMLAttr& attribute);

    boost::shared_ptr<XmlBudget> budget_;
    std::string error_; // the first; empty if there is none
    bool isNamespaceAware_ = false;
    unsigned depth_ = 0;
    std::unordered_set<std::size_t> namespaces_; // likewise, with the prefixes that stand for them
    std::uint64_t nodes_ = 0;
    std::unordered_set<std::size_t> names_; // by their hashes: two that share one count once
};

} // namespace opc

#endif
