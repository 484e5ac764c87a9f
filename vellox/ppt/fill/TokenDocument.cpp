#include "vellox/ppt/fill/TokenDocument.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/fill/RunTexts.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/xml/BodyText.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <boost/algorithm/string/trim.hpp>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr unsigned int kDeepestLevel = 8; // from 0
constexpr XMLCh kRow[] = u"a:tr";

// The token that is all of a text, but for blanks around it; null if there is more, or none.
const Token* findOnly(const std::wstring& text, const std::vector<Token>& tokens) {
    if (tokens.size() != 1 || tokens.front().name.empty())
        return nullptr;
    const std::wstring around = text.substr(0, tokens.front().start) + text.substr(tokens.front().end);
    return boost::algorithm::trim_copy(around).empty() ? &tokens.front() : nullptr;
}

bool standsAlone(const HvContentPtr& content) {
    return getObjectImpl<PictureImpl>(content) || getObjectImpl<TableImpl>(content) ||
           TableContent::cast(content);
}

std::vector<DOMElement*> findBelow(DOMElement& element, const XMLCh* name) {
    std::vector<DOMElement*> found;
    for (DOMElement* child : getChildElements(&element)) {
        if (hasName(*child, name))
            found.push_back(child);
        else
            for (DOMElement* below : findBelow(*child, name))
                found.push_back(below);
    }
    return found;
}

// Cells that reach over rows would reach over copies.
bool isMerged(DOMElement& row) {
    const std::vector<DOMElement*> cells = findBelow(row, u"a:tc");
    return std::any_of(cells.begin(), cells.end(), [](const DOMElement* cell) {
        return cell->hasAttribute(u"rowSpan") || cell->hasAttribute(u"vMerge");
    });
}

} // namespace

bool TokenDocument::mayHaveTokens(DOMDocument* document) {
    for (const DOMElement* text : getElementsByName(document, xml::kAT)) {
        const std::u16string content(text->getTextContent());
        if (content.find_first_of(u"{}") != std::u16string::npos)
            return true;
    }
    return false;
}

TokenDocument::TokenDocument(const OwnedDocument& document, TokenValues& values, IsShown isShown)
    : document_(copyDocument(document)),
      values_(values),
      isShown_(std::move(isShown)) {}

void TokenDocument::fill() {
    if (DOMElement* root = document_->getDocumentElement())
        visit(*root, nullptr);
}

void TokenDocument::report(Fault fault, const Token& token) {
    reports_.push_back({uid_, fault, token.name});
}

void TokenDocument::visit(DOMElement& element, const TokenScope* scope) {
    const std::wstring outer = uid_;
    if (element.hasAttribute(xml::kDataUid)) {
        const std::wstring uid = getAttribute(&element, xml::kDataUid);
        if (isShown_ && !isShown_(uid))
            return;
        uid_ = uid;
    }
    if (hasName(element, xml::kAP)) {
        if (scope || isInMergedRow_ || !repeat(element))
            fillParagraph(element, scope);
    } else if (hasName(element, xml::kATbl)) {
        fillTable(element, scope);
    } else if (!hasName(element, xml::kSp) || !fillShape(element)) {
        for (DOMElement* child : getChildElements(&element))
            visit(*child, scope);
    }
    uid_ = outer;
}

// A picture or a table for the token that is all of a shape.
bool TokenDocument::fillShape(DOMElement& shape) {
    const std::wstring text = readBody(findChild(&shape, xml::kTxBody));
    const std::vector<Token> tokens = findTokens(text);
    const Token* token = findOnly(text, tokens);
    const Content* value = token ? values_.find(*token, nullptr) : nullptr;
    if (!value || !standsAlone(value->get()))
        return false;
    if (uid_ != getAttribute(&shape, xml::kDataUid) || uid_.empty()) {
        report(Fault::Refused, *token);
        return true;
    }
    successors_.push_back({uid_, value->get(), readPlace(shape), token->name});
    ++count_;
    return true;
}

// A row of a table, or a paragraph, for each of the records that its tokens speak of.
bool TokenDocument::repeat(DOMElement& element) {
    std::vector<DOMElement*> paragraphs{&element};
    if (!hasName(element, xml::kAP))
        paragraphs = findBelow(element, xml::kAP);
    for (DOMElement* paragraph : paragraphs) {
        for (const Token& token : findTokens(RunTexts(*paragraph).getText())) {
            const std::vector<Contents>* records = values_.findRecords(token);
            if (!records)
                continue;
            for (const Contents& record : *records) {
                auto* copy = static_cast<DOMElement*>(element.cloneNode(true));
                if (hasName(element, kRow) && findChild(copy, u"a:extLst"))
                    removeNode(
                        findChild(copy, u"a:extLst")); // with the number by which programs know a row again
                element.getParentNode()->insertBefore(copy, &element);
                const TokenScope scope{token.getFirst(), record};
                visit(*copy, &scope);
            }
            DOMElement* body = static_cast<DOMElement*>(element.getParentNode());
            removeNode(&element);
            if (paragraph == &element && !findChild(body, xml::kAP))
                appendElement(appendElement(body, xml::kAP), xml::kAEndParaRPr);
            return true;
        }
    }
    return false;
}

