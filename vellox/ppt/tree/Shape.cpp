#include "vellox/ppt/tree/Shape.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/TableImpl.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

// ShapeImpl

ShapeImpl::ShapeImpl() {
    announceCreated(*this);
}

ShapeImpl::ShapeImpl(const std::wstring& name) {
    ShapeImpl::setName(name);
    announceCreated(*this);
}

ShapeImpl::ShapeImpl(const std::wstring& name, const Record& record)
    : isOfTemplate_(true),
      templateShape_(record) {
    ShapeImpl::setName(name);
    announceCreated(*this);
}

ShapeImpl::ShapeImpl(const ShapeImpl& other)
    : NodeOf(other),
      contentReplaced_(other.contentReplaced_),
      templateShape_(other.templateShape_),
      geometry_(other.geometry_),
      altText_(other.altText_) {
    keepWrittenName(other);
    announceCreated(*this);
}

ShapeImpl::ShapeImpl(const ShapeImpl& former, TakeName takeName)
    : contentReplaced_(true),
      isOfTemplate_(true),
      templateShape_(former.templateShape_),
      geometry_(former.geometry_),
      altText_(former.altText_) {
    if (takeName == TakeName::Always) {
        PPTNodeImpl::setName(former.getName());
        keepWrittenName(former);
    } else if (former.written_ != Written::Nothing) {
        ShapeImpl::setName(former.getName());
    }
    announceCreated(*this);
}

ShapeImpl::~ShapeImpl() {
    announceDestroyed(*this);
}

std::wstring ShapeImpl::makeId() const {
    const std::wstring& uid = getTemplateUid();
    return NodeOf::makeId() + (isOfTemplate_ && !uid.empty() ? L":" + uid : std::wstring());
}

const std::wstring& ShapeImpl::getTemplateUid() const {
    static const std::wstring& none = *new const std::wstring;
    return templateShape_ ? templateShape_->id : none;
}

void ShapeImpl::setName(const std::wstring& name) {
    PPTNodeImpl::setName(name);
    written_ = Written::Name;
}

void ShapeImpl::keepWrittenName(const ShapeImpl& other) {
    const BaseAttribute<std::wstring> name = other.getWrittenName();
    if (!name.isSet())
        return;
    const bool isItsName = !getName().empty() && name.get() == getName();
    written_ = isItsName ? Written::Name : Written::Own;
    if (written_ == Written::Own)
        ownWrittenName_.require() = name.get();
}

BaseAttribute<std::wstring> ShapeImpl::getWrittenName() const {
    if (written_ == Written::Nothing)
        return {};
    return BaseAttribute<std::wstring>(written_ == Written::Name ? getName() : ownWrittenName_.get());
}

void ShapeImpl::replace(const HvContentPtr&) {
    raise(ppt_error::invalidReplaceArg());
}

bool ShapeImpl::giveWayTo(const HvContentPtr& content, const Place& place) {
    auto* picture = getObjectImpl<PictureImpl>(content);
    auto* table = getObjectImpl<TableImpl>(content);
    if ((!picture && !table) || !templateShape_ || !findHolder(picture ? NodeType::Picture : NodeType::Table))
        return false;
    const auto record = boost::make_shared<TemplateShape>(*templateShape_);
    record->successorPlace = place;
    templateShape_ = record;
    if (picture)
        giveWayTo<PictureImpl>(static_cast<const Picture&>(*picture->makeInterface()), TakeName::Always);
    else
        giveWayTo<TableImpl>(static_cast<const Table&>(*table->makeInterface()), TakeName::Always);
    return true;
}

// A slide; or a group for a picture, where what the template says of the shape allows it. Readers don't expect tables
// in groups.
PPTNodeImpl* ShapeImpl::findHolder(NodeType successor) const {
    PPTNodeImpl* parent = getParent();
    const bool mayStayInGroup =
        successor == NodeType::Picture && templateShape_ && templateShape_->givesWayInGroup;
    if (!parent || (parent->getNodeType() != NodeType::Slide &&
                    !(mayStayInGroup && parent->getNodeType() == NodeType::Group)))
        return nullptr;
    for (const Child& child : parent->getChildren())
        if (implOf<PPTNodeImpl>(*child) == this)
            return parent;
    return nullptr;
}

void ShapeImpl::reportThatItStays() const {
    report(ppt_finding::notReplaced(), *this);
}

// Shape

Shape::Shape() : Shape(new ShapeImpl) {}
Shape::Shape(const std::wstring& name) : Shape(new ShapeImpl(name)) {}
Shape::Shape(ShapeImpl* impl) : Element(impl) {}

ShapeImpl* Shape::pimpl() {
    return implOf<ShapeImpl>(*this);
}

const ShapeImpl* Shape::pimpl() const {
    return implOf<ShapeImpl>(*this);
}

void Shape::setName(const std::wstring& name) {
    pimpl()->setName(name);
}

namespace {

// Who reads an attribute may keep it, and see in it what is set later: it has to be the shape's own from here on.
ShapeImpl& attributesOf(const Shape& shape) {
    return *implOf<ShapeImpl>(shape);
}

} // namespace

const BaseAttribute<Dimension>& Shape::getX() const {
    return attributesOf(*this).geometry().x;
}

void Shape::setX(const std::wstring& length) {
    pimpl()->geometry().x.set(Dimension(length));
}

void Shape::unsetX() {
    pimpl()->geometry().x.unset();
}

const BaseAttribute<Dimension>& Shape::getY() const {
    return attributesOf(*this).geometry().y;
}

void Shape::setY(const std::wstring& length) {
    pimpl()->geometry().y.set(Dimension(length));
}

void Shape::unsetY() {
    pimpl()->geometry().y.unset();
}

const BaseAttribute<Dimension>& Shape::getWidth() const {
    return attributesOf(*this).geometry().cx;
}

void Shape::setWidth(const std::wstring& length) {
    pimpl()->geometry().cx.set(Dimension(length));
}

void Shape::unsetWidth() {
    pimpl()->geometry().cx.unset();
}

const BaseAttribute<Dimension>& Shape::getHeight() const {
    return attributesOf(*this).geometry().cy;
}

void Shape::setHeight(const std::wstring& length) {
    pimpl()->geometry().cy.set(Dimension(length));
}

void Shape::unsetHeight() {
    pimpl()->geometry().cy.unset();
}

const BaseAttribute<std::wstring>& Shape::getAltText() const {
    return attributesOf(*this).altText();
}

void Shape::setAltText(const std::wstring& text) {
    pimpl()->altText().set(text);
}

void Shape::unsetAltText() {
    pimpl()->altText().unset();
}

void Shape::replace(const HvContentPtr& content) {
    heldImplOf<ShapeImpl>(*this)->replace(content);
}

boost::shared_ptr<Shape> Shape::cast(const boost::shared_ptr<PPTNode>& node) {
    return boost::dynamic_pointer_cast<Shape>(node);
}

} // namespace vellox::ppt
