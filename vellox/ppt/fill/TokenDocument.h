/// @file
/// A document with its tokens filled.

#ifndef VELLOX_PPT_FILL_TOKENDOCUMENT_H
#define VELLOX_PPT_FILL_TOKENDOCUMENT_H

#include <functional>
#include <string>
#include <vector>

#include "vellox/ppt/fill/TokenValues.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class TokenDocument {
public:
    /// What is to take the place of a whole shape.
    struct Successor {
        std::wstring uid; ///< of the shape
        HvContentPtr content;
        Place place; ///< that the shape gives itself; empty if it gives none
        std::wstring token;
    };
    enum class Fault { NoValue, Refused };
    struct Report {
        std::wstring uid; ///< of the shape, or empty
        Fault fault;
        std::wstring token;
    };

    /// Whether a document can have tokens at all. Most can't, and needn't be copied.
    static bool mayHaveTokens(xercesc::DOMDocument* document);

    /// Tells of a shape, by its uid, whether what the document has of it comes into the deck.
    using IsShown = std::function<bool(const std::wstring&)>;

    TokenDocument(const OwnedDocument& document, TokenValues& values, IsShown isShown = nullptr);
    /// Fills a copy of the document.
    void fill();

    OwnedDocument& getDocument() { return document_; }
    unsigned int getCount() const { return count_; }
    /// Characters that XML can't hold, which were left out.
    std::size_t getDropped() const { return dropped_; }
    const std::vector<Successor>& getSuccessors() const { return successors_; }
    const std::vector<Report>& getReports() const { return reports_; }

private:
    void visit(xercesc::DOMElement& element, const TokenScope* scope);
    bool fillShape(xercesc::DOMElement& shape);
    bool repeat(xercesc::DOMElement& element);
    void fillTable(xercesc::DOMElement& table, const TokenScope* scope);
    void fillParagraph(xercesc::DOMElement& paragraph, const TokenScope* scope);
    void fillList(xercesc::DOMElement& paragraph, const Token& token, const HvList& list);
    void fillRuns(xercesc::DOMElement& paragraph, const std::vector<Token>& tokens, const TokenScope* scope);
    void report(Fault fault, const Token& token);

    OwnedDocument document_;
    TokenValues& values_;
    IsShown isShown_;
    std::wstring uid_;           // of the shape that is being visited
    bool isInMergedRow_ = false; // whose paragraphs aren't repeated either
    unsigned int count_ = 0;
    std::size_t dropped_ = 0;
    std::vector<Successor> successors_;
    std::vector<Report> reports_;
};

} // namespace vellox::ppt

#endif
