#include "vellox/host/binding/Descriptions.h"

#include "vellox/ppt/tree/Text.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace vellox::ppt::hostbind {

namespace {

constexpr std::size_t kLongestText = 40;
/// A table of many empty cells isn't searched to its end.
constexpr unsigned int kMostNodes = 200;

constexpr const char* kTellingProperties[] = {"Name", "OutputPath", "Value", "Style", "Font", "Text"};

const BoundProperty* findProperty(const BoundClass* bound, const char* name) {
    for (; bound; bound = bound->getSuperclass())
        for (const BoundProperty& property : bound->properties)
            if (std::strcmp(property.name, name) == 0)
                return &property;
    return nullptr;
}

} // namespace

HostResult getTelling(const BoundClass& bound, const PPTObject& object) {
    for (const char* name : kTellingProperties) {
        const BoundProperty* property = findProperty(&bound, name);
        HostResult value = property ? property->get(object) : HostResult();
        const auto* text = std::get_if<std::wstring>(&value);
        if (std::holds_alternative<bool>(value) || (text && !text->empty()))
            return value;
    }
    return Void();
}

std::wstring getTextStart(const PPTObject& object) {
    const auto* top = dynamic_cast<const PPTNode*>(&object);
    if (!top || top->getNodeType() == NodeType::Presentation)
        return {};
    std::wstring start;
    std::vector<const PPTNode*> open = {top};
    for (unsigned int seen = 0; !open.empty() && seen < kMostNodes && start.size() <= kLongestText; ++seen) {
        const PPTNode& node = *open.back();
        open.pop_back();
        const PPTNode::Children& children = node.getChildren();
        if (const auto* text = dynamic_cast<const Text*>(&node))
            start += (start.empty() ? L"" : L" ") + text->getTextContent().substr(0, kLongestText + 1);
        for (std::size_t i = std::min<std::size_t>(children.size(), kMostNodes); i-- > 0;)
            open.push_back(children[i].get());
    }
    if (start.size() > kLongestText)
        start.replace(kLongestText - 1, std::wstring::npos, L"\u2026");
    return start;
}

bool isLost(const BoundClass& bound, const ObjectPtr& object) {
    const bool isOnlyHandle = object.use_count() == 2; // beside the host object's own
    return isOnlyHandle && bound.isUnfinished && bound.isUnfinished(*object);
}

} // namespace vellox::ppt::hostbind
