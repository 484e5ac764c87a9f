/// @file
/// Is a template fit for decks by program, and how can it be made so?
///
///     const TemplateReport report = inspectTemplate(L"company.potx");
///     for (const Finding& finding : report.findings)
///         std::wcout << finding.text << L"\n";
///     healTemplate(L"company.potx", L"healed.potx");

#ifndef VELLOX_DOCTOR_TEMPLATEDOCTOR_H
#define VELLOX_DOCTOR_TEMPLATEDOCTOR_H

#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/doctor/TemplateReport.h"

namespace vellox::ppt {

/// Reads a template as a presentation does, makes no slide and changes nothing. docs/doctor.md lists the codes of the
/// findings. Of a package in the strict form only that is told.
/// @throws cannotOpenFile if it is no package, or a damaged or encrypted one, with the reason and the path
/// @throws invalidTemplate if it is a package, but no presentation
/// @throws partDOMBuildError if a part of it can't be read, with the part and the reason
VELLOX_API TemplateReport inspectTemplate(const std::wstring& path);

/// Writes a copy of a template in which what stands in the way of programs is mended as far as nothing looks other
/// than before: names of layouts and placeholders are unique, without blanks around them, on one line, and speak where a
/// program made them ("Content Placeholder 2" becomes "Left Content"); every placeholder has a place of its own;
/// placeholders of a layout that no slide uses are told apart by their indexes; a type that is written out though
/// it is the usual one isn't any more. The output may be the input; it is replaced once the copy is complete.
/// @return what was changed, each a finding of severity info
/// @throws as inspectTemplate(), and cannotOpenFile if the output can't be written
VELLOX_API std::vector<Finding> healTemplate(const std::wstring& inputPath, const std::wstring& outputPath);

} // namespace vellox::ppt

#endif
