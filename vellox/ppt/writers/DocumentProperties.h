/// @file
/// What a package says of its document: title, author, times, counts (ECMA-376 Part 2, 11; Part 1, 22.2).

#ifndef VELLOX_PPT_WRITERS_DOCUMENTPROPERTIES_H
#define VELLOX_PPT_WRITERS_DOCUMENTPROPERTIES_H

#include <cstddef>
#include <optional>
#include <string>

namespace vellox::ppt {

class PPTPartWriter;

/// What a caller has set; an empty text leaves the property out.
struct DocumentProperties {
    std::optional<std::wstring> title, author, subject, keywords;

    bool isSet() const { return title || author || subject || keywords; }
};

/// Writes the core properties of a deck, in a part that is made if there is none.
/// @param areRenewed whether they tell of the deck alone: its times are now, and the template's authors aren't its own
/// @throws opc::Exception
void writeCoreProperties(const DocumentProperties& properties, bool areRenewed, PPTPartWriter& partWriter);

/// Brings the number of slides in the extended properties up to date, if there are any, and drops other counts and lists,
/// which tell of the template.
/// @throws opc::Exception
void renewExtendedProperties(std::size_t slides, PPTPartWriter& partWriter);

} // namespace vellox::ppt

#endif
