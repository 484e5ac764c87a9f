/// @file
/// Where the steps of the check write their findings.

#ifndef VELLOX_CHECK_REPORT_H
#define VELLOX_CHECK_REPORT_H

#include <string>
#include <vector>

#include "vellox/check/FindingCodes.h"

namespace vellox::check {

/// What a finding is about.
struct Place {
    std::wstring part;
    unsigned int slide = 0;
};

/// Fills a list of findings, up to a limit: a damaged deck can have one for each of its elements.
class Report {
public:
    static constexpr std::size_t kMaxFindings = 1000;

    explicit Report(std::vector<ppt::Finding>& findings) : findings_(findings) {}

    void add(Code code, const Place& place, const std::wstring& text, const std::wstring& shape = {});
    bool isFull() const { return count_ > kMaxFindings; }

private:
    std::vector<ppt::Finding>& findings_;
    std::size_t count_ = 0;
};

/// Such as "1 cell" and "2 cells".
std::wstring countOf(std::size_t number, const std::wstring& noun);

/// A text between quotation marks; what is long is cut.
std::wstring quote(const std::wstring& text);

} // namespace vellox::check

#endif
