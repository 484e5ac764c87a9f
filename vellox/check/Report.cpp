#include "vellox/check/Report.h"

namespace vellox::check {

void Report::add(Code code, const Place& place, const std::wstring& text, const std::wstring& shape) {
    if (++count_ > kMaxFindings + 1)
        return;
    const bool isLast = isFull();
    const CodeRow& row = kCodes[static_cast<std::size_t>(isLast ? Code::moreFindings : code)];
    ppt::Finding finding;
    finding.severity = row.severity;
    finding.code = row.name;
    if (isLast) {
        finding.text = L"there are more than " + std::to_wstring(kMaxFindings) + L" findings";
    } else {
        finding.part = place.part;
        finding.slide = place.slide;
        finding.shape = shape;
        finding.text = text;
    }
    findings_.push_back(std::move(finding));
}

std::wstring countOf(std::size_t number, const std::wstring& noun) {
    return std::to_wstring(number) + L" " + noun + (number == 1 ? L"" : L"s");
}

std::wstring quote(const std::wstring& text) {
    constexpr std::size_t kMaxLength = 80;
    return L"\"" + (text.size() > kMaxLength ? text.substr(0, kMaxLength) + L"..." : text) + L"\"";
}

} // namespace vellox::check
