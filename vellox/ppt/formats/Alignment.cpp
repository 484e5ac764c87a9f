#include "vellox/ppt/formats/Alignment.h"

#include "vellox/ppt/formats/SpelledFormatImpl.h"
#include "vellox/ppt/writers/BaseTextBoxWriter.h"
#include "vellox/ppt/writers/ParagraphWriter.h"
#include "vellox/ppt/writers/TableEntryWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

namespace {

const SpellingTable& getHAligns() {
    static const SpellingTable& words = *new const SpellingTable{
        {L"left", L"left", u"l"},
        {L"right", L"right", u"r"},
        {L"center", L"center", u"ctr"},
        {L"justified", L"justified", u"just"},
        {L"justifiedlow", L"justifiedLow", u"justLow"},
        {L"distributed", L"distributed", u"dist"},
        {L"thaidistributed", L"thaiDistributed", u"thaiDist"},
    };
    return words;
}

const SpellingTable& getVAligns() {
    static const SpellingTable& words = *new const SpellingTable{
        {L"top", L"top", u"t"},
        {L"middle", L"middle", u"ctr"},
        {L"bottom", L"bottom", u"b"},
        {L"topcentered", L"topCentered", u"t"},
        {L"middlecentered", L"middleCentered", u"ctr"},
        {L"bottomcentered", L"bottomCentered", u"b"},
    };
    return words;
}

constexpr wchar_t kDefaultHAlign[] = L"left";
constexpr wchar_t kDefaultVAlign[] = L"top";

} // namespace

// HAlign

class HAlignImpl : public SpelledFormatImpl {
public:
    explicit HAlignImpl(const std::wstring& word) : SpelledFormatImpl(getHAligns(), word) {}

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.HAlign"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<HAlign>(this); }
    FormatType getFormatType() const override { return FormatType::HAlign; }
    void applyToParagraph(ParagraphWriter& writer) const override {
        writer.setPPrAttribute(xml::kAlgn, getMapping());
    }
    virtual boost::shared_ptr<HAlign> clone() const {
        return ObjectAccess::makeFacade<HAlign>(new HAlignImpl(*this));
    }
};

HAlign::HAlign() : HAlign(kDefaultHAlign) {}
HAlign::HAlign(const std::wstring& value) : HAlign(new HAlignImpl(value)) {}
HAlign::HAlign(HAlignImpl* impl) : Format(impl) {}

std::wstring HAlign::getValue() const {
    return implOf<HAlignImpl>(*this)->getLabel();
}

void HAlign::setValue(const std::wstring& value) {
    implOf<HAlignImpl>(*this)->setWord(value);
}

boost::shared_ptr<HAlign> HAlign::clone() const {
    return implOf<HAlignImpl>(*this)->clone();
}

// VAlign

class VAlignImpl : public SpelledFormatImpl {
public:
    explicit VAlignImpl(const std::wstring& word) : SpelledFormatImpl(getVAligns(), word) {}

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.VAlign"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<VAlign>(this); }
    FormatType getFormatType() const override { return FormatType::VAlign; }
    void applyToTextBox(BaseTextBoxWriter& writer) const override {
        writer.setBodyPrAttribute(xml::kAnchor, getMapping());
        writer.setBodyPrFlag(xml::kAnchorCtr, isCentered());
    }
    void applyToTableEntry(TableEntryWriter& writer) const override {
        writer.setTcPrAttribute(xml::kAnchor, getMapping());
        writer.setTcPrFlag(xml::kAnchorCtr, isCentered());
    }
    virtual boost::shared_ptr<VAlign> clone() const {
        return ObjectAccess::makeFacade<VAlign>(new VAlignImpl(*this));
    }

private:
    bool isCentered() const { return getLabel().find(L"Centered") != std::wstring::npos; }
};

VAlign::VAlign() : VAlign(kDefaultVAlign) {}
VAlign::VAlign(const std::wstring& value) : VAlign(new VAlignImpl(value)) {}
VAlign::VAlign(VAlignImpl* impl) : Format(impl) {}

std::wstring VAlign::getValue() const {
    return implOf<VAlignImpl>(*this)->getLabel();
}

void VAlign::setValue(const std::wstring& value) {
    implOf<VAlignImpl>(*this)->setWord(value);
}

boost::shared_ptr<VAlign> VAlign::clone() const {
    return implOf<VAlignImpl>(*this)->clone();
}

} // namespace vellox::ppt
