/// @file
/// From a package to the report of a template.

#ifndef VELLOX_DOCTOR_TEMPLATESURVEY_H
#define VELLOX_DOCTOR_TEMPLATESURVEY_H

#include <boost/shared_ptr.hpp>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "vellox/doctor/DoctorCodes.h"
#include "vellox/doctor/LayoutSurvey.h"
#include "vellox/doctor/TemplateReport.h"
#include "vellox/ppt/package/PartDOMBuilder.h"

namespace vellox::ppt {

/// A layout with its document, while that is at hand.
struct SurveyedLayout {
    LayoutReport report;
    OwnedDocument document;
    std::vector<SurveyedPlaceholder> placeholders;
};

/// Reads a template once, each part once, masters in their order with their layouts in theirs. What is kept of a layout
/// is its report; who wants to change it is given its document in passing.
class TemplateSurvey {
public:
    using LayoutVisitor = std::function<void(SurveyedLayout& layout, const MasterReport& master)>;

    TemplateSurvey(PartDOMBuilder& builder, const std::wstring& path) : builder_(builder) {
        report_.path = path;
    }

    /// @param visit called for each layout, with what is known by then; may be empty
    /// @return false if this is no presentation
    /// @throws partDOMBuildError, opc::Exception
    bool run(const LayoutVisitor& visit);
    TemplateReport& getReport() { return report_; }
    const std::wstring& getMainPart() const { return mainPart_; }
    /// The parts of the themes of the masters, in their order; an empty text for one without.
    const std::vector<std::wstring>& getThemeParts() const { return themeParts_; }
    /// Whether a slide of the template is made of a layout.
    bool isLayoutUsed(const std::wstring& part) const { return usedLayouts_.count(part) > 0; }
    /// Whether a place of a master is turned or mirrored.
    bool isTurned(const PlaceText& place) const { return turned_.count(&place) > 0; }

private:
    bool readMainPart();
    void readSlides(const opc::Part& presentation, xercesc::DOMDocument& document);
    void readMaster(const opc::Part& presentation, const std::wstring& relationshipId);
    void readTheme(const opc::Part& part, MasterReport& master);
    void readLayouts(const opc::Part& part, xercesc::DOMDocument& document, MasterReport& master,
                     const TemplateMaster& kin);
    void readLayout(const opc::Part& part, MasterReport& master, const TemplateMaster& kin);
    void readTableStyles(const opc::Part& presentation);
    OwnedDocument read(const opc::Part& part);
    void noteFonts(xercesc::DOMDocument& document);
    void noteMedia(const opc::Part& part);
    bool isHuge(opc::Part part);
    void nameAll();
    void judgeFonts();
    void add(const DoctorCode& code, const std::wstring& part, const std::wstring& word = {}) {
        report_.findings.push_back(makeDoctorFinding(code, part, {}, {word}));
    }

    PartDOMBuilder& builder_;
    TemplateReport report_;
    LayoutVisitor visit_;
    std::wstring mainPart_;
    std::vector<std::wstring> themeParts_;
    std::map<const PlaceText*, Place> turned_;
    std::set<std::wstring> usedLayouts_, knownLayouts_, knownMedia_, fonts_;
    unsigned long long mediaRead_ = 0; // in bytes
};

} // namespace vellox::ppt

#endif
