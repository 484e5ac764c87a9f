/// @file
/// The state behind Template. Internal: users hold facades.

#ifndef VELLOX_PPT_ENGINE_TEMPLATEIMPL_H
#define VELLOX_PPT_ENGINE_TEMPLATEIMPL_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/ppt/engine/Template.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::ppt {

class PresentationModel;
class Rules;
struct ReadTemplate;

class TemplateImpl : public PPTObjectImpl {
public:
    explicit TemplateImpl(const std::wstring& path);

    const char* getFullyQualifiedHostTypeName() const override;
    boost::shared_ptr<PPTObject> makeHandle() override;

    const std::wstring& getPath() const { return path_; }
    /// Those that the template was read by, and decks are written by.
    const boost::shared_ptr<const Rules>& getRules() const { return rules_; }
    /// The whole file.
    const boost::shared_ptr<const std::string>& getBytes() const { return bytes_; }
    /// The template as one deck has it.
    boost::shared_ptr<PresentationModel> makeModel() const;

private:
    void read();

    std::wstring path_;
    boost::shared_ptr<const Rules> rules_;
    boost::shared_ptr<const std::string> bytes_;
    boost::shared_ptr<const ReadTemplate> contents_;
};

} // namespace vellox::ppt

#endif
