/// @file
/// The vocabularies of formats that are set by a word.

#ifndef VELLOX_PPT_FORMATS_SPELLINGTABLE_H
#define VELLOX_PPT_FORMATS_SPELLINGTABLE_H

#include <initializer_list>
#include <map>
#include <string>

#include <xercesc/util/XercesDefs.hpp>

namespace vellox::ppt {

/// One word: as it is stored and read back, and as the XML has it. The mapping of a word that isn't in the
/// vocabulary has an empty label.
struct ValueMapping {
    std::wstring label;
    const XMLCh* xmlValue = u"";
};

/// A vocabulary. Input is lowercased before it is looked up, so that a key with a capital letter in it can
/// never be found.
class SpellingTable {
public:
    struct Row {
        const wchar_t* key;
        const wchar_t* label;
        const XMLCh* xmlValue;
    };

    SpellingTable(std::initializer_list<Row> rows);

    const ValueMapping& lookup(const std::wstring& text) const;
    /// @throws invalidPropertyValue with the text if it isn't in the vocabulary
    const ValueMapping& require(const std::wstring& text) const;

private:
    std::map<std::wstring, ValueMapping> mappings_;
};

} // namespace vellox::ppt

#endif
