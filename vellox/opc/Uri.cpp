#include "vellox/opc/Uri.h"

#include <algorithm>
#include <arpa/inet.h>
#include <boost/algorithm/string/predicate.hpp>
#include <boost/algorithm/string/trim.hpp>
#include <string_view>
#include <vector>

namespace opc {

namespace {

using Segments = std::vector<std::wstring_view>;

Segments splitPath(std::wstring_view path) {
    Segments segments;
    for (std::size_t start = 0; start <= path.size();) {
        const std::size_t end = std::min(path.find(L'/', start), path.size());
        segments.push_back(path.substr(start, end - start));
        start = end + 1;
    }
    return segments;
}

// Has nothing to leave out or to go up by: no element begins with a dot, none is empty.
bool isResolved(const std::wstring& target) {
    wchar_t former = 0;
    for (const wchar_t c : target) {
        if (c == L'?' || c == L'#' || (former == L'/' && (c == L'/' || c == L'.')))
            return false;
        former = c;
    }
    return former != L'/';
}

} // namespace

std::wstring resolveTarget(const std::wstring& folder, const std::wstring& target) {
    const bool isAbsolute = !target.empty() && target[0] == L'/';
    if (isAbsolute && isResolved(target))
        return target;
    const std::wstring whole = isAbsolute ? target : folder + target;
    const std::size_t end = whole.find_first_of(L"?#", isAbsolute ? 0 : folder.size());
    Segments result;
    for (const std::wstring_view segment : splitPath(std::wstring_view(whole).substr(0, end))) {
        if (segment == L"..") {
            if (!result.empty())
                result.pop_back();
        } else if (!segment.empty() && segment != L".") {
            result.push_back(segment);
        }
    }
    std::wstring name;
    name.reserve(whole.size() + 1);
    for (const std::wstring_view segment : result)
        name.append(L"/").append(segment);
    return name.empty() ? L"/" : name;
}

std::wstring makeRelativeTarget(const std::wstring& folder, const std::wstring& name) {
    const Segments from = splitPath(folder), to = splitPath(name);
    // The last element of the folder is the empty text behind its "/".
    std::size_t shared = 0;
    while (shared + 1 < from.size() && shared + 1 < to.size() && from[shared] == to[shared])
        ++shared;
    std::wstring target;
    target.reserve(name.size());
    for (std::size_t i = shared; i + 1 < from.size(); ++i)
        target += L"../";
    for (std::size_t i = shared; i < to.size(); ++i)
        target.append(i > shared ? L"/" : L"").append(to[i]);
    return target;
}

namespace {

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

bool isHexDigit(wchar_t c) {
    return isDigit(c) || (c >= L'a' && c <= L'f') || (c >= L'A' && c <= L'F');
}

bool isLetter(wchar_t c) {
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
}

bool isBlank(wchar_t c) {
    return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n';
}

void appendEncoded(std::wstring& text, wchar_t c) {
    static const wchar_t digits[] = L"0123456789ABCDEF";
    text += {L'%', digits[(c >> 4) & 15], digits[c & 15]};
}

// Percent-encodes what stands nowhere in a reference, and some more that doesn't belong where the text does.
// What is encoded already stays; a backslash is allowed, and letters of other scripts are.
std::wstring encode(const std::wstring& text, const std::wstring& more) {
    constexpr std::wstring_view never = L"\"<>^`{|}\x7f";
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t c = text[i];
        const bool isStray =
            c == L'%' && !(i + 2 < text.size() && isHexDigit(text[i + 1]) && isHexDigit(text[i + 2]));
        if (isStray || c <= L' ' || (c < 0x80 && (never.find(c) != never.npos || more.find(c) != more.npos)))
            appendEncoded(result, c);
        else
            result.push_back(c);
    }
    return result;
}

// Cuts off what stands from a character on.
std::wstring takeFrom(std::wstring& text, wchar_t mark) {
    const std::size_t at = std::min(text.find(mark), text.size());
    std::wstring tail = text.substr(at);
    text.erase(at);
    return tail;
}

// Cuts off "http:"; empty for a relative reference.
std::wstring takeScheme(std::wstring& text) {
    std::size_t end = 0;
    while (end < text.size() &&
           (isLetter(text[end]) ||
            (end > 0 && (isDigit(text[end]) || std::wstring(L"+-.").find(text[end]) != std::wstring::npos))))
        ++end;
    if (end == 0 || end == text.size() || text[end] != L':')
        return {};
    std::wstring scheme = text.substr(0, end + 1);
    text.erase(0, end + 1);
    return scheme;
}

bool isPort(const std::wstring& text) {
    return text.size() <= 5 && std::all_of(text.begin(), text.end(), isDigit);
}

// "[::1]", the one place for brackets.
bool isAddressLiteral(const std::wstring& host) {
    if (host.size() < 2 || host.front() != L'[' || host.back() != L']')
        return false;
    const std::string address(host.begin() + 1, host.end() - 1);
    in6_addr parsed;
    return std::all_of(host.begin(), host.end(), [](wchar_t c) { return c < 0x80; }) &&
           inet_pton(AF_INET6, address.c_str(), &parsed) == 1;
}

// user@host:port
std::wstring encodeAuthority(const std::wstring& text) {
    const std::size_t at = text.rfind(L'@');
    const std::wstring user =
        at == std::wstring::npos ? std::wstring() : encode(text.substr(0, at), L"@[]") + L"@";
    std::wstring host = at == std::wstring::npos ? text : text.substr(at + 1);
    std::wstring port;
    const std::size_t colon = host.rfind(L':');
    if (colon != std::wstring::npos && isPort(host.substr(colon + 1))) {
        port = host.substr(colon);
        host.erase(colon);
    }
    return user + (isAddressLiteral(host) ? host : encode(host, L":[]")) + port;
}

} // namespace

// As RFC 3986 takes references apart: scheme:[//authority]path[?query][#fragment].
std::wstring makeExternalTarget(const std::wstring& target) {
    std::wstring path = boost::algorithm::trim_copy_if(target, isBlank);
    std::wstring result = takeScheme(path);
    const std::wstring fragment = takeFrom(path, L'#');
    const std::wstring query = takeFrom(path, L'?');
    if (boost::algorithm::starts_with(path, L"//")) {
        std::wstring authority = path.substr(2);
        path = takeFrom(authority, L'/');
        result += L"//" + encodeAuthority(authority);
    } else if (result.empty()) {
        // Before a colon in the first segment readers would see a scheme.
        const std::wstring tail = takeFrom(path, L'/');
        result = encode(path, L":[]");
        path = tail;
    }
    result += encode(path, L"[]") + encode(query, L"[]");
    return fragment.empty() ? result : result + L"#" + encode(fragment.substr(1), L"[]#");
}

} // namespace opc
