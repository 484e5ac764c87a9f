#include "vellox/ppt/tree/NodeText.h"

#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TextImpl.h"

namespace vellox::ppt {

std::wstring joinTexts(const std::wstring& upper, const std::wstring& lower) {
    return upper.empty() || lower.empty() ? upper + lower : upper + L"\n" + lower;
}

std::wstring readRuns(const PPTNodeImpl& paragraph) {
    std::wstring text;
    for (const auto& run : paragraph.getChildren())
        if (const auto* impl = implAs<TextImpl>(*run))
            text += impl->getTextContent();
    return text;
}

std::wstring readParagraphs(const PPTNodeImpl& node) {
    std::wstring text;
    for (const auto& paragraph : node.getChildren())
        text += (paragraph == node.getChildren().front() ? L"" : L"\n") +
                readRuns(*implOf<PPTNodeImpl>(*paragraph));
    return text;
}

boost::shared_ptr<const SlideSource> findSource(const ShapeImpl& shape) {
    const PPTNodeImpl* node = &shape;
    while (node && node->getNodeType() != NodeType::Slide)
        node = node->getParent();
    const auto* slide = dynamic_cast<const SlideImpl*>(node);
    const bool hasRecord = slide && slide->getTemplateSlide() && !shape.getTemplateUid().empty();
    return hasRecord ? slide->getTemplateSlide()->source : boost::shared_ptr<const SlideSource>();
}

} // namespace vellox::ppt
