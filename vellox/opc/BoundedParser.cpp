#include "vellox/opc/BoundedParser.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/MarkupGuard.h"
#include "vellox/opc/NodeLinks.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/opc/XercesString.h"

#include <algorithm>
#include <boost/algorithm/string/predicate.hpp>
#include <functional>
#include <new>
#include <string>
#include <string_view>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/BinInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace opc {

namespace {

using namespace xercesc;

class GuardedStream : public BinInputStream {
public:
    GuardedStream(InputStream& stream, XmlBudget* budget) : stream_(stream), budget_(budget) {}

    XMLFilePos curPos() const override { return position_; }
    XMLSize_t readBytes(XMLByte* const target, const XMLSize_t count) override {
        const std::size_t read = stream_.read(target, count);
        position_ += read;
        if (position_ > kMaxXmlBytes)
            throw Exception("it is larger than " + std::to_string(kMaxXmlBytes >> 20) + " MB");
        if (budget_)
            budget_->take(read * kXmlByteCost);
        guard_.watch(target, read);
        return read;
    }
    const XMLCh* getContentType() const override { return nullptr; }

private:
    InputStream& stream_;
    XmlBudget* budget_;
    MarkupGuard guard_;
    XMLFilePos position_ = 0;
};

class GuardedSource : public InputSource {
public:
    GuardedSource(InputStream& stream, XmlBudget* budget) : stream_(stream), budget_(budget) {}
    BinInputStream* makeStream() const override { return new GuardedStream(stream_, budget_); }

private:
    InputStream& stream_;
    XmlBudget* budget_;
};

std::string narrow(const XMLCh* text) {
    return vellox::toUtf8(toWideString(text));
}

// Those in which markup looks as MarkupGuard expects it. Packages are UTF-8 or UTF-16 by their standard.
bool isReadable(const std::string& encoding) {
    static const char* const families[] = {"UTF-8",    "UTF8",        "UTF-16",    "UTF16",
                                           "US-ASCII", "ASCII",       "ISO-8859-", "ISO8859",
                                           "LATIN1",   "WINDOWS-125", "CP125"};
    return encoding.empty() || std::any_of(std::begin(families), std::end(families), [&](const char* family) {
               return boost::algorithm::istarts_with(encoding, family);
           });
}

std::size_t hashName(const XMLCh* name) {
    return std::hash<std::u16string_view>()(name);
}

} // namespace

BoundedParser::BoundedParser(boost::shared_ptr<XmlBudget> budget)
    : DOMLSParserImpl(nullptr, &getXercesMemory()),
      budget_(std::move(budget)) {
    DOMConfiguration* config = getDomConfig();
    config->setParameter(XMLUni::fgXercesScannerName, XMLUni::fgWFXMLScanner);
    config->setParameter(XMLUni::fgXercesSchema, false);
    config->setParameter(XMLUni::fgXercesLoadExternalDTD, false);
    config->setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, true);
    config->setParameter(XMLUni::fgDOMErrorHandler, static_cast<DOMErrorHandler*>(this));
    setNamespaceAware(false);
}

void BoundedParser::setNamespaceAware(bool aware) {
    getDomConfig()->setParameter(XMLUni::fgDOMNamespaces, aware);
    isNamespaceAware_ = aware;
}

DOMDocument* BoundedParser::readDocument(InputStream& stream) {
    depth_ = 0;
    namespaces_.clear();
    nodes_ = 0;
    names_.clear();
    error_.clear();
    charge(kXmlDocumentCost);
    GuardedSource source(stream, budget_.get());
    const Wrapper4InputSource input(&source, false);
    try {
        DocumentScope document(parse(&input));
        if (!error_.empty())
            throw Exception(error_);
        if (!document || !document->getDocumentElement())
            throw Exception("it has no root element");
        return document.release();
    } catch (const OutOfMemoryException&) { // not from the memory of this library
        throw std::bad_alloc();
    } catch (const XMLException& failure) {
        throw Exception(narrow(failure.getMessage()));
    } catch (const SAXException& failure) {
        throw Exception(narrow(failure.getMessage()));
    } catch (const DOMException& failure) {
        throw Exception(narrow(failure.getMessage()));
    }
}

void BoundedParser::charge(std::uint64_t cost) {
    if (budget_)
        budget_->take(cost);
}

void BoundedParser::countNodes(XMLSize_t count) {
    nodes_ += count;
    if (nodes_ > kMaxXmlNodes)
        throw Exception("it has more than " + std::to_string(kMaxXmlNodes) +
                        " elements, attributes, texts and comments");
    charge(count * kXmlNodeCost);
}

void BoundedParser::countName(const XMLCh* name) {
    names_.insert(hashName(name));
    if (names_.size() > kMaxXmlNames)
        throw Exception("it has more than " + std::to_string(kMaxXmlNames) +
                        " different names of elements and attributes");
}

