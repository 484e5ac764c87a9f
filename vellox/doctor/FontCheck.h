/// @file
/// Which fonts this machine has.

#ifndef VELLOX_DOCTOR_FONTCHECK_H
#define VELLOX_DOCTOR_FONTCHECK_H

#include <memory>
#include <optional>
#include <string>

namespace vellox::ppt {

/// The fonts that are installed, as long as this lives. What the rest of the process does with fontconfig stays as it is.
class InstalledFonts {
public:
    InstalledFonts();
    InstalledFonts(const InstalledFonts&) = delete;
    InstalledFonts& operator=(const InstalledFonts&) = delete;
    ~InstalledFonts();

    /// Whether there is a font of this family, upper and lower case aside.
    /// @return nothing where the library was built without fontconfig, or that can't be set up
    std::optional<bool> has(const std::wstring& family) const;

private:
    struct Config;
    std::unique_ptr<Config> config_;
};

} // namespace vellox::ppt

#endif
