#include "vellox/ppt/formats/Formats.h"

#include "vellox/ppt/formats/Format.h"

#include <utility>

namespace vellox::ppt {

Formats::Formats() = default;
Formats::~Formats() = default;

Formats::Formats(const Formats& other)
    : formats_(other.getMap().empty() ? nullptr : std::make_unique<Map>(*other.formats_)) {}

Formats& Formats::operator=(const Formats& other) {
    if (this != &other)
        formats_ = std::move(Formats(other).formats_);
    return *this;
}

void Formats::appendFormat(const boost::shared_ptr<Format>& format) {
    if (!format)
        return;
    if (!formats_)
        formats_ = std::make_unique<Map>();
    (*formats_)[format->getFormatType()] = format;
}

boost::shared_ptr<Format> Formats::getFormat(FormatType type) const {
    const auto found = getMap().find(type);
    return found == getMap().end() ? boost::shared_ptr<Format>() : found->second;
}

void Formats::unsetFormat(FormatType type) {
    if (formats_)
        formats_->erase(type);
}

const Formats::Map& Formats::getMap() const {
    static const Map& none = *new const Map;
    return formats_ ? *formats_ : none;
}

} // namespace vellox::ppt
