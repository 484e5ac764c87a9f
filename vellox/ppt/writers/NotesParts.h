/// @file
/// The parts of speakers' pages.

#ifndef VELLOX_PPT_WRITERS_NOTESPARTS_H
#define VELLOX_PPT_WRITERS_NOTESPARTS_H

#include <string>
#include <utility>
#include <vector>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class PPTPartWriter;

class NotesParts {
public:
    NotesParts(const ReadTemplate& source, PPTPartWriter& partWriter);

    /// Takes note of the page of a slide.
    void add(const std::wstring& slidePartName, const boost::shared_ptr<const TemplateNotes>& notes) {
        pages_.emplace_back(slidePartName, notes);
    }
    /// Writes these pages, each into the part that its slide has for it or a new one.
    void write();
    /// Lists a notes master in the presentation's document, if one had to be made.
    void listMaster(xercesc::DOMDocument& presentation) const;

private:
    void write(const std::wstring& slidePartName, const TemplateNotes& notes);
    std::wstring createPart(const std::wstring& slidePartName);
    const std::wstring& requireMaster();
    void createMaster();
    void createTheme();

    const ReadTemplate& source_;
    PPTPartWriter& partWriter_;
    std::vector<std::pair<std::wstring, boost::shared_ptr<const TemplateNotes>>> pages_;
    std::wstring masterName_;   // empty until it is needed
    std::wstring newMastersId_; // of its relationship, if there was none
};

} // namespace vellox::ppt

#endif
