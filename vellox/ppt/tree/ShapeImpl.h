/// @file
/// The state behind Shape. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_SHAPEIMPL_H
#define VELLOX_PPT_TREE_SHAPEIMPL_H

#include <boost/intrusive_ptr.hpp>

#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/template/TemplateRecords.h"
#include "vellox/ppt/tree/Shape.h"

namespace vellox::ppt {

/// A place, a size, and the link to the template's record of the shape if it came from there.
class ShapeImpl : public NodeOf<NodeType::Shape, ShapeImpl, Shape, ElementImpl> {
public:
    using Record = boost::shared_ptr<TemplateShape>;
    /// Whose name a shape that takes another's place gets.
    enum class TakeName { Always, IfSet };

    ShapeImpl();
    explicit ShapeImpl(const std::wstring& name);
    ShapeImpl(const std::wstring& name, const Record& record);
    ShapeImpl(const ShapeImpl& other);
    /// A shape that takes the place of another: its record, its geometry, its name.
    ShapeImpl(const ShapeImpl& former, TakeName takeName);
    ~ShapeImpl() override;

    void setName(const std::wstring& name) override;
    virtual void replace(const HvContentPtr& content);

    /// Lets a Picture or a Table stand where this shape does, whatever that takes by itself.
    /// @param place where that is
    /// @return whether it does now
    bool giveWayTo(const HvContentPtr& content, const Place& place);

    const ShapeGeometry& getGeometry() const { return geometry_.get(); }
    ShapeGeometry& geometry() { return geometry_.require(); }
    const BaseAttribute<std::wstring>& getAltText() const { return altText_.get(); }
    BaseAttribute<std::wstring>& altText() { return altText_.require(); }
    /// The name for an element of its own.
    BaseAttribute<std::wstring> getWrittenName() const;
    /// Empty for a shape made by a caller.
    const std::wstring& getTemplateUid() const;
    const Record& getTemplateShape() const { return templateShape_; }
    bool isContentReplaced() const { return contentReplaced_; }

protected:
    void markContentReplaced() { contentReplaced_ = true; }
    /// Puts a new shape of class Impl, made from this one and a given one, in this one's place on its slide.
    /// @return a handle on the new shape; the given one if this shape stands where it can't give way
    template <class Impl, class Facade> Facade giveWayTo(Facade given, TakeName takeName);

private:
    PPTNodeImpl* findHolder(NodeType successor) const;
    void reportThatItStays() const;
    std::wstring makeId() const override;
    void keepWrittenName(const ShapeImpl& other);

    /// Which name is written: none; the node's; or one of its own, as copies have no name and yet are written with
    /// that of the original.
    enum class Written : char { Nothing, Name, Own };

    bool contentReplaced_ = false; // what the template's shape brought along goes
    bool isOfTemplate_ = false;    // and no copy
    Written written_ = Written::Nothing;
    Lazy<std::wstring> ownWrittenName_;
    Record templateShape_; // null for a shape made by a caller
    Lazy<ShapeGeometry> geometry_;
    Lazy<BaseAttribute<std::wstring>> altText_;
};

// The given handle comes by value: listeners may let the caller's stand for something else.
template <class Impl, class Facade> Facade ShapeImpl::giveWayTo(Facade given, TakeName takeName) {
    const NodeType successor = implOf<Impl>(given)->getNodeType();
    const boost::intrusive_ptr<PPTNodeImpl> holder(findHolder(successor));
    if (!holder) {
        reportThatItStays();
        return given;
    }
    const Child self = makeInterface();
    const Child replacement = (new Impl(*this, takeName, *implOf<Impl>(given)))->makeInterface();
    implOf<Impl>(*replacement)->appendClones(*implOf<Impl>(given));
    if (implOf<Impl>(given)->getAltText().isSet())
        implOf<Impl>(*replacement)->altText() = implOf<Impl>(given)->getAltText();
    // Listeners have heard of new objects, and may have given this one's place to another.
    if (findHolder(successor) != holder.get()) {
        reportThatItStays();
        return given;
    }
    holder->replaceChild(*self, replacement);
    return static_cast<const Facade&>(*replacement);
}

/// The implementation that content holds, if it is an object of this class; else null.
template <class Impl> Impl* getObjectImpl(const HvContentPtr& content) {
    const auto object = ObjectContent::getValue(content);
    const auto handle = object ? object->getProxy() : boost::shared_ptr<PPTObject>();
    return handle ? implAs<Impl>(*handle) : nullptr;
}

} // namespace vellox::ppt

#endif
