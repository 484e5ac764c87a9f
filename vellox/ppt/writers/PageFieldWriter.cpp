#include "vellox/ppt/writers/PageFieldWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Lines.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/template/SlidePrototype.h"
#include "vellox/ppt/tree/PageFields.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr wchar_t kDate[] = L"dt", kFooter[] = L"ftr", kNumber[] = L"sldNum";
constexpr wchar_t kMovingDate[] = L"auto";
// Programs tell fields of one kind apart by nothing; the id has only to be one.
constexpr XMLCh kFieldId[] = u"{5D3C2F7A-91B4-4E0B-8C6E-2A7F10D94E53}";

template <class T>
const BaseAttribute<T>& choose(const BaseAttribute<T>& own, const BaseAttribute<T>& decks) {
    return own.isSet() ? own : decks;
}

const wchar_t* describe(const std::wstring& type) {
    return type == kDate ? L"date" : type == kFooter ? L"footer" : L"number";
}

std::vector<DOMElement*> findShapes(DOMElement* shapeTree, const std::wstring& type) {
    std::vector<DOMElement*> found;
    for (DOMElement* element : getChildElements(shapeTree)) {
        const ShapeFacts facts = readFacts(*element);
        if (facts.isField && facts.placeholderType == type)
            found.push_back(element);
    }
    return found;
}

void setAttributeIfAny(DOMElement* element, const XMLCh* name, const std::wstring& value) {
    if (!value.empty())
        setAttribute(element, name, value);
}

DOMNode* copyOrNull(const DOMNode* node) {
    return node ? node->cloneNode(true) : nullptr;
}

// The first run of a paragraph says how the text looks.
DOMElement* findRunProperties(const DOMElement* paragraph) {
    for (const XMLCh* run : {xml::kAR, xml::kAFld})
        if (DOMElement* properties = findDescendant(paragraph, {run, xml::kARPr}))
            return properties;
    return nullptr;
}

// The runs of a text, with a break wherever a line ends.
template <class AppendRun> std::size_t appendLines(const std::wstring& text, const AppendRun& appendRun) {
    std::size_t dropped = 0;
    const std::vector<std::wstring> lines = splitLines(text);
    for (const std::wstring& line : lines) {
        if (&line != &lines.front())
            appendRun(xml::kABr);
        if (!line.empty())
            dropped += appendText(appendElement(appendRun(xml::kAR), xml::kAT), line);
    }
    return dropped;
}

// Makes a text all that a shape says, in the looks that were there.
std::size_t putText(DOMElement* shape, const std::wstring& text, const std::wstring& fieldType) {
    DOMElement* body = findChild(shape, xml::kTxBody);
    if (!body) {
        body = appendElement(shape, xml::kTxBody);
        appendElement(body, xml::kABodyPr);
        appendElement(body, xml::kALstStyle);
    }
    const DOMElement* former = findChild(body, xml::kAP);
    DOMNode* paragraphProperties = copyOrNull(findChild(former, xml::kAPPr));
    DOMNode* runProperties = copyOrNull(findRunProperties(former));
    while (DOMElement* paragraph = findChild(body, xml::kAP))
        removeNode(paragraph);
    DOMElement* paragraph = appendElement(body, xml::kAP);
    if (paragraphProperties)
        appendNode(paragraph, paragraphProperties);
    const auto appendRun = [&](const XMLCh* name) {
        DOMElement* run = appendElement(paragraph, name);
        if (runProperties)
            appendNode(run, runProperties->cloneNode(true));
        return run;
    };
    std::size_t dropped = 0;
    if (fieldType.empty()) {
        dropped = appendLines(text, appendRun);
    } else {
        DOMElement* field = appendRun(xml::kAFld);
        setAttribute(field, xml::kId, kFieldId);
        setAttribute(field, xml::kType, fieldType);
        appendText(appendElement(field, xml::kAT), text);
    }
    if (runProperties)
        runProperties->release();
    return dropped;
}

bool hasField(const DOMElement* shape) {
    for (const DOMElement* paragraph : getChildElements(findChild(shape, xml::kTxBody)))
        if (findChild(paragraph, xml::kAFld))
            return true;
    return false;
}

} // namespace

