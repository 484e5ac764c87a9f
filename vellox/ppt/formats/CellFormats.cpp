#include "vellox/ppt/formats/CellFormats.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/Dimension.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/BaseDimensionImpl.h"
#include "vellox/ppt/formats/CellFormatsImpl.h"
#include "vellox/ppt/formats/ColorTable.h"
#include "vellox/ppt/formats/SpellingTable.h"

#include <algorithm>
#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/predicate.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/algorithm/string/trim.hpp>
#include <vector>

namespace vellox::ppt {

// FacetFormatImpl

void FacetFormatImpl::setFacet(unsigned int facet, const std::wstring& text) {
    texts_.at(facet).set(read(facet, text));
}

void FacetFormatImpl::unsetFacet(unsigned int facet) {
    texts_.at(facet).unset();
    forget(facet);
}

bool FacetFormatImpl::isEmpty() const {
    return std::none_of(texts_.begin(), texts_.end(), [](const Text& text) { return text.isSet(); });
}

// FacetFormat

FacetFormat::FacetFormat(FacetFormatImpl* impl) : Format(impl) {}

FacetFormatImpl* FacetFormat::pimpl() {
    return implOf<FacetFormatImpl>(*this);
}

const FacetFormatImpl* FacetFormat::pimpl() const {
    return implOf<FacetFormatImpl>(*this);
}

BaseAttribute<std::wstring> FacetFormat::getFacet(unsigned int facet) const {
    return pimpl()->getFacet(facet);
}

void FacetFormat::setFacet(unsigned int facet, const std::wstring& text) {
    pimpl()->setFacet(facet, text);
}

void FacetFormat::unsetFacet(unsigned int facet) {
    pimpl()->unsetFacet(facet);
}

bool FacetFormat::isEmpty() const {
    return pimpl()->isEmpty();
}

// CellBorders

namespace {

constexpr int kWidestLine = 20116800; // in EMU, as the format has it
constexpr wchar_t kNoLine[] = L"none", kDoubleLine[] = L"double";
constexpr wchar_t kUsualWidth[] = L"1pt", kUsualKind[] = L"solid", kUsualColor[] = L"black";

// Named as the lines under text are.
const SpellingTable& getLineKinds() {
    static const SpellingTable& kinds = *new const SpellingTable{
        {L"solid", L"solid", u"solid"},       {L"dotted", L"dotted", u"sysDot"},
        {L"dash", L"dash", u"dash"},          {L"dashlong", L"dashLong", u"lgDash"},
        {L"dotdash", L"dotDash", u"dashDot"}, {L"dotdotdash", L"dotDotDash", u"sysDashDotDot"},
        {L"double", kDoubleLine, u"solid"},
    };
    return kinds;
}

std::vector<std::wstring> splitWords(const std::wstring& text) {
    std::vector<std::wstring> words;
    const std::wstring trimmed = boost::algorithm::trim_copy(text);
    boost::algorithm::split(words, trimmed, boost::algorithm::is_space(),
                            boost::algorithm::token_compress_on);
    return words;
}

// The words of a line; what is left out stays empty.
struct LineWords {
    std::wstring width, kind, color;

    // Whether the word is one of a line, and its place was free.
    bool take(const std::wstring& word) {
        const ValueMapping& known = getLineKinds().lookup(word);
        if (!known.label.empty())
            return put(kind, known.label);
        if (Dimension::isValid(word))
            return put(width, word);
        const std::wstring lower = toLowerString(word);
        return isColor(lower) && put(color, lower);
    }

private:
    static bool put(std::wstring& place, const std::wstring& word) {
        const bool isFree = place.empty();
        place = word;
        return isFree;
    }
};

LineWords readLine(const std::wstring& text) {
    LineWords words;
    for (const std::wstring& word : splitWords(text))
        if (!words.take(word))
            raise(ppt_error::invalidPropertyValue(text));
    return words;
}

} // namespace

std::wstring CellBordersImpl::read(unsigned int facet, const std::wstring& text) {
    BorderLine line;
    if (boost::algorithm::iequals(boost::algorithm::trim_copy(text), kNoLine)) {
        line.isThere = false;
        lines_.at(facet) = line;
        return kNoLine;
    }
    LineWords words = readLine(text);
    const auto fill = [](std::wstring& word, const wchar_t* usual) {
        if (word.empty())
            word = usual;
    };
    fill(words.width, kUsualWidth);
    fill(words.kind, kUsualKind);
    fill(words.color, kUsualColor);
    line.widthEmu = std::min(requireExtent(words.width, text).getEMUNumber(), kWidestLine);
    line.dash = getLineKinds().lookup(words.kind).xmlValue;
    line.compound = words.kind == kDoubleLine ? u"dbl" : u"sng";
    line.color = toHex(words.color);
    lines_.at(facet) = line;
    return words.width + L" " + words.kind + L" " + words.color;
}

boost::shared_ptr<CellBorders> CellBordersImpl::clone() const {
    return ObjectAccess::makeFacade<CellBorders>(new CellBordersImpl(*this));
}

CellBorders::CellBorders() : CellBorders(new CellBordersImpl) {}
CellBorders::CellBorders(CellBordersImpl* impl) : FacetFormat(impl) {}

boost::shared_ptr<CellBorders> CellBorders::clone() const {
    return implOf<CellBordersImpl>(*this)->clone();
}

// CellMargins

std::wstring CellMarginsImpl::read(unsigned int facet, const std::wstring& text) {
    margins_.at(facet) = requireExtent(text, text).getEMUNumber();
    return Dimension(text).getRawValue();
}

boost::shared_ptr<CellMargins> CellMarginsImpl::clone() const {
    return ObjectAccess::makeFacade<CellMargins>(new CellMarginsImpl(*this));
}

CellMargins::CellMargins() : CellMargins(new CellMarginsImpl) {}
CellMargins::CellMargins(CellMarginsImpl* impl) : FacetFormat(impl) {}

boost::shared_ptr<CellMargins> CellMargins::clone() const {
    return implOf<CellMarginsImpl>(*this)->clone();
}

// ValueFormat

std::wstring ValueFormatImpl::read(unsigned int facet, const std::wstring& text) {
    if (facet != ValueFormat::NumberFormat)
        return text;
    const bool isNone = text == L"none"; // which is a form that is for nothing
    const std::optional<NumberForm> form = isNone ? NumberForm() : NumberForm::parse(text);
    if (!form)
        raise(ppt_error::invalidPropertyValue(text));
    form_ = form;
    return text;
}

void ValueFormatImpl::forget(unsigned int facet) {
    if (facet == ValueFormat::NumberFormat)
        form_.reset();
}

boost::shared_ptr<ValueFormat> ValueFormatImpl::clone() const {
    return ObjectAccess::makeFacade<ValueFormat>(new ValueFormatImpl(*this));
}

ValueFormat::ValueFormat() : ValueFormat(new ValueFormatImpl) {}
ValueFormat::ValueFormat(ValueFormatImpl* impl) : FacetFormat(impl) {}

boost::shared_ptr<ValueFormat> ValueFormat::clone() const {
    return implOf<ValueFormatImpl>(*this)->clone();
}

} // namespace vellox::ppt