// A frame is as high as its rows.
void TokenDocument::fillTable(DOMElement& table, const TokenScope* scope) {
    bool isRepeated = false;
    for (DOMElement* child : getChildElements(&table)) {
        isInMergedRow_ = hasName(*child, kRow) && isMerged(*child);
        if (!scope && !isInMergedRow_ && hasName(*child, kRow) && repeat(*child))
            isRepeated = true;
        else
            visit(*child, scope);
        isInMergedRow_ = false;
    }
    DOMNode* frame = &table;
    while (frame && !hasName(*frame, xml::kGraphicFrame))
        frame = frame->getParentNode();
    DOMElement* extent = isRepeated ? findDescendant(frame, {xml::kXfrm, xml::kAExt}) : nullptr;
    if (!extent)
        return;
    double height = 0;
    for (const DOMElement* row : getChildElements(&table))
        height += hasName(*row, kRow) ? str2double(getAttribute(row, u"h")) : 0;
    if (height > 0)
        setAttribute(extent, xml::kCy, num2str(truncateToInt(height)));
}

void TokenDocument::fillParagraph(DOMElement& paragraph, const TokenScope* scope) {
    const std::wstring text = RunTexts(paragraph).getText();
    const std::vector<Token> tokens = findTokens(text);
    if (tokens.empty())
        return;
    if (const Token* token = findOnly(text, tokens)) {
        const Content* value = values_.find(*token, scope);
        if (const auto list = value ? ListContent::getValue(value->get()) : nullptr)
            return fillList(paragraph, *token, *list);
    }
    fillRuns(paragraph, tokens, scope);
}

namespace {

struct Item {
    std::wstring text;
    unsigned int level;
};

// @return false if an item is no text
bool collectItems(const HvList& list, const std::wstring& form, const NumberMarks& marks, unsigned int level,
                  std::vector<Item>& items) {
    for (unsigned int i = 0; i < list.getSize(); ++i) {
        const HvContentPtr item = list.getItem(i);
        if (const auto inner = ListContent::getValue(item)) {
            if (level >= 1000 || !collectItems(*inner, form, marks, level + 1, items))
                return false;
        } else if (const auto text = toText(item, form, marks)) {
            items.push_back({*text, level});
        } else {
            return false;
        }
    }
    return true;
}

bool hasSibling(const DOMElement& paragraph) {
    for (const DOMElement* child : getChildElements(paragraph.getParentNode()))
        if (child != &paragraph && hasName(*child, xml::kAP))
            return true;
    return false;
}

void setLevel(DOMElement& paragraph, unsigned int level) {
    DOMElement* properties = findChild(&paragraph, xml::kAPPr);
    const unsigned int present = str2uint(getAttribute(properties, xml::kLvl));
    if (level > 0)
        setAttribute(requireFirstChild(&paragraph, xml::kAPPr), xml::kLvl,
                     num2str(std::min(std::min(present, kDeepestLevel) + level, kDeepestLevel)));
}

} // namespace

void TokenDocument::fillList(DOMElement& paragraph, const Token& token, const HvList& list) {
    std::vector<Item> items;
    if (!collectItems(list, token.form, values_.getMarks(), 0, items))
        return report(Fault::Refused, token);
    ++count_;
    if (items.empty() && !hasSibling(paragraph))
        items.push_back({});
    for (const Item& item : items) {
        auto* copy = static_cast<DOMElement*>(paragraph.cloneNode(true));
        paragraph.getParentNode()->insertBefore(copy, &paragraph);
        setLevel(*copy, item.level);
        RunTexts runs(*copy);
        dropped_ += runs.apply({{token.start, token.end, item.text}});
    }
    removeNode(&paragraph);
}

void TokenDocument::fillRuns(DOMElement& paragraph, const std::vector<Token>& tokens,
                             const TokenScope* scope) {
    RunTexts runs(paragraph);
    std::vector<TextEdit> edits;
    for (const Token& token : tokens) {
        if (token.name.empty()) {
            edits.push_back({token.start, token.end, runs.getText().substr(token.start, 1)});
            continue;
        }
        const Content* value = values_.find(token, scope);
        const auto text = value ? toText(value->get(), token.form, values_.getMarks()) : std::nullopt;
        if (!value) // of one for rows, there are values that can't stand here
            report(!scope && values_.findRecords(token) ? Fault::Refused : Fault::NoValue, token);
        else if (!text)
            report(Fault::Refused, token);
        else
            edits.push_back({token.start, token.end, *text});
        count_ += text ? 1 : 0;
    }
    dropped_ += runs.apply(edits);
}

} // namespace vellox::ppt
