#include "vellox/ppt/formats/Formats.h"

#include "vellox/foundation/SmallPieces.h"
#include "vellox/ppt/formats/FormatImpl.h"

#include <utility>

namespace vellox::ppt {

namespace {

unsigned long long changes = 0;

} // namespace

struct Formats::Own : InPieces {
    Map map;
};

Formats::Formats() = default;

Formats::~Formats() {
    if (own_)
        ++changes;
}

Formats::Formats(const Formats& other) : own_(other.own_ ? std::make_unique<Own>(*other.own_) : nullptr) {}

Formats& Formats::operator=(const Formats& other) {
    Formats copy(other);
    own_.swap(copy.own_); // what was here ends with the copy
    ++changes;
    return *this;
}

void Formats::appendFormat(const boost::shared_ptr<Format>& format) {
    if (!format)
        return;
    if (!own_)
        own_ = std::make_unique<Own>();
    own_->map[format->getFormatType()] = format;
    ++changes;
}

boost::shared_ptr<Format> Formats::getFormat(FormatType type) const {
    const auto found = getMap().find(type);
    return found == getMap().end() ? boost::shared_ptr<Format>() : found->second;
}

void Formats::unsetFormat(FormatType type) {
    const boost::shared_ptr<Format> former = getFormat(type); // ends when all is in order
    if (former)
        own_->map.erase(type);
    ++changes;
}

const Formats::Map& Formats::getEntries() const {
    static const Map& none = *new const Map;
    return own_ ? own_->map : none;
}

unsigned long long countFormatChanges() {
    return changes;
}

} // namespace vellox::ppt
