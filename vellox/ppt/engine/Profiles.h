/// @file
/// The profiles by which decks are made, by name.

#ifndef VELLOX_PPT_ENGINE_PROFILES_H
#define VELLOX_PPT_ENGINE_PROFILES_H

#include <boost/shared_ptr.hpp>
#include <string>

namespace vellox::ppt {

class Rules;

struct Profile {
    std::wstring name;
    boost::shared_ptr<const Rules> rules;
};

inline constexpr wchar_t kClassicProfile[] = L"classic";
inline constexpr wchar_t kOfficeProfile[] = L"office";

/// @throws invalidPropertyValue for a name that isn't one of these; capital letters make no difference
Profile findProfile(const std::wstring& name);

} // namespace vellox::ppt

#endif
