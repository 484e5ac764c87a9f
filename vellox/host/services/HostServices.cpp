#include "vellox/host/services/HostServices.h"

#include "vellox/host/services/ImageProbe.h"
#include "vellox/host/services/RandomName.h"
#include "vellox/host/services/Unzip.h"
#include "vellox/host/services/Utf8.h"

#include <dlfcn.h>

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <system_error>

namespace vellox::host {

namespace {

namespace fs = std::filesystem;

HostServices* installedServices = nullptr;
std::string& installRootOverride() {
    static std::string& root = *new std::string; // never ended: presentations may outlive main()
    return root;
}

// The build tree and the install tree have the same shape, so that one relative path serves both.
std::string findInstallRoot() {
    Dl_info library{};
    if (dladdr(reinterpret_cast<void*>(&findInstallRoot), &library) == 0 || !library.dli_fname)
        return {};
    std::error_code failure;
    const fs::path file = fs::canonical(library.dli_fname, failure);
    if (failure)
        return {};
    return (file.parent_path() / VELLOX_ROOT_FROM_LIBRARY).lexically_normal().generic_string();
}

} // namespace

HostServices::~HostServices() = default;

void HostServices::reportUserError(const hostfx::except::IUserException&) {}

void HostServices::raiseWarning(const MsgID&, const std::wstring& text) {
    std::cerr << "vellox: " << toUtf8(text) << std::endl;
}

std::string HostServices::getCurrentDirectory() const {
    std::error_code failure;
    return fs::current_path(failure).generic_string();
}

std::string HostServices::getTempName() const {
    std::error_code failure;
    const fs::path folder = fs::temp_directory_path(failure);
    return ((failure ? fs::path("/tmp") : folder) / ("vellox-" + makeRandomName())).generic_string();
}

std::string HostServices::getHostRoot() const {
    if (!installRootOverride().empty())
        return installRootOverride();
    static const std::string& root = *new const std::string(findInstallRoot());
    return root;
}

std::string HostServices::getAddonRoot() const {
    return (fs::path(getHostRoot()) / "addons").generic_string();
}

std::string HostServices::findAddon(const std::string&) const {
    return {};
}

bool HostServices::unzip(const std::wstring& archive, const std::wstring& folder) const {
    return unpackArchive(toUtf8(archive), toUtf8(folder));
}

bool HostServices::probeImage(const std::wstring& path, double& width, double& height) const {
    return readImageSize(toUtf8(path), width, height);
}

bool HostServices::getScreenPixelsPerInch(double&) const {
    return false;
}

HostServices& getHostServices() {
    static HostServices& own = *new HostServices;
    return installedServices ? *installedServices : own;
}

void raiseWarningAtEnd(const MsgID& id, const std::wstring& text) noexcept {
    try {
        getHostServices().raiseWarning(id, text);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "vellox: a warning could not be shown: %s\n", failure.what());
    } catch (...) {
        std::fputs("vellox: a warning could not be shown\n", stderr);
    }
}

void setHostServices(HostServices* services) {
    installedServices = services;
}

void setInstallRoot(const std::wstring& folder) {
    installRootOverride() = toUtf8(folder);
}

} // namespace vellox::host