void BoundedParser::countNamespace(const XMLAttr& attribute) {
    static constexpr XMLCh kXmlns[] = u"xmlns";
    const bool declares =
        XMLString::equals(attribute.getPrefix(), kXmlns) || XMLString::equals(attribute.getName(), kXmlns);
    if (declares)
        namespaces_.insert(hashName(attribute.getName()) * 31 + hashName(attribute.getValue()));
    if (namespaces_.size() > kMaxNamespaces)
        throw Exception("it declares more than " + std::to_string(kMaxNamespaces) + " namespaces");
}

void BoundedParser::startElement(const XMLElementDecl& declaration, const unsigned int uriId,
                                 const XMLCh* const prefix, const RefVectorOf<XMLAttr>& attributes,
                                 const XMLSize_t attributeCount, const bool isEmpty, const bool isRoot) {
    countNodes(1 + attributeCount);
    if (++depth_ > kMaxElementDepth)
        throw Exception("its elements stand more than " + std::to_string(kMaxElementDepth) + " deep");
    countName(declaration.getFullName());
    for (XMLSize_t i = 0; i < attributeCount; ++i) {
        const XMLAttr& attribute = *attributes.elementAt(i);
        countName(attribute.getName());
        charge(XMLString::stringLen(attribute.getValue()) * kXmlAttributeCharacterCost);
        if (isNamespaceAware_)
            countNamespace(attribute);
    }
    if (isRoot || !isWithinPlainElement())
        return DOMLSParserImpl::startElement(declaration, uriId, prefix, attributes, attributeCount, isEmpty,
                                             isRoot);
    appendElement(declaration.getFullName(), attributes, attributeCount);
    if (isEmpty)
        endElement(declaration, uriId, isRoot, prefix);
}

bool BoundedParser::isWithinPlainElement() const {
    return !isNamespaceAware_ && fCurrentParent->getNodeType() == DOMNode::ELEMENT_NODE;
}

void BoundedParser::appendElement(const XMLCh* name, const RefVectorOf<XMLAttr>& attributes,
                                  XMLSize_t attributeCount) {
    DOMElementImpl* const element = makeElement(fDocument, name);
    if (attributeCount > 0)
        element->fAttributes->reserve(attributeCount);
    for (XMLSize_t i = 0; i < attributeCount; ++i) {
        const XMLAttr& attribute = *attributes.elementAt(i);
        AttributeLinks::put(*element, *makeAttribute(fDocument, attribute.getName(), attribute.getValue()));
    }
    appendNew(static_cast<DOMElementImpl&>(*fCurrentParent), *element);
    fCurrentParent = fCurrentNode = element;
}

void BoundedParser::endElement(const XMLElementDecl& declaration, const unsigned int uriId, const bool isRoot,
                               const XMLCh* const prefix) {
    --depth_;
    if (isRoot || !isWithinPlainElement())
        return DOMLSParserImpl::endElement(declaration, uriId, isRoot, prefix);
    fCurrentNode = fCurrentParent;
    fCurrentParent = NodeLinks::of(*fCurrentNode).up.fOwnerNode;
}

void BoundedParser::docCharacters(const XMLCh* const text, const XMLSize_t length, const bool isCData) {
    countNodes(1);
    charge(length * kXmlTextCharacterCost);
    const bool isMore = fCurrentNode->getNodeType() == DOMNode::TEXT_NODE;
    if (isCData || isMore || !isWithinPlainElement())
        return DOMLSParserImpl::docCharacters(text, length, isCData);
    fCurrentNode = new (fDocument, DOMMemoryManager::TEXT_OBJECT) DOMTextImpl(fDocument, text, length);
    appendNew(static_cast<DOMElementImpl&>(*fCurrentParent), *fCurrentNode);
}

void BoundedParser::docComment(const XMLCh* const text) {
    countNodes(1);
    charge(XMLString::stringLen(text) * kXmlTextCharacterCost);
    DOMLSParserImpl::docComment(text);
}

void BoundedParser::docPI(const XMLCh* const target, const XMLCh* const data) {
    countNodes(1);
    countName(target);
    charge(XMLString::stringLen(data) * kXmlTextCharacterCost);
    DOMLSParserImpl::docPI(target, data);
}

void BoundedParser::XMLDecl(const XMLCh* const version, const XMLCh* const encoding,
                            const XMLCh* const standalone, const XMLCh* const actualEncoding) {
    if (!isReadable(narrow(encoding)))
        throw Exception("it is in the encoding " + narrow(encoding) + ", and not in UTF-8 or UTF-16");
    DOMLSParserImpl::XMLDecl(version, encoding, standalone, actualEncoding);
}

// The parser swallows what is thrown here, so that the error is kept until it is done.
bool BoundedParser::handleError(const DOMError& error) {
    if (error.getSeverity() == DOMError::DOM_SEVERITY_WARNING)
        return true;
    const DOMLocator* place = error.getLocation();
    if (error_.empty())
        error_ = narrow(error.getMessage()) + " (line " + std::to_string(place->getLineNumber()) +
                 ", column " + std::to_string(place->getColumnNumber()) + ")";
    return false;
}

} // namespace opc
