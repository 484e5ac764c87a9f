#include "vellox/ppt/template/TextSizes.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <limits>
#include <string_view>

namespace vellox::ppt {

namespace {

// The level of "a:lvl1pPr" is 0; of another name it is none.
int getLevel(std::u16string_view name) {
    constexpr std::u16string_view kHead = u"a:lvl", kTail = u"pPr";
    const bool isLevel = name.size() == kHead.size() + 1 + kTail.size() &&
                         name.substr(0, kHead.size()) == kHead && name.substr(kHead.size() + 1) == kTail;
    const char16_t digit = isLevel ? name[kHead.size()] : u'0';
    return digit >= u'1' && digit <= u'9' ? digit - u'1' : -1;
}

} // namespace

TextSizes readTextSizes(const xercesc::DOMElement* styles) {
    TextSizes sizes{};
    for (const xercesc::DOMElement* style : getChildElements(styles)) {
        const int level = getLevel(style->getNodeName());
        const unsigned size =
            level < 0 ? 0 : str2uint(getAttribute(findChild(style, xml::kADefRPr), xml::kSz));
        if (size > 0 && size <= std::numeric_limits<unsigned short>::max())
            sizes[static_cast<std::size_t>(level)] = static_cast<unsigned short>(size);
    }
    return sizes;
}

void layOver(TextSizes& sizes, const TextSizes& nearer) {
    for (std::size_t i = 0; i < sizes.size(); ++i)
        if (nearer[i] != 0)
            sizes[i] = nearer[i];
}

} // namespace vellox::ppt
