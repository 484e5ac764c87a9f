#include "vellox/ppt/formats/FitWords.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"

namespace vellox::ppt {

namespace {

constexpr FitWord kFits[] = {
    {L"contain", Fit::Contain},
    {L"enlarge", Fit::Enlarge},
    {L"cover", Fit::Cover},
    {L"stretch", Fit::Stretch},
};

constexpr FitPosition kPositions[] = {
    {kMiddleOfBox, 0.5, 0.5}, {L"top", 0.5, 0},      {L"bottom", 0.5, 1},
    {L"left", 0, 0.5},        {L"right", 1, 0.5},    {L"topLeft", 0, 0},
    {L"topRight", 1, 0},      {L"bottomLeft", 0, 1}, {L"bottomRight", 1, 1},
};

template <class Row, std::size_t kCount>
const Row& require(const Row (&rows)[kCount], const std::wstring& word) {
    for (const Row& row : rows)
        if (toLowerString(word) == toLowerString(row.word))
            return row;
    raise(ppt_error::invalidPropertyValue(word));
}

} // namespace

const FitWord& requireFit(const std::wstring& word) {
    return require(kFits, word);
}

const FitPosition& requireFitPosition(const std::wstring& word) {
    return require(kPositions, word);
}

} // namespace vellox::ppt
