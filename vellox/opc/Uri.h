/// @file
/// References from one part to another, or out of the package.

#ifndef VELLOX_OPC_URI_H
#define VELLOX_OPC_URI_H

#include <string>

namespace opc {

/// A reference, as text. A value.
class URI {
public:
    explicit URI(std::wstring text) : text_(std::move(text)) {}

    const std::wstring& toString() const { return text_; }
    /// The text up to a query or a fragment.
    std::wstring getPath() const { return text_.substr(0, text_.find_first_of(L"?#")); }

private:
    std::wstring text_;
};

/// The absolute name that a target stands for in a source whose folder is given ("/ppt/slides/"). Query and
/// fragment are left out; ".." above the root of the package stays at the root.
std::wstring resolveTarget(const std::wstring& folder, const std::wstring& target);

/// The shortest target that leads from a folder to an absolute name: "../media/a.png".
std::wstring makeRelativeTarget(const std::wstring& folder, const std::wstring& name);

/// A target outside the package as a reference (xs:anyURI): blanks around it are cut off, and what can't stand
/// where it does is percent-encoded, such as blanks, quotes, brackets, a "%" without two digits, a second "#".
/// Readers refuse a whole package for one such character. A reference stays as it is.
std::wstring makeExternalTarget(const std::wstring& target);

} // namespace opc

#endif
