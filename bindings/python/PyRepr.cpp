#include "bindings/python/PyRepr.h"

#include "bindings/python/PyClass.h"
#include "bindings/python/PyErrors.h"
#include "bindings/python/PyInstance.h"
#include "bindings/python/PyResults.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/ppt/tree/Text.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace vellox::ppt::python {

using namespace hostbind;

namespace {

constexpr std::size_t kLongestText = 40;
/// A table of many empty cells isn't searched to its end.
constexpr unsigned int kMostNodes = 200;

/// What tells objects of a class apart, in this order: the name of a node, the file of a presentation, the value of a
/// format, the text of a message.
constexpr const char* kTellingProperties[] = {"Name", "OutputPath", "Value", "Style", "Font", "Text"};

const BoundProperty* findProperty(const BoundClass* bound, const char* name) {
    for (; bound; bound = bound->getSuperclass())
        for (const BoundProperty& property : bound->properties)
            if (std::strcmp(property.name, name) == 0)
                return &property;
    return nullptr;
}

/// None if nothing tells.
PyRef getTelling(const PySlot& slot) {
    for (const char* name : kTellingProperties) {
        const BoundProperty* property = findProperty(&slot.getClass()->bound, name);
        const HostResult value = property ? property->get(*slot.getFacade()) : HostResult();
        const auto* text = std::get_if<std::wstring>(&value);
        if (std::holds_alternative<bool>(value) || (text && !text->empty()))
            return toPython(value);
    }
    return PyRef::share(Py_None);
}

/// The start of the text of a node and what is below it.
std::wstring getStart(const PPTNode& top) {
    std::wstring start;
    std::vector<const PPTNode*> open = {&top};
    for (unsigned int seen = 0; !open.empty() && seen < kMostNodes && start.size() <= kLongestText; ++seen) {
        const PPTNode& node = *open.back();
        open.pop_back();
        if (const auto* text = dynamic_cast<const Text*>(&node))
            start += (start.empty() ? L"" : L" ") + text->getTextContent().substr(0, kLongestText + 1);
        const PPTNode::Children& children = node.getChildren();
        for (std::size_t i = std::min<std::size_t>(children.size(), kMostNodes); i-- > 0;)
            open.push_back(children[i].get());
    }
    if (start.size() > kLongestText)
        start.replace(kLongestText - 1, std::wstring::npos, L"\u2026");
    return start;
}

PyObject* describe(PyObject* self, const PySlot& slot) {
    const PyRef telling = getTelling(slot);
    const auto* node = dynamic_cast<const PPTNode*>(slot.getFacade());
    const std::wstring start = node && node->getNodeType() != NodeType::Presentation ? getStart(*node) : L"";
    const char* type = Py_TYPE(self)->tp_name;
    const bool isNamed = telling.get() != Py_None;
    if (isNamed && !start.empty())
        return PyUnicode_FromFormat("<%s %R: %R>", type, telling.get(), toPython(start).get());
    if (isNamed)
        return PyUnicode_FromFormat("<%s %R>", type, telling.get());
    if (!start.empty())
        return PyUnicode_FromFormat("<%s: %R>", type, toPython(start).get());
    return PyUnicode_FromFormat("<%s, tag %R>", type, toPython(slot.getFacade()->getTag()).get());
}

} // namespace

PyObject* represent(PyObject* self) {
    return guarded<PyObject*>(nullptr, [&] {
        const PySlot& slot = slotOf(self);
        const ObjectPtr facade = slot.getProxy();
        if (!facade)
            return PyUnicode_FromFormat("<%s>", Py_TYPE(self)->tp_name);
        if (BindingRegistry::isEnding(*facade)) // its fields are going already
            return PyUnicode_FromFormat("<%s, tag %R>", Py_TYPE(self)->tp_name,
                                        toPython(facade->getTag()).get());
        return describe(self, slot);
    });
}

} // namespace vellox::ppt::python
