/// @file
/// What the library asks of the surroundings that it runs in: where errors and warnings go besides being
/// thrown, which folder is the current one, where the library is installed, what an image file holds.
/// The class itself answers for a process that has no host. A host derives from it and overrides what it
/// knows better:
///
///     class MyHost : public vellox::host::HostServices {
///         void raiseWarning(const vellox::MsgID& id, const std::wstring& text) override;
///     };
///     static MyHost host;
///     vellox::host::setHostServices(&host);

#ifndef VELLOX_HOST_SERVICES_HOSTSERVICES_H
#define VELLOX_HOST_SERVICES_HOSTSERVICES_H

#include <string>

#include "vellox/Api.h"

namespace hostfx::except {
class IUserException;
}

namespace vellox {

class MsgID;

namespace host {

/// The services of a surrounding. Every operation has an answer for a process without a host.
class VELLOX_API HostServices {
public:
    virtual ~HostServices();

    /// Called with every identified error right before it is thrown. Does nothing here.
    virtual void reportUserError(const hostfx::except::IUserException& error);
    /// Shows a warning to the user: one line on the standard error stream here.
    /// @param text the warning in words, with its arguments filled in
    virtual void raiseWarning(const MsgID& id, const std::wstring& text);

    /// The current folder, in UTF-8: that of the process here.
    virtual std::string getCurrentDirectory() const;
    /// A path in the system's temporary folder at which nothing exists, in UTF-8.
    virtual std::string getTempName() const;
    /// The folder below which the default template and the message texts are installed, in UTF-8. Found
    /// from the place of the library's own file, unless setInstallRoot() has named another.
    virtual std::string getHostRoot() const;
    /// The folder that holds add-ons, in UTF-8.
    virtual std::string getAddonRoot() const;
    /// The folder of the add-on `name`, in UTF-8; empty if the host knows none by that name.
    virtual std::string findAddon(const std::string& name) const;

    /// Unpacks a ZIP archive into a folder, which is made if it doesn't exist. Entries that would land
    /// outside the folder are refused.
    /// @return false if anything went wrong
    virtual bool unzip(const std::wstring& archive, const std::wstring& folder) const;
    /// Reads the size of an image in pixels from its header (PNG, JPEG, GIF, BMP, TIFF, PSD).
    /// @return false if the file can't be read as one of these; width and height are untouched then
    virtual bool probeImage(const std::wstring& path, double& width, double& height) const;
    /// The density of the screen in pixels per inch.
    /// @return false if there is no screen to ask, as here
    virtual bool getScreenPixelsPerInch(double& density) const;
};

/// The services in force.
VELLOX_API HostServices& getHostServices();

/// As HostServices::raiseWarning(), where nothing may be thrown because an object is ending. What the host
/// throws becomes a line on the standard error stream.
VELLOX_API void raiseWarningAtEnd(const MsgID& id, const std::wstring& text) noexcept;

/// Puts other services in force; a null pointer brings the library's own back. The object isn't owned and
/// must outlive all use of the library.
VELLOX_API void setHostServices(HostServices* services);

/// Names the install root for the library's own services, for programs that carry the resources elsewhere
/// than beside the library. An empty path brings back the place found from the library's file.
VELLOX_API void setInstallRoot(const std::wstring& folder);

} // namespace host
} // namespace vellox

#endif
