/// @file
/// The values of tokens.

#ifndef VELLOX_PPT_FILL_TOKENVALUES_H
#define VELLOX_PPT_FILL_TOKENVALUES_H

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "vellox/ppt/fill/Tokens.h"
#include "vellox/ppt/formats/NumberForm.h"
#include "vellox/ppt/object/Content.h"

namespace vellox::ppt {

/// A record by whose fields tokens of a name are filled, while a row or a paragraph is repeated.
struct TokenScope {
    std::wstring name;
    const Contents& record;
};

class TokenValues {
public:
    explicit TokenValues(const Contents& values, const NumberMarks& marks = {});

    const NumberMarks& getMarks() const { return marks_; }

    /// The value of a token, which counts as used then.
    /// @param scope null outside of what is repeated
    /// @return null if there is none; a null content is the value None
    const Content* find(const Token& token, const TokenScope* scope);
    /// The records of a list of them, or of a table with names in its first row, that a token "rows.name" speaks of.
    /// @return null if its value is something else
    const std::vector<Contents>* findRecords(const Token& token);
    /// The names whose values no token has asked for.
    std::vector<std::wstring> getUnused() const;

private:
    const Contents& values_;
    const NumberMarks marks_;
    std::map<std::wstring, const Content*> byName_;
    std::map<std::wstring, std::optional<std::vector<Contents>>>
        records_; // by name, once they were asked for
    std::set<std::wstring> used_;
};

/// A value as text.
/// @return nothing for what is no text and has none, or can't have the form
std::optional<std::wstring> toText(const HvContentPtr& content, const std::wstring& form,
                                   const NumberMarks& marks = {});

} // namespace vellox::ppt

#endif
