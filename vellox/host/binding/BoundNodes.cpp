#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/binding/Adapters.h"
#include "vellox/host/binding/BoundClasses.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/formats/Formats.h"

namespace vellox::ppt::hostbind {

namespace {

/// The root of all bound classes. The host calls DefaultObjectArrayElement to fill the gaps of an object array,
/// so that arrays of mixed classes are possible.
BoundClass describeNull() {
    BoundClass bound = {"Null",  {"propaccess", "nimbra.mixin.Heterogeneous"},
                        false,   "What stands in the gaps of an array of objects. Holds nothing.",
                        nullptr, {},
                        {},      {},
                        {}};
    bound.constructors = {{{}, nullptr}};
    const auto makeGap = [](PPTObject*, const Arguments&) -> HostResult { return ObjectPtr(); };
    BoundMethod method = {
        "DefaultObjectArrayElement", {}, SignatureWord("Null"), makeGap, "What stands in a gap."};
    method.isStatic = true;
    bound.methods = {method};
    return bound;
}

BoundClass describeObject() {
    BoundClass bound = describeAbstract<PPTObject>("Object", "Null", "What all objects have.");
    bound.properties = {
        property<PPTObject, &PPTObject::getTag, &PPTObject::setTag>(
            "Tag", "The user's own mark; the class and the Id where none is set."),
        property<PPTObject, &PPTObject::getId, &PPTObject::setId>("Id", "The object's number, as text."),
    };
    return bound;
}

BoundClass describeNode() {
    BoundClass bound = describeAbstract<PPTNode>("Node", "Object", "A node of the tree of a presentation.");
    bound.properties = {
        readOnlyProperty<PPTNode, &PPTNode::getChildren>("Children", "The nodes directly below, in order."),
        readOnlyProperty<PPTNode, &PPTNode::getParent>("Parent", "The node directly above."),
    };
    bound.properties.back().mayBeEmpty = true;
    return bound;
}

HostResult getStyle(const Element& element) {
    ObjectCells cells;
    for (const auto& entry : element.getStyle().getMap())
        cells.objects.push_back(entry.second);
    return cells;
}

void setStyle(Element& element, const hvArray& value) {
    Formats formats;
    if (value.getNElements() > 0) {
        const boost::shared_ptr<HvList> list = ListContent::getValue(HvCell(&value).getContent(), false);
        if (!list)
            raise(ppt_error::invalidFormatStyle());
        for (unsigned int i = 0; i < list->getSize(); ++i) {
            const auto object = ObjectContent::getValue(list->getItem(i));
            // What is no format is skipped.
            if (object)
                formats.appendFormat(boost::dynamic_pointer_cast<Format>(object->getProxy()));
        }
    }
    element.setStyle(formats);
}

BoundClass describeElement() {
    BoundClass bound = describeAbstract<Element>("Element", "Node", "A node with a style.");
    bound.properties = {
        {"Style", SignatureWord("list of Format"), false, AdaptedClassGetter<Element, getStyle>::get,
         AdaptedClassSetter<Element, setStyle>::set, "The formats of the element, at most one of a kind."}};
    return bound;
}

} // namespace

std::vector<BoundClass> describeNodes() {
    return {describeNull(), describeObject(), describeNode(), describeElement()};
}

} // namespace vellox::ppt::hostbind
