#include "bindings/octave/OctErrors.h"

#include "bindings/octave/Octave.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/MsgID.h"
#include "vellox/host/services/HostServices.h"

#include <octave/error.h>
#include <octave/quit.h>

#include <iostream>
#include <new>

namespace vellox::ppt::oct {

void raiseError(const std::string& identifier, const std::string& text) {
    error_with_id(identifier.c_str(), "%s", text.c_str());
}

void translateToOctave() {
    try {
        throw;
    } catch (const octave::execution_exception&) {
        throw;
    } catch (const octave::interrupt_exception&) {
        throw;
    } catch (const octave::exit_exception&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw; // Octave knows what to do
    } catch (const hostfx::except::IMsgIDException& failure) {
        raiseError(failure.getErrorID(), failure.what());
    } catch (const std::exception& failure) {
        raiseError("vellox:error", failure.what());
    }
}

void warnAtEnd(const std::string& identifier, const std::string& text) noexcept {
    try {
        warning_with_id(identifier.c_str(), "%s", text.c_str());
    } catch (...) { // a user may have made an error of it
        std::cerr << "warning: " << text << "\n";
    }
}

namespace {

/// The services of the process, but for warnings.
class OctServices : public host::HostServices {
public:
    void raiseWarning(const MsgID& id, const std::wstring& text) override {
        warning_with_id((id.catalog + ":" + id.id).c_str(), "%s", toUtf8(text).c_str());
    }
};

} // namespace

void setWarningService() {
    static OctServices& services = *new OctServices; // objects that outlive the interpreter may still ask it
    host::setHostServices(&services);
}

} // namespace vellox::ppt::oct
