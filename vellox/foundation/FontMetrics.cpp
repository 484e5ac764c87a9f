#include "vellox/foundation/FontMetrics.h"

#ifdef VELLOX_HAS_FONTCONFIG
#include "vellox/host/services/Utf8.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H
#endif

namespace vellox {

FontMetrics::~FontMetrics() = default;

double FontMetrics::getAdvance(wchar_t letter) {
    const auto [entry, isNew] = advances_.try_emplace(letter, 0.0);
    if (isNew)
        entry->second = readAdvance(letter);
    return entry->second;
}

// From there on letters are as wide as they are high.
double FontMetrics::readAdvance(wchar_t letter) {
    constexpr wchar_t kFirstWide = L'\x2E80';
    return letter < kFirstWide ? kUsualAdvance : kWideAdvance;
}

#ifdef VELLOX_HAS_FONTCONFIG

namespace {

struct Release {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
    void operator()(FT_Library library) const { FT_Done_FreeType(library); }
    void operator()(FT_Face face) const { FT_Done_Face(face); }
};

template <class T> using Held = std::unique_ptr<T, Release>;
using Pattern = Held<FcPattern>;
using Face = Held<std::remove_pointer_t<FT_Face>>;

const FcChar8* getFamily(const FcPattern* pattern, int number) {
    FcChar8* family = nullptr;
    return FcPatternGetString(pattern, FC_FAMILY, number, &family) == FcResultMatch ? family : nullptr;
}

// The families that are as good as the one asked for come ahead of those that merely stand in for it, and are bound as
// it is.
bool isWanted(const FcPattern* wanted, const FcPattern* found) {
    FcValue value;
    FcValueBinding binding = FcValueBindingWeak;
    for (int i = 0; FcPatternGetWithBinding(wanted, FC_FAMILY, i, &value, &binding) == FcResultMatch; ++i) {
        if (binding == FcValueBindingWeak || value.type != FcTypeString)
            continue;
        for (int j = 0; const FcChar8* family = getFamily(found, j); ++j)
            if (FcStrCmpIgnoreCase(value.u.s, family) == 0)
                return true;
    }
    return false;
}

class InstalledFont : public FontMetrics {
public:
    InstalledFont(Face face, bool isOwn) : face_(std::move(face)) {
        isOwn_ = isOwn;
        if (face_->height > 0)
            lineHeight_ = face_->height / unitsPerEm();
    }

protected:
    double readAdvance(wchar_t letter) override {
        const FT_UInt glyph = FT_Get_Char_Index(face_.get(), static_cast<FT_ULong>(letter));
        FT_Fixed advance = 0;
        const bool hasIt = glyph != 0 && FT_Get_Advance(face_.get(), glyph, FT_LOAD_NO_SCALE, &advance) == 0;
        return hasIt ? static_cast<double>(advance) / unitsPerEm() : FontMetrics::readAdvance(letter);
    }

private:
    double unitsPerEm() const { return face_->units_per_EM; }

    Face face_;
};

} // namespace

struct FontBook::Libraries {
    Libraries() {
        FT_Library library = nullptr;
        if (FT_Init_FreeType(&library) == 0)
            freeType.reset(library);
    }

    Pattern makePattern(const std::wstring& family, bool isBold, bool isItalic) const {
        Pattern pattern(FcPatternCreate());
        const std::string name = toUtf8(family);
        const bool isMade =
            pattern &&
            FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.c_str())) &&
            FcPatternAddInteger(pattern.get(), FC_WEIGHT, isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR) &&
            FcPatternAddInteger(pattern.get(), FC_SLANT, isItalic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN) &&
            FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue) &&
            FcConfigSubstitute(config.get(), pattern.get(), FcMatchPattern);
        if (!isMade)
            return {};
        FcDefaultSubstitute(pattern.get());
        return pattern;
    }

    Face openFace(const FcPattern* font) const {
        FcChar8* path = nullptr;
        int index = 0;
        FT_Face face = nullptr;
        if (FcPatternGetString(font, FC_FILE, 0, &path) != FcResultMatch)
            return {};
        FcPatternGetInteger(font, FC_INDEX, 0, &index);
        if (FT_New_Face(freeType.get(), reinterpret_cast<const char*>(path), index, &face) != 0)
            return {};
        Face held(face);
        return FT_IS_SCALABLE(face) && face->units_per_EM > 0 ? std::move(held) : Face();
    }

    std::unique_ptr<FontMetrics> open(const std::wstring& family, bool isBold, bool isItalic) const {
        if (!config || !freeType)
            return {};
        const Pattern wanted = makePattern(family, isBold, isItalic);
        FcResult result = FcResultNoMatch;
        const Pattern found(wanted ? FcFontMatch(config.get(), wanted.get(), &result) : nullptr);
        Face face = found ? openFace(found.get()) : Face();
        if (!face)
            return {};
        return std::make_unique<InstalledFont>(std::move(face), isWanted(wanted.get(), found.get()));
    }

    Held<FcConfig> config{FcInitLoadConfigAndFonts()};
    Held<std::remove_pointer_t<FT_Library>> freeType;
};

#else

struct FontBook::Libraries {
    std::unique_ptr<FontMetrics> open(const std::wstring&, bool, bool) const { return {}; }
};

#endif

FontBook::FontBook() : libraries_(std::make_unique<Libraries>()) {}

FontBook::~FontBook() {
    fonts_.clear(); // their faces are the library's
}

FontMetrics& FontBook::find(const std::wstring& family, bool isBold, bool isItalic) {
    std::unique_ptr<FontMetrics>& font = fonts_[{family, isBold, isItalic}];
    if (!font)
        font = libraries_->open(family, isBold, isItalic);
    if (!font)
        font = std::make_unique<FontMetrics>();
    return *font;
}

} // namespace vellox
