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

unsigned int takeNumber() {
    static unsigned int counter = 0;
    return ++counter;
}

} // namespace

PPTObjectImpl::PPTObjectImpl() : number_(takeNumber()), refCount_(0), life_(Life::Whole) {}

PPTObjectImpl::PPTObjectImpl(const PPTObjectImpl& other)
    : Wrappable(other),
      number_(takeNumber()),
      refCount_(0),
      life_(Life::Whole) {
    if (const auto client = other.getClient())
        setClient(client->clone());
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

std::wstring PPTObjectImpl::getId() const {
    const auto& given = getMarks().labels.get().id;
    return given ? *given : makeId();
}

std::wstring PPTObjectImpl::makeId() const {
    return num2str(number_);
}

void PPTObjectImpl::setId(const std::wstring& id) {
    requireMarks().labels.require().id = id;
}

void PPTObjectImpl::setTag(const std::wstring& tag) {
    requireMarks().labels.require().tag = tag;
}

std::wstring PPTObjectImpl::getTag() const {
    if (const std::wstring& given = getMarks().labels.get().tag; !given.empty())
        return given;
    const std::wstring name = toStringFromASCIIStringLiteral(getFullyQualifiedHostTypeName());
    return name.substr(name.find(L'.') + 1) + L":" + getId();
}

boost::shared_ptr<PPTClientImpl> PPTObjectImpl::getClient() const {
    return getMarks().client;
}

void PPTObjectImpl::setClient(const boost::shared_ptr<PPTClientImpl>& client) {
    const boost::shared_ptr<PPTClientImpl> former = getClient(); // somebody may hold it longer
    if (!client && !former)
        return;
    if (former && former->object_ == this)
        former->object_ = nullptr;
    requireMarks().client = client;
    if (client)
        client->object_ = this;
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
