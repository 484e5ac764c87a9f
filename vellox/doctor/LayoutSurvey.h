/// @file
/// What is told of one layout.

#ifndef VELLOX_DOCTOR_LAYOUTSURVEY_H
#define VELLOX_DOCTOR_LAYOUTSURVEY_H

#include "vellox/doctor/TemplateReport.h"
#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

/// A placeholder of a layout: what it is, and its element.
struct SurveyedPlaceholder {
    xercesc::DOMElement* element;
    ShapeFacts facts;
    Place own;       ///< empty if it has none of its own
    Place inherited; ///< of its master
    PlaceholderReport report;

    /// Whether something can be put in: dates, footers and numbers are none of these.
    bool isOpen() const { return !report.kind.empty(); }
};

/// All placeholders of a layout, in the order of the file, with the names that the profile "office" finds them by.
/// @param master with the places of its placeholders, see Kin.h
std::vector<SurveyedPlaceholder> surveyPlaceholders(xercesc::DOMDocument& layout,
                                                    const TemplateMaster& master);

/// Adds what is to be said of a layout and of its placeholders. Its report is complete but for its name as it is found.
void addLayoutFindings(const LayoutReport& layout, const std::vector<SurveyedPlaceholder>& placeholders,
                       std::vector<Finding>& findings);

/// Adds what is amiss with a name by itself. @return whether anything is
bool addNameFindings(const std::wstring& name, const std::wstring& part, const std::wstring& shape,
                     std::vector<Finding>& findings);
/// The name as it should be: on one line, without blanks around it.
std::wstring cleanName(const std::wstring& name);

} // namespace vellox::ppt

#endif
