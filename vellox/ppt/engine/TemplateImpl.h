/// @file
/// The state behind Template. Internal: users hold facades.

#ifndef VELLOX_PPT_ENGINE_TEMPLATEIMPL_H
#define VELLOX_PPT_ENGINE_TEMPLATEIMPL_H

#include <boost/shared_ptr.hpp>
#include <map>
#include <string>

#include "vellox/ppt/engine/Profiles.h"
#include "vellox/ppt/engine/Template.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::check {
class MarkupCheck;
}

namespace vellox::ppt {

class PresentationModel;
struct ReadTemplate;

class TemplateImpl : public PPTObjectImpl {
public:
    /// Reads it by the rules of a profile.
    TemplateImpl(const std::wstring& path, const Profile& profile);

    const char* getFullyQualifiedHostTypeName() const override;
    boost::shared_ptr<PPTObject> makeHandle() override;

    const std::wstring& getPath() const { return path_; }
    /// The whole file.
    const boost::shared_ptr<const std::string>& getBytes() const { return bytes_; }
    /// Checks what decks are made of. What it learns of one serves the next.
    const boost::shared_ptr<check::MarkupCheck>& getCheck() const { return check_; }
    /// The template as one deck of a profile has it. With the first of another profile it is read once more.
    /// @throws invalidTemplate, partDOMBuildError
    boost::shared_ptr<PresentationModel> makeModel(const Profile& profile);

private:
    using Contents = boost::shared_ptr<const ReadTemplate>;

    const Contents& requireContents(const Profile& profile);
    Contents read(const Rules& rules) const;

    std::wstring path_;
    boost::shared_ptr<const std::string> bytes_;
    boost::shared_ptr<check::MarkupCheck> check_;
    std::map<std::wstring, Contents> readings_; // by the names of profiles
};

} // namespace vellox::ppt

#endif
