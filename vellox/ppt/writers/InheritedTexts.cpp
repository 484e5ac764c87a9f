#include "vellox/ppt/writers/InheritedTexts.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/Kin.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/xml/Prefixes.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr const XMLCh* kLevelNames[] = {u"a:lvl1pPr", u"a:lvl2pPr", u"a:lvl3pPr", u"a:lvl4pPr", u"a:lvl5pPr",
                                        u"a:lvl6pPr", u"a:lvl7pPr", u"a:lvl8pPr", u"a:lvl9pPr"};

// What a template says in earnest is far below.
constexpr double kGreatest = 1e9;

double readNumber(const DOMElement* element, const XMLCh* name, double otherwise) {
    const std::wstring text = getAttribute(element, name);
    const double number = text.empty() ? otherwise : str2double(text);
    return number > -kGreatest && number < kGreatest ? number : otherwise;
}

void takeNumber(double& into, const DOMElement* element, const XMLCh* name, double unit = 1) {
    into = readNumber(element, name, into / unit) * unit;
}

void takeFlag(bool& into, const DOMElement* element, const XMLCh* name) {
    const std::wstring text = getAttribute(element, name);
    if (!text.empty())
        into = text == L"1" || text == L"true";
}

void takeSpacing(Spacing& into, const DOMElement* element) {
    constexpr double kThousandth = 1e-5, kHundredth = 0.01;
    if (const DOMElement* share = findChild(element, u"a:spcPct"))
        into = {readNumber(share, xml::kVal, 0) * kThousandth, true};
    else if (const DOMElement* points = findChild(element, u"a:spcPts"))
        into = {readNumber(points, xml::kVal, 0) * kHundredth, false};
}

void takeLevel(LevelText& level, const DOMElement* properties) {
    takeNumber(level.marginLeft, properties, xml::kMarL);
    takeNumber(level.indent, properties, xml::kIndent);
    takeSpacing(level.line, findChild(properties, u"a:lnSpc"));
    takeSpacing(level.before, findChild(properties, u"a:spcBef"));
    takeSpacing(level.after, findChild(properties, u"a:spcAft"));
    const DOMElement* run = findChild(properties, xml::kADefRPr);
    takeNumber(level.points, run, xml::kSz, 0.01);
    takeFlag(level.isBold, run, xml::kB);
    takeFlag(level.isItalic, run, xml::kI);
    const std::wstring font = getAttribute(findChild(run, xml::kALatin), xml::kTypeface);
    if (!font.empty())
        level.font = font;
}

void takeStyles(InheritedText& text, const DOMElement* styles) {
    if (!styles)
        return;
    for (LevelText& level : text.levels)
        takeLevel(level, findChild(styles, u"a:defPPr"));
    for (std::size_t i = 0; i < text.levels.size(); ++i)
        takeLevel(text.levels[i], findChild(styles, kLevelNames[i]));
}

void takeShape(InheritedText& text, const DOMElement* shape) {
    const DOMElement* body = findChild(shape, xml::kTxBody);
    takeStyles(text, findChild(body, xml::kALstStyle));
    const DOMElement* properties = findChild(body, xml::kABodyPr);
    takeNumber(text.insetLeft, properties, u"lIns");
    takeNumber(text.insetRight, properties, u"rIns");
    takeNumber(text.insetTop, properties, u"tIns");
    takeNumber(text.insetBottom, properties, u"bIns");
}

const DOMElement* findPlaceholder(const OwnedDocument& page, const std::wstring& type,
                                  const std::wstring& index) {
    if (!page)
        return nullptr;
    const DOMElement* ofType = nullptr;
    for (const DOMElement* shape :
         getChildElements(findDescendant(page->getDocumentElement(), {xml::kCSld, xml::kSpTree}))) {
        const ShapeFacts facts = readFacts(*shape);
        if (!facts.isPlaceholder)
            continue;
        const std::wstring own = facts.placeholderType.empty() ? L"obj" : facts.placeholderType;
        if (!index.empty() && (facts.placeholderIndex.empty() ? L"0" : facts.placeholderIndex) == index &&
            own == type)
            return shape;
        if (!ofType && own == type)
            ofType = shape;
    }
    return ofType;
}

bool isTitle(const std::wstring& type) {
    return type == L"title" || type == L"ctrTitle";
}

} // namespace

const InheritedText& InheritedTexts::find(const TemplateLayout* layout, const TemplateShape* shape) {
    const bool isPlaceholder = shape && shape->isPlaceholder;
    const Key key(layout, isPlaceholder ? shape->phType : std::wstring(),
                  isPlaceholder ? shape->phIndex : std::wstring());
    const auto known = texts_.find(key);
    return known != texts_.end() ? known->second : texts_.emplace(key, read(layout, shape)).first->second;
}

InheritedText InheritedTexts::read(const TemplateLayout* layout, const TemplateShape* shape) {
    InheritedText text;
    const OwnedDocument& presentation = model_.getTemplate().presentationDocument;
    takeStyles(text, findChild(presentation->getDocumentElement(), u"p:defaultTextStyle"));
    const auto master = layout ? layout->master.lock() : nullptr;
    if (master && shape && shape->isPlaceholder) {
        const OwnedDocument& page = requireDocument(master->partName);
        const bool hasTitle = isTitle(shape->phType);
        const DOMElement* styles =
            page ? findChild(page->getDocumentElement(), xml::kTxStyles) : static_cast<DOMElement*>(nullptr);
        takeStyles(text, findChild(styles, hasTitle ? xml::kTitleStyle : xml::kBodyStyle));
        takeShape(text, findPlaceholder(page, hasTitle ? L"title" : L"body", {}));
        takeShape(text, findPlaceholder(requireDocument(layout->partName), shape->phType, shape->phIndex));
    }
    const Fonts fonts = readFonts(master && master->theme ? master->theme->partName : std::wstring());
    for (LevelText& level : text.levels) {
        const bool isReference = level.font.empty() || level.font[0] == L'+';
        if (isReference)
            level.font = level.font.substr(0, 3) == L"+mj" ? fonts.major : fonts.minor;
    }
    return text;
}

// A part that can't be read says nothing.
const OwnedDocument& InheritedTexts::requireDocument(const std::wstring& partName) {
    const auto [entry, isNew] = documents_.try_emplace(partName);
    if (isNew) {
        entry->second = partWriter_.readIfWellFormed(partName);
        if (entry->second && model_.getRules().takesAnyPrefix())
            useUsualPrefixes(*entry->second.get());
    }
    return entry->second;
}

InheritedTexts::Fonts InheritedTexts::readFonts(const std::wstring& themePartName) {
    const OwnedDocument& theme = requireDocument(themePartName);
    if (!theme)
        return {};
    const DOMElement* scheme =
        findDescendant(theme->getDocumentElement(), {u"a:themeElements", u"a:fontScheme"});
    const auto read = [&](const XMLCh* which) {
        return getAttribute(findDescendant(scheme, {which, xml::kALatin}), xml::kTypeface);
    };
    return {read(u"a:majorFont"), read(u"a:minorFont")};
}

} // namespace vellox::ppt
