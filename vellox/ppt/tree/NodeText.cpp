#include "vellox/ppt/tree/NodeText.h"

#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TextImpl.h"

#include <boost/algorithm/string/join.hpp>

namespace vellox::ppt {

std::wstring joinTexts(const std::wstring& upper, const std::wstring& lower) {
    return upper.empty() || lower.empty() ? upper + lower : upper + L"\n" + lower;
}

namespace {

const SlideImpl* findSlide(const PPTNodeImpl& node) {
    const PPTNodeImpl* step = &node;
    while (step && step->getNodeType() != NodeType::Slide)
        step = step->getParent();
    return dynamic_cast<const SlideImpl*>(step);
}

std::wstring show(const Value& value, const Rules& rules) {
    return boost::algorithm::join(rules.textOf(value), L"\n");
}

// A paragraph may stand in a list without a link to its parent, so that the way up starts from that.
const Rules* findRules(const PPTNodeImpl& node) {
    const SlideImpl* slide = findSlide(node);
    return slide ? slide->getRules() : nullptr;
}

} // namespace

std::wstring readRuns(const PPTNodeImpl& paragraph, const Rules* rules) {
    std::wstring text;
    for (const auto& run : paragraph.getChildren())
        if (const auto* impl = implAs<TextImpl>(*run))
            text += rules ? show({impl->getTextContent(), impl->getGiven()}, *rules) : impl->getTextContent();
    const auto* impl = dynamic_cast<const ParagraphImpl*>(&paragraph);
    if (rules && rules->showsTruth() && impl && impl->getTruthValue() && impl->getChildren().empty())
        text = show({{}, *impl->getTruthValue()}, *rules);
    return text;
}

std::wstring readParagraphs(const PPTNodeImpl& node) {
    const Rules* rules = findRules(node);
    std::wstring text;
    for (const auto& paragraph : node.getChildren())
        text += (paragraph == node.getChildren().front() ? L"" : L"\n") +
                readRuns(*implOf<PPTNodeImpl>(*paragraph), rules);
    return text;
}

boost::shared_ptr<const SlideSource> findSource(const ShapeImpl& shape) {
    const SlideImpl* slide = findSlide(shape);
    const bool hasRecord = slide && slide->getTemplateSlide() && !shape.getTemplateUid().empty();
    return hasRecord ? slide->getTemplateSlide()->source : boost::shared_ptr<const SlideSource>();
}

} // namespace vellox::ppt
