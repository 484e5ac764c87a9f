/// @file
/// What an inspection tells of a template: plain values.

#ifndef VELLOX_DOCTOR_TEMPLATEREPORT_H
#define VELLOX_DOCTOR_TEMPLATEREPORT_H

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "vellox/ppt/messages/Finding.h"

namespace vellox::ppt {

/// A place and a size in EMU.
struct BoxEmu {
    long long x = 0, y = 0, cx = 0, cy = 0;
};

struct PlaceholderReport {
    std::wstring name;   ///< as the file has it
    std::wstring handle; ///< by which the profile "office" finds it; empty for dates, footers and numbers
    std::string kind;    ///< its class, such as "ContentPlaceholder"; empty for dates, footers and numbers
    std::wstring type;   ///< as the file has it: "title", "pic"; empty where it says none
    std::wstring index;  ///< likewise
    std::optional<BoxEmu> box;      ///< its own, or the one that it inherits of its master
    bool isBoxInherited = false;    ///< from the master
    bool isFilledInClassic = false; ///< whether the profile "classic" finds it, too
};

struct LayoutReport {
    std::wstring name;   ///< as the file has it
    std::wstring handle; ///< by which the profile "office" finds it
    std::wstring type;   ///< as the file has it: "twoObj"
    std::wstring part;
    bool showsMasterShapes = true;
    bool hasBackground = false;                  ///< of its own
    std::vector<PlaceholderReport> placeholders; ///< in the order of the file
};

struct MasterReport {
    std::wstring name;   ///< that of its theme
    std::wstring handle; ///< by which the profile "office" finds it
    std::wstring part;
    std::wstring headingFont, bodyFont; ///< for Latin text
    /// Name and value of each colour of the theme: "accent1", "4F81BD". A colour of the system has its last value.
    std::vector<std::pair<std::wstring, std::wstring>> colours;
    std::vector<LayoutReport> layouts; ///< in the order of the template
};

struct TableStyleReport {
    std::wstring name, id;
};

struct FontReport {
    std::wstring name;
    std::optional<bool> isInstalled; ///< on this machine; none where nobody can tell
};

struct TemplateReport {
    std::wstring path;
    long long slideWidth = 0, slideHeight = 0; ///< in EMU; 0 where the template doesn't say
    std::vector<MasterReport> masters;         ///< in the order of the template
    std::vector<TableStyleReport> tableStyles;
    std::vector<FontReport> fonts; ///< of themes, masters and layouts, each once
    unsigned int slides = 0;       ///< that it brings along
    std::vector<Finding> findings; ///< see inspectTemplate()
};

} // namespace vellox::ppt

#endif
