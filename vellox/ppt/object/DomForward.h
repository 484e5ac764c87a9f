/// @file
/// The name of a DOM node for headers that must not pull Xerces in. Xerces keeps its classes in a namespace
/// named after its version; the library's own sources check that this is the one it is built with.

#ifndef VELLOX_PPT_OBJECT_DOMFORWARD_H
#define VELLOX_PPT_OBJECT_DOMFORWARD_H

namespace xercesc_3_2 {
class DOMNode;
}
namespace xercesc = xercesc_3_2;

#endif
