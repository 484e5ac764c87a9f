#include "vellox/ppt/fill/ShapeKeys.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/NameHint.h"

#include <iterator>
#include <vector>

namespace vellox::ppt {

namespace {

using Shapes = std::vector<ShapeImpl*>;

constexpr wchar_t kIndexKey[] = L"idx:";
constexpr wchar_t kTypeKey[] = L"type:";

bool startsWith(const std::wstring& text, const std::wstring& start) {
    return text.compare(0, start.size(), start) == 0;
}

void collectShapes(const PPTNodeImpl& parent, Shapes& shapes) {
    for (const auto& child : parent.getChildren()) {
        auto* shape = implAs<ShapeImpl>(*child);
        if (!shape)
            continue;
        shapes.push_back(shape);
        if (shape->getNodeType() == NodeType::Group)
            collectShapes(*shape, shapes);
    }
}

template <class Wanted> Shapes filter(const Shapes& shapes, Wanted isWanted) {
    Shapes found;
    for (ShapeImpl* shape : shapes)
        if (isWanted(*shape))
            found.push_back(shape);
    return found;
}

template <class Wanted> Shapes filterPlaceholders(const Shapes& shapes, Wanted isWanted) {
    return filter(shapes, [&](const ShapeImpl& shape) {
        const TemplateShape* record = shape.getTemplateShape().get();
        return record && record->isPlaceholder && isWanted(*record);
    });
}

// "body#2" is one shape, or none.
Shapes findByType(const Shapes& shapes, const std::wstring& key) {
    const std::size_t mark = key.find(L'#');
    const std::wstring type = key.substr(0, mark);
    Shapes found = filterPlaceholders(shapes, [&](const TemplateShape& record) {
        return record.phType == type || (type == L"title" && record.phType == L"ctrTitle");
    });
    if (mark == std::wstring::npos)
        return found;
    const unsigned int number = str2uint(key.substr(mark + 1));
    return number > 0 && number <= found.size() ? Shapes{found[number - 1]} : Shapes();
}

Shapes findByKey(const Shapes& shapes, const std::wstring& key) {
    Shapes found = filter(shapes, [&](const ShapeImpl& shape) { return shape.getName() == key; });
    if (!found.empty())
        return found;
    if (startsWith(key, kIndexKey))
        return filterPlaceholders(shapes, [&](const TemplateShape& record) {
            return record.phIndex == key.substr(std::size(kIndexKey) - 1);
        });
    return startsWith(key, kTypeKey) ? findByType(shapes, key.substr(std::size(kTypeKey) - 1)) : Shapes();
}

[[noreturn]] void refuseUnknown(const Shapes& shapes, const std::wstring& key) {
    std::vector<std::wstring> names;
    for (const ShapeImpl* shape : shapes)
        names.push_back(shape->getName());
    raiseWithHint(ppt_error::unknownShape(key), makeNameHint(key, names), true);
}

} // namespace

boost::intrusive_ptr<ShapeImpl> requireShape(const SlideImpl& slide, const std::wstring& key) {
    Shapes shapes;
    collectShapes(slide, shapes);
    const Shapes found = findByKey(shapes, key);
    if (found.empty())
        refuseUnknown(shapes, key);
    if (found.size() > 1)
        raise(ppt_error::ambiguousShape(key, std::to_wstring(found.size())));
    return found.front();
}

} // namespace vellox::ppt
