#include "vellox/ppt/engine/Profiles.h"

#include "vellox/ppt/formats/SpellingTable.h"
#include "vellox/ppt/rules/OfficeRules.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace {

boost::shared_ptr<const Rules> makeRules(const std::wstring& name) {
    if (name == kOfficeProfile)
        return boost::make_shared<OfficeRules>();
    return boost::make_shared<ClassicRules>();
}

} // namespace

Profile findProfile(const std::wstring& name) {
    static const SpellingTable& names = *new const SpellingTable{
        {kClassicProfile, kClassicProfile, u""},
        {kOfficeProfile, kOfficeProfile, u""},
    };
    const std::wstring& label = names.require(name).label;
    return {label, makeRules(label)};
}

} // namespace vellox::ppt
