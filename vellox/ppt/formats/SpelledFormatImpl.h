/// @file
/// What the formats that are set by a word share. Internal: users hold facades.

#ifndef VELLOX_PPT_FORMATS_SPELLEDFORMATIMPL_H
#define VELLOX_PPT_FORMATS_SPELLEDFORMATIMPL_H

#include <string>

#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/formats/SpellingTable.h"

namespace vellox::ppt {

/// Holds a word of a vocabulary. The row is kept and not only its label: the label of one underline style
/// isn't among the words that the vocabulary takes.
class SpelledFormatImpl : public FormatImpl {
public:
    /// @throws invalidPropertyValue for a word that isn't in the vocabulary
    SpelledFormatImpl(const SpellingTable& vocabulary, const std::wstring& word)
        : vocabulary_(vocabulary),
          mapping_(&vocabulary.require(word)) {}
    SpelledFormatImpl(const SpelledFormatImpl&) = default;

    const std::wstring& getLabel() const { return mapping_->label; }
    const ValueMapping& getMapping() const { return *mapping_; }
    /// @throws invalidPropertyValue; nothing changes then
    void setWord(const std::wstring& word) { mapping_ = &vocabulary_.require(word); }

private:
    const SpellingTable& vocabulary_;
    const ValueMapping* mapping_; // of the vocabulary, which lives as long as the process
};

} // namespace vellox::ppt

#endif
