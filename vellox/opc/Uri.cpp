#include "vellox/opc/Uri.h"

#include <vector>

namespace opc {

namespace {

using Segments = std::vector<std::wstring>;

Segments splitPath(const std::wstring& path) {
    Segments segments(1);
    for (const wchar_t c : path) {
        if (c == L'/')
            segments.emplace_back();
        else
            segments.back().push_back(c);
    }
    return segments;
}

} // namespace

std::wstring resolveTarget(const std::wstring& folder, const std::wstring& target) {
    const std::wstring path = URI(target).getPath();
    const bool isAbsolute = !path.empty() && path[0] == L'/';
    Segments result;
    for (const std::wstring& segment : splitPath(isAbsolute ? path : folder + path)) {
        if (segment == L"..") {
            if (!result.empty())
                result.pop_back();
        } else if (!segment.empty() && segment != L".") {
            result.push_back(segment);
        }
    }
    std::wstring name;
    for (const std::wstring& segment : result)
        name += L"/" + segment;
    return name.empty() ? L"/" : name;
}

std::wstring makeRelativeTarget(const std::wstring& folder, const std::wstring& name) {
    const Segments from = splitPath(folder), to = splitPath(name);
    // The last element of the folder is the empty text behind its "/".
    std::size_t shared = 0;
    while (shared + 1 < from.size() && shared + 1 < to.size() && from[shared] == to[shared])
        ++shared;
    std::wstring target;
    for (std::size_t i = shared; i + 1 < from.size(); ++i)
        target += L"../";
    for (std::size_t i = shared; i < to.size(); ++i)
        target += (i > shared ? L"/" : L"") + to[i];
    return target;
}

std::wstring makeExternalTarget(const std::wstring& target) {
    static const wchar_t digits[] = L"0123456789ABCDEF";
    std::wstring result;
    for (const wchar_t c : target) {
        if (c <= L' ' || (c < 0x80 && std::wstring(L"\"<>^`{|}\x7f").find(c) != std::wstring::npos))
            result += {L'%', digits[(c >> 4) & 15], digits[c & 15]};
        else
            result.push_back(c);
    }
    return result;
}

} // namespace opc
