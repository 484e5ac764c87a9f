/// @file
/// The parts of speakers' pages.

#ifndef VELLOX_PPT_WRITERS_NOTESPARTS_H
#define VELLOX_PPT_WRITERS_NOTESPARTS_H

#include <string>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class PPTPartWriter;

class NotesParts {
public:
    NotesParts(const ReadTemplate& source, PPTPartWriter& partWriter);

    /// Writes the page of a slide, into the part that the slide has for it or a new one.
    void write(const std::wstring& slidePartName, const TemplateNotes& notes);
    /// Lists a notes master in the presentation's document, if one had to be made.
    void listMaster(xercesc::DOMDocument& presentation) const;

private:
    std::wstring createPart(const std::wstring& slidePartName);
    const std::wstring& requireMaster();
    void createMaster();
    void createTheme();

    const ReadTemplate& source_;
    PPTPartWriter& partWriter_;
    std::wstring masterName_;   // empty until it is needed
    std::wstring newMastersId_; // of its relationship, if there was none
};

} // namespace vellox::ppt

#endif
