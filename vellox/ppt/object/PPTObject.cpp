#include "vellox/ppt/object/PPTObject.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/object/PPTClientImpl.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::ppt {

// PPTClientImpl

PPTClientImpl::PPTClientImpl() = default;
PPTClientImpl::PPTClientImpl(const PPTClientImpl&) = default;
PPTClientImpl::~PPTClientImpl() = default;

boost::shared_ptr<PPTClientImpl> PPTClientImpl::clone() const {
    return {};
}

// PPTObjectImpl

namespace {

std::wstring makeId() {
    static unsigned int counter = 0;
    return num2str(++counter);
}

} // namespace

PPTObjectImpl::PPTObjectImpl() : id_(makeId()) {}

PPTObjectImpl::PPTObjectImpl(const PPTObjectImpl& other) : Wrappable(other), id_(makeId()) {
    if (other.client_)
        setClient(other.client_->clone());
}

PPTObjectImpl::~PPTObjectImpl() {
    setClient({});
}

const char* PPTObjectImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Object";
}

boost::shared_ptr<PPTObject> PPTObjectImpl::makeHandle() {
    return boost::shared_ptr<PPTObject>(new PPTObject(ObjectAccess::makeHandle(this)));
}

std::wstring PPTObjectImpl::getTag() const {
    if (!tag_.empty())
        return tag_;
    const std::wstring name = toStringFromASCIIStringLiteral(getFullyQualifiedHostTypeName());
    return name.substr(name.find(L'.') + 1) + L":" + id_;
}

void PPTObjectImpl::setClient(const boost::shared_ptr<PPTClientImpl>& client) {
    if (client_ && client_->object_ == this)
        client_->object_ = nullptr; // somebody may hold it longer
    client_ = client;
    if (client_)
        client_->object_ = this;
}

void intrusive_ptr_add_ref(PPTObjectImpl* object) {
    ++object->refCount_;
}

void intrusive_ptr_release(PPTObjectImpl* object) {
    if (--object->refCount_ > 0)
        return;
    // Handles that come and go while it ends, of listeners say, don't end it once more.
    object->life_ = PPTObjectImpl::Life::Ending;
    ++object->refCount_;
    delete object;
}

// PPTObject

PPTObject::PPTObject() : PPTObject(new PPTObjectImpl) {}

PPTObject::PPTObject(PPTObjectImpl* impl) : impl_(impl) {
    if (impl_)
        intrusive_ptr_add_ref(impl_);
}

PPTObject::PPTObject(const PPTObject& other) : PPTObject(other.impl_) {}

PPTObject::~PPTObject() {
    if (impl_)
        intrusive_ptr_release(impl_);
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): counting up first is what handles it
PPTObject& PPTObject::operator=(const PPTObject& other) {
    // The new object is counted up first: it may be the same one, or hang on the old one.
    if (other.impl_)
        intrusive_ptr_add_ref(other.impl_);
    PPTObjectImpl* former = impl_;
    impl_ = other.impl_;
    if (former)
        intrusive_ptr_release(former);
    return *this;
}

std::wstring PPTObject::getId() const {
    return impl_->getId();
}

void PPTObject::setId(const std::wstring& id) {
    impl_->setId(id);
}

std::wstring PPTObject::getTag() const {
    return impl_->getTag();
}

void PPTObject::setTag(const std::wstring& tag) {
    impl_->setTag(tag);
}

bool PPTObject::operator==(const PPTObject& other) const {
    return impl_ == other.impl_;
}

bool PPTObject::operator!=(const PPTObject& other) const {
    return !(*this == other);
}

const char* PPTObject::getFullyQualifiedHostTypeName() const {
    return impl_->getFullyQualifiedHostTypeName();
}

boost::shared_ptr<PPTClientImpl> PPTObject::getPPTClientImpl() {
    return impl_->getClient();
}

void PPTObject::setPPTClientImpl(const boost::shared_ptr<PPTClientImpl>& client) {
    impl_->setClient(client);
}

} // namespace vellox::ppt
