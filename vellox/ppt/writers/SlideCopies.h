/// @file
/// The parts of copied slides.

#ifndef VELLOX_PPT_WRITERS_SLIDECOPIES_H
#define VELLOX_PPT_WRITERS_SLIDECOPIES_H

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "vellox/opc/Package.h"

namespace vellox::ppt {

class PPTPartWriter;
class SlideDocument;
struct TemplateSlide;

/// Makes parts for copies of the template's slides. A copy has the relationships of its original under the same ids.
/// What belongs to one slide alone, such as a chart with its workbook or the notes, is copied with it, and so is what
/// that needs; pictures, layouts and other slides are shared. Comments stay with the original.
class SlideCopies {
public:
    explicit SlideCopies(PPTPartWriter& partWriter);
    SlideCopies(const SlideCopies&) = delete;
    SlideCopies& operator=(const SlideCopies&) = delete;

    /// To be called for each slide that has copies, before any slide is written: the relationships that a slide gets
    /// then are its own.
    void remember(const std::wstring& originName);
    /// @return the name of the new part
    std::wstring createPart(const TemplateSlide& slide, const std::wstring& name);

private:
    using Rows = std::vector<opc::Relationship>;

    void copyRelationships(const Rows& rows, opc::Part& to);
    opc::URI findTarget(const opc::Relationship& row);

    PPTPartWriter& partWriter_;
    std::map<std::wstring, Rows> remembered_;
    // Of the copy that is being made:
    std::map<opc::PartName, opc::PartName> copied_; // from originals
    std::vector<std::pair<opc::PartName, opc::PartName>>
        waiting_; // those whose relationships are still to come
};

/// Takes what tells a slide from all others, and comments, out of its copy's document.
void makeOrdinary(SlideDocument& copy);

} // namespace vellox::ppt

#endif
