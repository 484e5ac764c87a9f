/// @file
/// What can be told of a part when it is written.

#ifndef VELLOX_PPT_WRITERS_PARTREPORTS_H
#define VELLOX_PPT_WRITERS_PARTREPORTS_H

#include <string_view>

namespace opc {
class Part;
}

namespace vellox::check {
class MarkupCheck;
}

namespace vellox::ppt {

class PPTNodeImpl;

/// Reports, about a node, what a strict reader would object to in the text of a part. Parts other than XML aren't
/// looked at.
void reportOnPart(const opc::Part& part, std::string_view markup, check::MarkupCheck& check,
                  const PPTNodeImpl& node);

} // namespace vellox::ppt

#endif
