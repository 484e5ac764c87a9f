// Filling the shapes of a slide: everything is looked at before anything is changed.

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/fill/ShapeKeys.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/template/SlideSource.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/Cast.h"
#include "vellox/ppt/tree/ParagraphImpl.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <boost/make_shared.hpp>
#include <map>

namespace vellox::ppt {

namespace {

// A shape and what it is to get, in the form in which it takes it.
struct Filling {
    boost::intrusive_ptr<ShapeImpl> shape;
    HvContentPtr content;         ///< a list, or an object
    PPTNodeImpl::Child paragraph; ///< or this
};

bool takesText(const ShapeImpl& shape) {
    return getNodeKind(shape.getNodeType()).takes == Takes::TextAndContent;
}

bool takesPicture(const ShapeImpl& shape) {
    return shape.getNodeType() == NodeType::Picture || shape.isA(NodeType::PicturePlaceholder);
}

bool takesTable(const ShapeImpl& shape) {
    return shape.getNodeType() == NodeType::Table || shape.isA(NodeType::TablePlaceholder) ||
           shape.isA(NodeType::ContentPlaceholder);
}

// Only where it stands directly on its slide can a shape give way to any other.
bool mayGiveWay(const ShapeImpl& shape, bool isPicture) {
    const PPTNodeImpl* parent = shape.getParent();
    const TemplateShape* record = shape.getTemplateShape().get();
    const bool mayStayInGroup = isPicture && record && record->givesWayInGroup;
    return parent && (parent->getNodeType() == NodeType::Slide || mayStayInGroup);
}

// A list of lists, where a table is wanted.
class RowsOfLists : public HvTable {
public:
    explicit RowsOfLists(const HvList& list) {
        for (unsigned int r = 0; r < list.getSize(); ++r) {
            const HvContentPtr item = list.getItem(r);
            const boost::shared_ptr<HvList> row = ListContent::getValue(item);
            std::vector<HvContentPtr>& cells = rows_.emplace_back();
            for (unsigned int c = 0; row && c < row->getSize(); ++c)
                cells.push_back(row->getItem(c));
            if (!row)
                cells.push_back(item);
            width_ = std::max(width_, cells.size());
        }
    }
    HvContentPtr getEntry(unsigned int r, unsigned int c) const override {
        return c < rows_[r].size() ? rows_[r][c] : HvContentPtr();
    }
    bool isEmptyEntry(unsigned int r, unsigned int c) const override { return !getEntry(r, c); }
    unsigned int getNRows() const override { return static_cast<unsigned int>(rows_.size()); }
    unsigned int getNCols() const override { return static_cast<unsigned int>(width_); }

private:
    std::vector<std::vector<HvContentPtr>> rows_;
    std::size_t width_ = 0;
};

// The table that content is; empty for what is none.
HvContentPtr toTable(const HvContentPtr& content, bool takesLists) {
    if (getObjectImpl<TableImpl>(content))
        return content;
    boost::shared_ptr<HvTable> table = TableContent::getValue(content);
    const boost::shared_ptr<HvList> list = takesLists ? ListContent::getValue(content) : nullptr;
    if (list)
        table = boost::make_shared<RowsOfLists>(*list);
    return table ? boost::make_shared<ObjectContent>(Table(table)) : HvContentPtr();
}

// The paragraph that content is, as far as it is one: a text, a number, a truth value, nothing, a Paragraph.
PPTNodeImpl::Child toParagraph(const HvContentPtr& content) {
    const auto type = content ? content->getContentType() : HvContent::Empty;
    if (type == HvContent::Object)
        return getParagraphObject(content);
    const bool isOther = type == HvContent::List || type == HvContent::Table || type == HvContent::Unknown;
    return isOther ? PPTNodeImpl::Child() : contentToParagraph(content);
}

const wchar_t* describe(const HvContentPtr& content) {
    if (!content || content->getContentType() == HvContent::Empty)
        return L"nothing";
    if (getObjectImpl<PictureImpl>(content))
        return L"a picture";
    if (getObjectImpl<TableImpl>(content) || TableContent::cast(content))
        return L"a table";
    if (ListContent::cast(content))
        return L"a list";
    if (RecordContent::cast(content))
        return L"a record";
    return toParagraph(content) ? L"a text" : L"an object of another class";
}

// Of what stands in a list, however deep, the first that is no paragraph: a text box would describe it, or be silent.
void checkItems(const std::wstring& key, const HvContentPtr& content) {
    std::vector<boost::shared_ptr<HvList>> waiting{ListContent::getValue(content)};
    while (!waiting.empty()) {
        const boost::shared_ptr<HvList> list = waiting.back();
        waiting.pop_back();
        for (unsigned int i = 0; i < list->getSize(); ++i) {
            const HvContentPtr item = list->getItem(i);
            if (const boost::shared_ptr<HvList> inner = ListContent::getValue(item))
                waiting.push_back(inner);
            else if (!toParagraph(item))
                raise(ppt_error::shapeRefusesContent(key, std::wstring(L"a list with ") + describe(item)));
        }
    }
}

Filling prepare(const boost::intrusive_ptr<ShapeImpl>& shape, const std::wstring& key,
                const HvContentPtr& content) {
    Filling filling{shape, {}, {}};
    if (getObjectImpl<PictureImpl>(content)) {
        if (takesPicture(*shape) && mayGiveWay(*shape, true))
            filling.content = content;
    } else if (takesTable(*shape) && mayGiveWay(*shape, false)) {
        filling.content = toTable(content, !takesText(*shape));
    }
    if (!filling.content && takesText(*shape)) {
        if (ListContent::cast(content)) {
            checkItems(key, content);
            filling.content = content;
        } else {
            filling.paragraph = toParagraph(content);
        }
    }
    if (!filling.content && !filling.paragraph)
        raise(ppt_error::shapeRefusesContent(key, describe(content)));
    return filling;
}

// Each operation is the one that the class of the shape has for it.
void put(const Filling& filling) {
    if (filling.paragraph)
        static_cast<BaseTextBoxImpl&>(*filling.shape)
            .replace(static_cast<const Paragraph&>(*filling.paragraph));
    else if (filling.shape->getNodeType() == NodeType::Picture)
        static_cast<PictureImpl&>(*filling.shape)
            .replace(
                static_cast<const Picture&>(*getObjectImpl<PictureImpl>(filling.content)->makeInterface()));
    else
        filling.shape->replace(filling.content);
}

// What still waits for content. Titles that are empty wait as well.
bool isEmptyPlaceholder(const PPTNode& node) {
    const auto* shape = implAs<ShapeImpl>(node);
    const bool isOpen = shape && shape->isA(NodeType::BaseTextBox) && shape->getTemplateShape() &&
                        shape->getTemplateShape()->isPlaceholder;
    return isOpen && static_cast<const BaseTextBoxImpl*>(shape)->getText().empty();
}

// An animation of a shape that is gone is no sound slide.
bool isAnimated(const SlideImpl& slide, const ShapeImpl& shape) {
    const boost::shared_ptr<TemplateSlide>& record = slide.getTemplateSlide();
    if (!record || !record->source)
        return false;
    for (const xercesc::DOMElement* target : getElementsByName(record->source->get(), u"p:spTgt"))
        if (getAttribute(target, u"spid") == shape.getTemplateShape()->xmlId)
            return true;
    return false;
}

// What is empty on a new slide is found when that is written.
void settleEmpty(SlideImpl& slide, bool dropEmpty) {
    const PPTNode::Children shapes = slide.getChildren();
    const bool isNew = !slide.getTemplateSlide() || !slide.getTemplateSlide()->source;
    for (const auto& shape : shapes) {
        if (!isEmptyPlaceholder(*shape))
            continue;
        const auto& impl = *implOf<ShapeImpl>(*shape);
        if (dropEmpty && !isAnimated(slide, impl))
            slide.dropShape(*shape);
        else if (!isNew)
            report(ppt_finding::emptyPlaceholder(), impl);
    }
}

} // namespace

boost::shared_ptr<Shape> Slide::shape(const std::wstring& name) const {
    return Shape::cast(requireShape(*pimpl(), name)->makeInterface());
}

void Slide::fill(const Contents& contents, bool dropEmpty) {
    const boost::intrusive_ptr<SlideImpl> slide = heldImplOf<SlideImpl>(*this);
    std::map<const ShapeImpl*, std::wstring> keys;
    std::vector<Filling> fillings;
    for (const auto& [key, content] : contents.getRows()) {
        const boost::intrusive_ptr<ShapeImpl> shape = requireShape(*slide, key);
        const auto [former, isNew] = keys.emplace(shape.get(), key);
        if (!isNew)
            raise(ppt_error::shapeFilledTwice(former->second, key));
        fillings.push_back(prepare(shape, key, content.get()));
    }
    for (const Filling& filling : fillings)
        put(filling);
    settleEmpty(*slide, dropEmpty);
}

Table tableOf(const std::vector<std::vector<Content>>& rows) {
    const Content lists(rows);
    return Table(boost::make_shared<RowsOfLists>(*ListContent::getValue(lists.get())));
}

} // namespace vellox::ppt
