#include "vellox/ppt/formats/ParagraphFormats.h"

#include "vellox/ppt/formats/BaseDimensionImpl.h"
#include "vellox/ppt/formats/BulletForms.h"
#include "vellox/ppt/writers/ParagraphWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

namespace vellox::ppt {

// Bullet

class BulletImpl : public FormatImpl {
public:
    explicit BulletImpl(const std::wstring& value) : value_(value), forms_(parseBullets(value)) {}

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.Bullet"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<Bullet>(this); }
    FormatType getFormatType() const override { return FormatType::Bullet; }
    void applyToParagraph(ParagraphWriter& writer) const override { writer.setBullet(forms_); }

    const std::wstring& getValue() const { return value_; }
    void setValue(const std::wstring& value) {
        forms_ = parseBullets(value);
        value_ = value;
    }

private:
    std::wstring value_;
    std::vector<BulletForm> forms_;
};

Bullet::Bullet() : Bullet(L"\u2022") {}
Bullet::Bullet(const std::wstring& value) : Bullet(new BulletImpl(value)) {}
Bullet::Bullet(BulletImpl* impl) : Format(impl) {}

const std::wstring& Bullet::getValue() const {
    return implOf<BulletImpl>(*this)->getValue();
}

void Bullet::setValue(const std::wstring& value) {
    implOf<BulletImpl>(*this)->setValue(value);
}

// Lengths

namespace {

struct LengthRow {
    const char* hostTypeName;
    FormatType type;
    const wchar_t* usual;
    void (ParagraphWriter::*apply)(const XMLCh* name, const Dimension& length);
    const XMLCh* name; // of an element or an attribute
    BaseDimensionImpl::Shares shares;
};

constexpr auto kTaken = BaseDimensionImpl::Shares::Taken, kRefused = BaseDimensionImpl::Shares::Refused;

constexpr LengthRow kSpaceBefore{"vellox.ppt.SpaceBefore",
                                 FormatType::SpaceBefore,
                                 L"0pt",
                                 &ParagraphWriter::setSpacing,
                                 u"a:spcBef",
                                 kTaken};
constexpr LengthRow kSpaceAfter{"vellox.ppt.SpaceAfter",
                                FormatType::SpaceAfter,
                                L"0pt",
                                &ParagraphWriter::setSpacing,
                                u"a:spcAft",
                                kTaken};
constexpr LengthRow kLineSpacing{"vellox.ppt.LineSpacing",
                                 FormatType::LineSpacing,
                                 L"100%",
                                 &ParagraphWriter::setSpacing,
                                 u"a:lnSpc",
                                 kTaken};
constexpr LengthRow kLeftIndent{"vellox.ppt.LeftIndent",
                                FormatType::LeftIndent,
                                L"0cm",
                                &ParagraphWriter::setIndent,
                                xml::kMarL,
                                kRefused};
constexpr LengthRow kFirstLineIndent{"vellox.ppt.FirstLineIndent",
                                     FormatType::FirstLineIndent,
                                     L"0cm",
                                     &ParagraphWriter::setIndent,
                                     xml::kIndent,
                                     kRefused};

template <class Facade, class Impl, const LengthRow& kRow> class LengthImpl : public BaseDimensionImpl {
public:
    explicit LengthImpl(const std::wstring& value) : BaseDimensionImpl(value, kRow.shares) {}

    const char* getFullyQualifiedHostTypeName() const override { return kRow.hostTypeName; }
    boost::shared_ptr<Format> makeInterface() override {
        return ObjectAccess::makeFacade<Facade>(static_cast<Impl*>(this));
    }
    FormatType getFormatType() const override { return kRow.type; }
    void applyToParagraph(ParagraphWriter& writer) const override {
        (writer.*kRow.apply)(kRow.name, getDimension());
    }
};

} // namespace

class SpaceBeforeImpl : public LengthImpl<SpaceBefore, SpaceBeforeImpl, kSpaceBefore> {
public:
    using LengthImpl::LengthImpl;
};

class SpaceAfterImpl : public LengthImpl<SpaceAfter, SpaceAfterImpl, kSpaceAfter> {
public:
    using LengthImpl::LengthImpl;
};

class LineSpacingImpl : public LengthImpl<LineSpacing, LineSpacingImpl, kLineSpacing> {
public:
    using LengthImpl::LengthImpl;
};

class LeftIndentImpl : public LengthImpl<LeftIndent, LeftIndentImpl, kLeftIndent> {
public:
    using LengthImpl::LengthImpl;
};

class FirstLineIndentImpl : public LengthImpl<FirstLineIndent, FirstLineIndentImpl, kFirstLineIndent> {
public:
    using LengthImpl::LengthImpl;
};

SpaceBefore::SpaceBefore() : SpaceBefore(kSpaceBefore.usual) {}
SpaceBefore::SpaceBefore(const std::wstring& value) : SpaceBefore(new SpaceBeforeImpl(value)) {}
SpaceBefore::SpaceBefore(SpaceBeforeImpl* impl) : BaseDimension(impl) {}

SpaceAfter::SpaceAfter() : SpaceAfter(kSpaceAfter.usual) {}
SpaceAfter::SpaceAfter(const std::wstring& value) : SpaceAfter(new SpaceAfterImpl(value)) {}
SpaceAfter::SpaceAfter(SpaceAfterImpl* impl) : BaseDimension(impl) {}

LineSpacing::LineSpacing() : LineSpacing(kLineSpacing.usual) {}
LineSpacing::LineSpacing(const std::wstring& value) : LineSpacing(new LineSpacingImpl(value)) {}
LineSpacing::LineSpacing(LineSpacingImpl* impl) : BaseDimension(impl) {}

LeftIndent::LeftIndent() : LeftIndent(kLeftIndent.usual) {}
LeftIndent::LeftIndent(const std::wstring& value) : LeftIndent(new LeftIndentImpl(value)) {}
LeftIndent::LeftIndent(LeftIndentImpl* impl) : BaseDimension(impl) {}

FirstLineIndent::FirstLineIndent() : FirstLineIndent(kFirstLineIndent.usual) {}
FirstLineIndent::FirstLineIndent(const std::wstring& value)
    : FirstLineIndent(new FirstLineIndentImpl(value)) {}
FirstLineIndent::FirstLineIndent(FirstLineIndentImpl* impl) : BaseDimension(impl) {}

// RightToLeft

class RightToLeftImpl : public FormatImpl {
public:
    explicit RightToLeftImpl(bool value) : value_(value) {}

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.RightToLeft"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<RightToLeft>(this); }
    FormatType getFormatType() const override { return FormatType::RightToLeft; }
    void applyToParagraph(ParagraphWriter& writer) const override { writer.setRightToLeft(value_); }

    bool getValue() const { return value_; }
    void setValue(bool value) { value_ = value; }

private:
    bool value_;
};

RightToLeft::RightToLeft() : RightToLeft(true) {}
RightToLeft::RightToLeft(bool value) : RightToLeft(new RightToLeftImpl(value)) {}
RightToLeft::RightToLeft(RightToLeftImpl* impl) : Format(impl) {}

bool RightToLeft::getValue() const {
    return implOf<RightToLeftImpl>(*this)->getValue();
}

void RightToLeft::setValue(bool value) {
    implOf<RightToLeftImpl>(*this)->setValue(value);
}

} // namespace vellox::ppt
