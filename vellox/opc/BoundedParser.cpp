#include "vellox/opc/BoundedParser.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/NodeLinks.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesString.h"

#include <boost/algorithm/string/predicate.hpp>
#include <string>
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

/// Watches what stands before the root element for a document type declaration. The scanner in use would
/// skip one without a word, but a package must not have any. Zero bytes are passed over, so that UTF-16
/// needs no decoding here.
class PrologGuard {
public:
    void watch(const XMLByte* bytes, XMLSize_t count) {
        for (XMLSize_t i = 0; i < count && state_ != State::Done; ++i)
            if (bytes[i] != 0)
                take(static_cast<char>(bytes[i]));
    }

private:
    enum class State { Between, Markup, Comment, Instruction, Done };

    void take(char c) {
        if (state_ == State::Between) {
            if (c == '<')
                enter(State::Markup);
        } else if (state_ == State::Markup) {
            seen_ += c;
            judgeMarkup();
        } else {
            seen_ = (seen_ + c).substr(seen_.size() >= 3 ? 1 : 0);
            const bool isEnd =
                state_ == State::Comment ? seen_ == "-->" : boost::algorithm::ends_with(seen_, "?>");
            if (isEnd)
                enter(State::Between);
        }
    }

    void judgeMarkup() {
        static const std::string comment = "!--", documentType = "!DOCTYPE";
        if (seen_ == documentType)
            throw Exception("it has a document type declaration");
        if (seen_ == comment)
            enter(State::Comment);
        else if (seen_ == "?")
            enter(State::Instruction);
        else if (comment.compare(0, seen_.size(), seen_) != 0 &&
                 documentType.compare(0, seen_.size(), seen_) != 0)
            state_ = State::Done;
    }

    void enter(State state) {
        state_ = state;
        seen_.clear();
    }

    State state_ = State::Between;
    std::string seen_;
};

class GuardedStream : public BinInputStream {
public:
    explicit GuardedStream(InputStream& stream) : stream_(stream) {}

    XMLFilePos curPos() const override { return position_; }
    XMLSize_t readBytes(XMLByte* const target, const XMLSize_t count) override {
        const std::size_t read = stream_.read(target, count);
        position_ += read;
        if (position_ > kMaxXmlBytes)
            throw Exception("it is larger than " + std::to_string(kMaxXmlBytes >> 20) + " MB");
        guard_.watch(target, read);
        return read;
    }
    const XMLCh* getContentType() const override { return nullptr; }

private:
    InputStream& stream_;
    PrologGuard guard_;
    XMLFilePos position_ = 0;
};

class GuardedSource : public InputSource {
public:
    explicit GuardedSource(InputStream& stream) : stream_(stream) {}
    BinInputStream* makeStream() const override { return new GuardedStream(stream_); }

private:
    InputStream& stream_;
};

std::string narrow(const XMLCh* text) {
    return vellox::toUtf8(toWideString(text));
}

} // namespace

BoundedParser::BoundedParser() {
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
    nodes_ = 0;
    error_.clear();
    GuardedSource source(stream);
    const Wrapper4InputSource input(&source, false);
    try {
        DocumentScope document(parse(&input));
        if (!error_.empty())
            throw Exception(error_);
        if (!document || !document->getDocumentElement())
            throw Exception("it has no root element");
        return document.release();
    } catch (const OutOfMemoryException&) {
        throw Exception("it needs more memory than there is");
    } catch (const XMLException& failure) {
        throw Exception(narrow(failure.getMessage()));
    } catch (const SAXException& failure) {
        throw Exception(narrow(failure.getMessage()));
    } catch (const DOMException& failure) {
        throw Exception(narrow(failure.getMessage()));
    }
}

void BoundedParser::startElement(const XMLElementDecl& declaration, const unsigned int uriId,
                                 const XMLCh* const prefix, const RefVectorOf<XMLAttr>& attributes,
                                 const XMLSize_t attributeCount, const bool isEmpty, const bool isRoot) {
    nodes_ += 1 + attributeCount;
    if (nodes_ > kMaxXmlNodes)
        throw Exception("it has more than " + std::to_string(kMaxXmlNodes) + " elements and attributes");
    if (++depth_ > kMaxElementDepth)
        throw Exception("its elements stand more than " + std::to_string(kMaxElementDepth) + " deep");
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
        element->fAttributes->setNamedItemFast(
            makeAttribute(fDocument, attribute.getName(), attribute.getValue()));
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
    const bool isMore = fCurrentNode->getNodeType() == DOMNode::TEXT_NODE;
    if (isCData || isMore || !isWithinPlainElement())
        return DOMLSParserImpl::docCharacters(text, length, isCData);
    fCurrentNode = new (fDocument, DOMMemoryManager::TEXT_OBJECT) DOMTextImpl(fDocument, text, length);
    appendNew(static_cast<DOMElementImpl&>(*fCurrentParent), *fCurrentNode);
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