PageFieldWriter::PageFieldWriter(const PageFields& own, const PageFields* given, const TemplateSlide& slide,
                                 const Rules& rules) {
    const PageFields decks = given ? *given : PageFields();
    if (!own.areSet() && !decks.areSet())
        return;
    if (slide.layout)
        fields_ = &requirePrototype(*slide.layout, rules).fields;
    takeDate(choose(own.date, decks.date), own.date.isSet());
    const BaseAttribute<std::wstring>& footer = choose(own.footer, decks.footer);
    if (footer.isSet())
        wishes_.push_back({kFooter, !footer.get().empty(), own.footer.isSet(), footer.get(), {}});
    const BaseAttribute<bool>& number = choose(own.slideNumbers, decks.slideNumbers);
    if (number.isSet())
        wishes_.push_back({kNumber, number.get(), own.slideNumbers.isSet(), L"\u2039#\u203a", L"slidenum"});
}

// Until a program brings it up to date, a date shows what the layout's does.
void PageFieldWriter::takeDate(const BaseAttribute<std::wstring>& date, bool isOwn) {
    if (!date.isSet())
        return;
    Wish wish{kDate, !date.get().empty(), isOwn, date.get(), {}};
    if (date.get() == kMovingDate) {
        const LayoutField* field = findField(kDate);
        wish.text = field ? field->text : std::wstring();
        wish.fieldType = field && !field->fieldType.empty() ? field->fieldType : L"datetimeFigureOut";
    }
    wishes_.push_back(wish);
}

const LayoutField* PageFieldWriter::findField(const std::wstring& type) const {
    if (!fields_)
        return nullptr;
    const auto found = std::find_if(fields_->begin(), fields_->end(),
                                    [&](const LayoutField& field) { return field.type == type; });
    return found == fields_->end() ? nullptr : &*found;
}

bool PageFieldWriter::needNodes() const {
    return std::any_of(wishes_.begin(), wishes_.end(), [this](const Wish& wish) {
        const LayoutField* field = findField(wish.type);
        return field && field->isKept;
    });
}

PageFieldWriter::Outcome PageFieldWriter::writeTo(SlideDocument& slide) const {
    Outcome outcome;
    for (const Wish& wish : wishes_) {
        const std::vector<DOMElement*> present = findShapes(slide.getShapeTree(), wish.type);
        for (DOMElement* shape : present) {
            if (!wish.isShown)
                removeNode(shape);
            else if (wish.fieldType.empty() || !hasField(shape))
                outcome.dropped += putText(shape, wish.text, wish.fieldType);
        }
        if (!wish.isShown || !present.empty())
            continue;
        if (const LayoutField* field = findField(wish.type)) {
            DOMElement* shape = makePlaceholder(slide, *field);
            outcome.dropped += putText(shape, wish.text, wish.fieldType);
            slide.appendShape(shape);
        } else if (wish.isOwn) {
            outcome.notShown.emplace_back(describe(wish.type));
        }
    }
    return outcome;
}

DOMElement* PageFieldWriter::makePlaceholder(SlideDocument& slide, const LayoutField& field) const {
    DOMElement* shape = slide.createElement(xml::kSp);
    DOMElement* nonVisual = appendElement(shape, xml::kNvSpPr);
    DOMElement* identity = appendElement(nonVisual, xml::kCNvPr);
    setAttribute(identity, xml::kId, num2str(slide.takeShapeId()));
    setAttribute(identity, xml::kName, field.name);
    DOMElement* locks = appendElement(appendElement(nonVisual, xml::kCNvSpPr), u"a:spLocks");
    locks->setAttribute(xml::kNoGrp, xml::kTrue);
    DOMElement* placeholder = appendElement(appendElement(nonVisual, xml::kNvPr), xml::kPh);
    setAttribute(placeholder, xml::kType, field.type);
    setAttributeIfAny(placeholder, u"orient", field.orientation);
    setAttributeIfAny(placeholder, xml::kSz, field.size);
    setAttributeIfAny(placeholder, xml::kIdx, field.index);
    appendElement(shape, xml::kSpPr);
    return shape;
}

} // namespace vellox::ppt
