#include "vellox/doctor/FontCheck.h"

#ifdef VELLOX_HAS_FONTCONFIG
#include "vellox/host/services/Utf8.h"

#include <fontconfig/fontconfig.h>
#endif

namespace vellox::ppt {

#ifdef VELLOX_HAS_FONTCONFIG

namespace {

struct Release {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
    void operator()(FcObjectSet* objects) const { FcObjectSetDestroy(objects); }
    void operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }
};

template <class T> using Held = std::unique_ptr<T, Release>;

} // namespace

struct InstalledFonts::Config {
    Held<FcConfig> held{FcInitLoadConfigAndFonts()};
};

std::optional<bool> InstalledFonts::has(const std::wstring& family) const {
    const std::string name = toUtf8(family);
    const Held<FcPattern> pattern(FcPatternCreate());
    const Held<FcObjectSet> wanted(FcObjectSetCreate());
    const bool canAsk =
        config_->held && pattern && wanted && FcObjectSetAdd(wanted.get(), FC_FAMILY) &&
        FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.c_str()));
    if (!canAsk)
        return {};
    const Held<FcFontSet> found(FcFontList(config_->held.get(), pattern.get(), wanted.get()));
    return found && found->nfont > 0;
}

#else

struct InstalledFonts::Config {};

std::optional<bool> InstalledFonts::has(const std::wstring&) const {
    return {};
}

#endif

InstalledFonts::InstalledFonts() : config_(std::make_unique<Config>()) {}
InstalledFonts::~InstalledFonts() = default;

} // namespace vellox::ppt
