/// @file
/// The kinds of findings of the doctor, with what each is worth and its words. One table for code, tests and documents.

#ifndef VELLOX_DOCTOR_DOCTORCODES_H
#define VELLOX_DOCTOR_DOCTORCODES_H

#include <initializer_list>
#include <string>

#include "vellox/ppt/messages/Finding.h"

namespace vellox::ppt {

struct DoctorCode {
    const char* code;
    Severity severity;
    const wchar_t* words; ///< with %1% and so on for what comes in
};

namespace doctor {

// Of an inspection
inline constexpr DoctorCode kStrictForm{
    "strictForm", Severity::Error,
    L"the package is in the strict form, which can't be read; save it as an ordinary one"};
inline constexpr DoctorCode kMacros{"macros", Severity::Warning, L"the template has macros"};
inline constexpr DoctorCode kUnusualPrefixes{"unusualPrefixes", Severity::Error,
                                             L"the part is written with other prefixes than \"p\", \"a\" and "
                                             L"\"r\", and is understood in part at best"};
inline constexpr DoctorCode kSampleSlides{
    "sampleSlides", Severity::Info, L"the template has %1% slides of its own, which every deck begins with"};
inline constexpr DoctorCode kDuplicateMasterName{
    "duplicateMasterName", Severity::Warning,
    L"another slide master has the name \"%1%\", and classic finds the first only"};
inline constexpr DoctorCode kDuplicateLayoutName{
    "duplicateLayoutName", Severity::Warning,
    L"another layout of the master has the name \"%1%\", and classic finds the first only"};
inline constexpr DoctorCode kDuplicateName{
    "duplicateName", Severity::Warning,
    L"several placeholders of the layout have the name \"%1%\", and classic fills all of them"};
inline constexpr DoctorCode kEmptyName{"emptyName", Severity::Warning, L"it has no name to be found by"};
inline constexpr DoctorCode kPaddedName{"paddedName", Severity::Warning,
                                        L"the name \"%1%\" has blanks around it, which nobody sees"};
inline constexpr DoctorCode kMultilineName{"multilineName", Severity::Warning,
                                           L"the name \"%1%\" has several lines"};
inline constexpr DoctorCode kHiddenFromClassic{
    "hiddenFromClassic", Severity::Warning,
    L"classic finds no placeholder in the layout \"%1%\": something stands ahead of its shapes, such as a "
    L"background of its own"};
inline constexpr DoctorCode kUnfilledByClassic{
    "unfilledByClassic", Severity::Warning,
    L"classic can't fill a placeholder of the type \"%1%\", and shows its prompt"};
inline constexpr DoctorCode kHiddenMaster{"hidesMasterShapes", Severity::Warning,
                                          L"the layout \"%1%\" hides the shapes of its master; with classic "
                                          L"its slides hide those of the layout, too"};
inline constexpr DoctorCode kNoPlace{"noPlace", Severity::Warning,
                                     L"the placeholder has no place, and its master has none for it"};
inline constexpr DoctorCode kInheritedPlace{
    "inheritedPlace", Severity::Info,
    L"the placeholder has its place from the master; with classic a picture or a table in it may have none"};
inline constexpr DoctorCode kEqualPlaceholders{
    "equalPlaceholders", Severity::Warning, L"another placeholder of the layout has the same type and index"};
inline constexpr DoctorCode kFixedDate{"fixedDate", Severity::Warning,
                                       L"a date that stays as it is: \"%1%\""};
inline constexpr DoctorCode kMissingFont{"missingFont", Severity::Info,
                                         L"the font \"%1%\" isn't installed on this machine"};
inline constexpr DoctorCode kHugeMedia{"hugeMedia", Severity::Warning,
                                       L"a picture or film of more than %1% MB, which every deck carries"};
inline constexpr DoctorCode kNoLayouts{"noLayouts", Severity::Error,
                                       L"the template has no layouts to make slides from"};

// Of a healing
inline constexpr DoctorCode kRenamedMaster{"renamedMaster", Severity::Info,
                                           L"the slide master \"%1%\" is \"%2%\" now"};
inline constexpr DoctorCode kRenamedLayout{"renamedLayout", Severity::Info,
                                           L"the layout \"%1%\" is \"%2%\" now"};
inline constexpr DoctorCode kRenamedPlaceholder{"renamedPlaceholder", Severity::Info,
                                                L"the placeholder \"%1%\" is \"%2%\" now"};
inline constexpr DoctorCode kGivenPlace{"givenPlace", Severity::Info,
                                        L"the placeholder has its own place now"};
inline constexpr DoctorCode kGivenIndex{"givenIndex", Severity::Info,
                                        L"the placeholder has the index %1% now"};
inline constexpr DoctorCode kUsualType{"usualType", Severity::Info,
                                       L"the type \"obj\" isn't written out any more, which means the same"};
inline constexpr DoctorCode kMacrosLeftOut{
    "macrosLeftOut", Severity::Warning, L"the macros are left out, since the output's kind of file has none"};
inline constexpr DoctorCode kSignaturesRemoved{"signaturesRemoved", Severity::Warning,
                                               L"the signature of what was changed is taken off"};

inline constexpr const DoctorCode* kCodes[] = {
    &kMacrosLeftOut,      &kSignaturesRemoved, &kStrictForm,          &kMacros,
    &kUnusualPrefixes,    &kSampleSlides,      &kDuplicateMasterName, &kDuplicateLayoutName,
    &kDuplicateName,      &kEmptyName,         &kPaddedName,          &kMultilineName,
    &kHiddenFromClassic,  &kUnfilledByClassic, &kHiddenMaster,        &kNoPlace,
    &kInheritedPlace,     &kEqualPlaceholders, &kFixedDate,           &kMissingFont,
    &kHugeMedia,          &kNoLayouts,         &kRenamedMaster,       &kRenamedLayout,
    &kRenamedPlaceholder, &kGivenPlace,        &kGivenIndex,          &kUsualType};

} // namespace doctor

/// A finding in the words of its code.
Finding makeDoctorFinding(const DoctorCode& code, const std::wstring& part, const std::wstring& shape,
                          std::initializer_list<std::wstring> arguments);

} // namespace vellox::ppt

#endif
