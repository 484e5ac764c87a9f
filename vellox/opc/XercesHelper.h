/// @file
/// From a stream to a DOM document and back.

#ifndef VELLOX_OPC_XERCESHELPER_H
#define VELLOX_OPC_XERCESHELPER_H

#include <boost/shared_ptr.hpp>
#include <memory>
#include <string>
#include <xercesc/dom/DOM.hpp>

#include "vellox/opc/Streams.h"

namespace opc {

class XmlBudget;

/// Class-level operations only. A program that uses them holds a XercesProcess.
class XercesHelper {
public:
    /// A parser that holds to the limits of Limits.h and whose documents belong to the caller. End it with
    /// release().
    /// @param budget what all that it reads is charged to; empty for none
    static xercesc::DOMLSParser* createParser(boost::shared_ptr<XmlBudget> budget = {});
    /// A serializer that writes UTF-8 and adds nothing to a document. End it with release().
    static xercesc::DOMLSSerializer* createWriter();

    /// Parses a whole stream. The last three arguments stand for options of which only these values are in
    /// use.
    /// @return a document that the caller ends with release()
    /// @throws opc::Exception for what isn't well-formed, has a document type declaration, or goes beyond
    ///         a limit; the text names line and column where these are known
    static xercesc::DOMDocument* readDocumentFromStream(xercesc::DOMLSParser* parser, InputStream& stream,
                                                        bool validate, const std::wstring& encoding,
                                                        const std::wstring& systemId);
    /// Writes a document as it stands, in UTF-8, with a serializer of createWriter().
    /// @throws opc::Exception
    static void writeDocumentToStream(xercesc::DOMLSSerializer* serializer, xercesc::DOMDocument* document,
                                      OutputStream& stream);

    /// A new document with a root element, in no namespace mode.
    static xercesc::DOMDocument* createDocument(const XMLCh* rootName);
};

/// Ends a Xerces object that its maker has handed over.
struct Release {
    template <class Object> void operator()(Object* object) const { object->release(); }
};

using ParserScope = std::unique_ptr<xercesc::DOMLSParser, Release>;
using SerializerScope = std::unique_ptr<xercesc::DOMLSSerializer, Release>;
using DocumentScope = std::unique_ptr<xercesc::DOMDocument, Release>;

} // namespace opc

#endif
