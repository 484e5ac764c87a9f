/// @file
/// How texts look for which nobody has said anything: what they inherit from layout, slide master and theme.

#ifndef VELLOX_PPT_WRITERS_INHERITEDTEXTS_H
#define VELLOX_PPT_WRITERS_INHERITEDTEXTS_H

#include <array>
#include <map>
#include <string>
#include <tuple>

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

class PPTPartWriter;
class PresentationModel;
struct TemplateLayout;
struct TemplateShape;

/// A share, or points.
struct Spacing {
    double amount = 0;
    bool isShare = false;
};

struct LevelText {
    double points = 18;
    std::wstring font; ///< a name, not a reference to the theme
    bool isBold = false, isItalic = false;
    double marginLeft = 0, indent = 0; ///< in EMU
    Spacing line{1, true}, before, after;
};

struct InheritedText {
    std::array<LevelText, 9> levels;                                                     ///< from 0
    double insetLeft = 91440, insetRight = 91440, insetTop = 45720, insetBottom = 45720; ///< in EMU
};

/// Reads the parts of the template when it is asked for what they say, each text once: most decks never ask.
class InheritedTexts {
public:
    InheritedTexts(PPTPartWriter& partWriter, const PresentationModel& model)
        : partWriter_(partWriter),
          model_(model) {}

    /// @param layout of the slide; may be null
    /// @param shape of the template; null for a box of somebody's own
    const InheritedText& find(const TemplateLayout* layout, const TemplateShape* shape);

private:
    struct Fonts {
        std::wstring major, minor;
    };
    using Key = std::tuple<const TemplateLayout*, std::wstring, std::wstring>;

    InheritedText read(const TemplateLayout* layout, const TemplateShape* shape);
    const OwnedDocument& requireDocument(const std::wstring& partName);
    Fonts readFonts(const std::wstring& themePartName);

    PPTPartWriter& partWriter_;
    const PresentationModel& model_;
    std::map<std::wstring, OwnedDocument> documents_;
    std::map<Key, InheritedText> texts_;
};

} // namespace vellox::ppt

#endif
