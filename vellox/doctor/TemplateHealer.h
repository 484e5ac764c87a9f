/// @file
/// The changes that a template gets, document by document.

#ifndef VELLOX_DOCTOR_TEMPLATEHEALER_H
#define VELLOX_DOCTOR_TEMPLATEHEALER_H

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

#include "vellox/doctor/TemplateSurvey.h"
#include "vellox/ppt/package/PartDOMWriter.h"

namespace vellox::ppt {

class OPCPackage;

class TemplateHealer {
public:
    /// @param package open for reading and writing
    /// @param path that errors name
    TemplateHealer(boost::shared_ptr<OPCPackage> package, std::wstring path);

    /// Changes the parts; saving them is the caller's.
    /// @return what was changed
    /// @throws invalidTemplate, partDOMBuildError, opc::Exception
    std::vector<Finding> heal();

private:
    /// A layout with its document, kept until all names are known.
    struct Patient {
        SurveyedLayout layout;
        bool isChanged = false;
    };

    void alignPackage();
    void renameMasters();
    void healMaster(const MasterReport& master, const std::vector<Patient*>& patients);
    void renameLayout(Patient& patient, const std::wstring& name);
    void renamePlaceholders(Patient& patient);
    void givePlaces(Patient& patient);
    void giveIndexes(Patient& patient);
    void dropUsualTypes(Patient& patient);
    void note(Patient& patient, const DoctorCode& code, const std::wstring& shape,
              std::initializer_list<std::wstring> words);

    boost::shared_ptr<OPCPackage> package_;
    std::wstring path_;
    PartDOMBuilder builder_;
    PartDOMWriter writer_;
    TemplateSurvey survey_;
    std::vector<Finding> changes_;
};

} // namespace vellox::ppt

#endif
