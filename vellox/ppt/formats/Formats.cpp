#include "vellox/ppt/formats/Formats.h"

#include "vellox/foundation/SmallPieces.h"
#include "vellox/ppt/formats/Format.h"

#include <utility>

namespace vellox::ppt {

struct Formats::Own : InPieces {
    Map map;
};

Formats::Formats() = default;
Formats::~Formats() = default;

Formats::Formats(const Formats& other) : own_(other.own_ ? std::make_unique<Own>(*other.own_) : nullptr) {}

Formats& Formats::operator=(const Formats& other) {
    if (this != &other)
        own_ = std::move(Formats(other).own_);
    return *this;
}

void Formats::appendFormat(const boost::shared_ptr<Format>& format) {
    if (!format)
        return;
    if (!own_)
        own_ = std::make_unique<Own>();
    own_->map[format->getFormatType()] = format;
}

boost::shared_ptr<Format> Formats::getFormat(FormatType type) const {
    const auto found = getMap().find(type);
    return found == getMap().end() ? boost::shared_ptr<Format>() : found->second;
}

void Formats::unsetFormat(FormatType type) {
    if (own_)
        own_->map.erase(type);
}

const Formats::Map& Formats::getMap() const {
    static const Map& none = *new const Map;
    return own_ ? own_->map : none;
}

} // namespace vellox::ppt
