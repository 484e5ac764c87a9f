/// @file
/// What a text has between braces.

#ifndef VELLOX_PPT_FILL_TOKENS_H
#define VELLOX_PPT_FILL_TOKENS_H

#include <string>
#include <vector>

namespace vellox::ppt {

/// A piece of a text: "{flow.mean:.1f}", or a brace that is written twice.
struct Token {
    std::size_t start, end; ///< in the text, the braces among it
    std::wstring name;      ///< "flow.mean"; empty for a brace
    std::wstring form;      ///< ".1f", or empty

    /// Up to the first dot.
    std::wstring getFirst() const { return name.substr(0, name.find(L'.')); }
};

/// The tokens of a text, in order. A name is made of letters of any language, digits, "_", "-" and, between others,
/// dots; what else stands in braces is no token.
std::vector<Token> findTokens(const std::wstring& text);

} // namespace vellox::ppt

#endif
