/// @file
/// What a layer above may attach to an object.

#ifndef VELLOX_PPT_OBJECT_PPTCLIENTIMPL_H
#define VELLOX_PPT_OBJECT_PPTCLIENTIMPL_H

#include <boost/shared_ptr.hpp>

#include "vellox/Api.h"

namespace vellox::ppt {

class PPTObjectImpl;

/// An object of a layer above the library, tied to one object of the library. A presentation reports its
/// progress only while it has one.
class VELLOX_API PPTClientImpl {
public:
    PPTClientImpl();
    PPTClientImpl(const PPTClientImpl& other);
    virtual ~PPTClientImpl();
    /// What a copy of the object is to have. Nothing here.
    virtual boost::shared_ptr<PPTClientImpl> clone() const;

    PPTObjectImpl* getObject() const { return object_; }

private:
    friend class PPTObjectImpl;

    PPTObjectImpl* object_ = nullptr; // not owned
};

} // namespace vellox::ppt

#endif
