#include "vellox/foundation/IdentifiedException.h"

#include "vellox/foundation/MessageCatalog.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/Utf8.h"

#include <locale>

namespace hostfx::except {

IException::~IException() = default;
IUserException::~IUserException() = default;
IMsgIDException::~IMsgIDException() = default;

IdentifiedText::IdentifiedText(const vellox::MsgID& id) : errorID_(id.catalog + ":" + id.id) {}

const char* IdentifiedText::getText(const vellox::MsgID& id) const noexcept {
    try {
        if (text_.empty())
            text_ = vellox::toUtf8(vellox::MessageCatalog::get_message(id, std::locale()));
        return text_.c_str();
    } catch (const std::exception&) {
        return errorID_.c_str();
    }
}

} // namespace hostfx::except

namespace vellox {

void reportUserError(const hostfx::except::IUserException& error) {
    host::getHostServices().reportUserError(error);
}

void reportWarning(const MsgID& id) {
    host::getHostServices().raiseWarning(id, MessageCatalog::get_message(id, std::locale()));
}

void reportWarningAtEnd(const MsgID& id) noexcept {
    host::raiseWarningAtEnd(id, MessageCatalog::get_message(id, std::locale()));
}

} // namespace vellox
