/// @file
/// What may stand ahead of the paragraphs of a list.

#ifndef VELLOX_PPT_FORMATS_BULLETFORMS_H
#define VELLOX_PPT_FORMATS_BULLETFORMS_H

#include <string>
#include <vector>

#include <xercesc/util/XercesDefs.hpp>

namespace vellox::ppt {

/// Nothing, a number or a character.
struct BulletForm {
    const XMLCh* numbering = nullptr; ///< type of a:buAutoNum; null where nothing is counted
    unsigned int start = 1;           ///< of the count
    std::wstring character;           ///< where nothing is counted; empty for nothing at all
};

/// One for each level that the words of a text stand for, such as "1. a) -".
/// @throws invalidPropertyValue for a word that is none, and for a text without any
std::vector<BulletForm> parseBullets(const std::wstring& text);

} // namespace vellox::ppt

#endif
