#include "vellox/ppt/tree/PageFields.h"

#include "vellox/ppt/object/PPTNodeImpl.h"

namespace vellox::ppt::page_fields {

PageFields& of(const PPTNode& node) {
    return dynamic_cast<WithPageFields&>(*const_cast<PPTNodeImpl*>(implOf<PPTNodeImpl>(node)))
        .pageFields.require();
}

} // namespace vellox::ppt::page_fields
