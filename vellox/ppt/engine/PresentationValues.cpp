// How values are shown in all of a presentation.

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationImpl.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace {

BaseAttribute<std::wstring> getFacet(const PresentationImpl& deck, ValueFormat::Facet facet) {
    const boost::shared_ptr<ValueFormat>& format = deck.getValues().format;
    return format ? format->getFacet(facet) : BaseAttribute<std::wstring>();
}

void setFacet(PresentationImpl& deck, ValueFormat::Facet facet, const std::wstring& text) {
    boost::shared_ptr<ValueFormat>& format = deck.getValues().format;
    const boost::shared_ptr<ValueFormat> made = format ? format : boost::make_shared<ValueFormat>();
    made->setFacet(facet, text);
    format = made;
}

void unsetFacet(PresentationImpl& deck, ValueFormat::Facet facet) {
    if (const boost::shared_ptr<ValueFormat>& format = deck.getValues().format)
        format->unsetFacet(facet);
}

BaseAttribute<std::wstring> toAttribute(const std::optional<std::wstring>& mark) {
    return mark ? BaseAttribute<std::wstring>(*mark) : BaseAttribute<std::wstring>();
}

const std::wstring& requireMark(const std::wstring& mark) {
    if (mark.size() != 1 || (mark[0] >= L'0' && mark[0] <= L'9'))
        raise(ppt_error::invalidPropertyValue(mark));
    return mark;
}

} // namespace

BaseAttribute<std::wstring> Presentation::getNumberFormat() const {
    return getFacet(*pimpl(), ValueFormat::NumberFormat);
}

void Presentation::setNumberFormat(const std::wstring& form) {
    setFacet(*pimpl(), ValueFormat::NumberFormat, form);
}

void Presentation::unsetNumberFormat() {
    unsetFacet(*pimpl(), ValueFormat::NumberFormat);
}

BaseAttribute<std::wstring> Presentation::getMissingText() const {
    return getFacet(*pimpl(), ValueFormat::MissingText);
}

void Presentation::setMissingText(const std::wstring& text) {
    setFacet(*pimpl(), ValueFormat::MissingText, text);
}

void Presentation::unsetMissingText() {
    unsetFacet(*pimpl(), ValueFormat::MissingText);
}

BaseAttribute<std::wstring> Presentation::getTrueText() const {
    return getFacet(*pimpl(), ValueFormat::TrueText);
}

void Presentation::setTrueText(const std::wstring& text) {
    setFacet(*pimpl(), ValueFormat::TrueText, text);
}

void Presentation::unsetTrueText() {
    unsetFacet(*pimpl(), ValueFormat::TrueText);
}

BaseAttribute<std::wstring> Presentation::getFalseText() const {
    return getFacet(*pimpl(), ValueFormat::FalseText);
}

void Presentation::setFalseText(const std::wstring& text) {
    setFacet(*pimpl(), ValueFormat::FalseText, text);
}

void Presentation::unsetFalseText() {
    unsetFacet(*pimpl(), ValueFormat::FalseText);
}

BaseAttribute<std::wstring> Presentation::getDecimalMark() const {
    return toAttribute(pimpl()->getValues().decimalMark);
}

void Presentation::setDecimalMark(const std::wstring& mark) {
    pimpl()->getValues().decimalMark = requireMark(mark);
}

void Presentation::unsetDecimalMark() {
    pimpl()->getValues().decimalMark.reset();
}

BaseAttribute<std::wstring> Presentation::getThousandsMark() const {
    return toAttribute(pimpl()->getValues().thousandsMark);
}

void Presentation::setThousandsMark(const std::wstring& mark) {
    pimpl()->getValues().thousandsMark = mark.empty() ? mark : requireMark(mark);
}

void Presentation::unsetThousandsMark() {
    pimpl()->getValues().thousandsMark.reset();
}

} // namespace vellox::ppt
