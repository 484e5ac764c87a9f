/// @file
/// The root of all classes that users hold. Each is a pair: a small facade, which users copy freely, and an
/// implementation, which they never see.
///
///     Paragraph one(L"text");
///     Paragraph two = one;          // a second handle on the same paragraph
///     two.setBold(true);            // shows in both
///     auto three = one.clone();     // another paragraph

#ifndef VELLOX_PPT_OBJECT_PPTOBJECT_H
#define VELLOX_PPT_OBJECT_PPTOBJECT_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/Api.h"

namespace vellox::ppt {

class PPTClientImpl;
class PPTObjectImpl;

/// A handle on an object of the library. Copies share the object, which lives as long as a handle or a
/// parent in the tree holds it; equality is identity. Not for use from several threads at a time.
class VELLOX_API PPTObject {
public:
    /// A new bare object.
    PPTObject();
    PPTObject(const PPTObject& other);
    virtual ~PPTObject();
    /// Lets this handle stand for the other's object. Neither object changes.
    PPTObject& operator=(const PPTObject& other);

    /// The object's number as text, counted from 1 for the process; shapes of a template have a suffix.
    std::wstring getId() const;
    /// No check of form or uniqueness is made.
    void setId(const std::wstring& id);
    /// The caller's own mark. Where none is set, the class and the Id, such as "ppt.Paragraph:17".
    std::wstring getTag() const;
    /// An empty text brings the default back. A copy of the object doesn't take the tag along.
    void setTag(const std::wstring& tag);

    /// True when both handles stand for the same object.
    bool operator==(const PPTObject& other) const;
    bool operator!=(const PPTObject& other) const;

    /// The name of the object's class in a host language, such as "vellox.ppt.Paragraph".
    virtual const char* getFullyQualifiedHostTypeName() const;

protected:
    /// A handle on an existing object; a null pointer gives a handle on nothing.
    explicit PPTObject(PPTObjectImpl* impl);

    /// @{ For layers above the library; nothing in it calls these.
    boost::shared_ptr<PPTClientImpl> getPPTClientImpl();
    void setPPTClientImpl(const boost::shared_ptr<PPTClientImpl>& client);
    /// @}

    PPTObjectImpl* pimpl() { return impl_; }
    const PPTObjectImpl* pimpl() const { return impl_; }

private:
    friend struct ObjectAccess;

    PPTObjectImpl* impl_;
};

/// @{ One more, or one fewer, holder of an object; it ends with its last holder.
VELLOX_API void intrusive_ptr_add_ref(PPTObjectImpl* object);
VELLOX_API void intrusive_ptr_release(PPTObjectImpl* object);
/// @}

} // namespace vellox::ppt

#endif
