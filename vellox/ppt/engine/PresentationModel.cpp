#include "vellox/ppt/engine/PresentationModel.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/Package.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/template/SlideDocuments.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/Sections.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

using namespace xercesc;

namespace {

bool isPresentationType(const std::wstring& contentType) {
    return std::any_of(std::begin(contenttype::kMainTypes), std::end(contenttype::kMainTypes),
                       [&](const contenttype::MainType& row) { return contentType == row.contentType; });
}

std::wstring nextShapeUid() {
    static unsigned int counter = 0;
    return num2str(++counter);
}

} // namespace

PresentationModel::PresentationModel(boost::shared_ptr<PartDOMBuilder> builder)
    : builder_(std::move(builder)),
      masters_(boost::make_shared<Masters>()),
      slides_(boost::make_shared<Slides>()) {}

PresentationModel::~PresentationModel() {
    // Layouts and masters hold one another; slides that outlive the model hold their layouts.
    for (const auto& layout : layoutsByPartName_)
        layout.second->master.reset();
    for (const auto& slide : *slides_)
        slide->document.reset();
}

bool PresentationModel::load() {
    presentationPartName_ = builder_->getRelationshipTarget(relationship::kOfficeDocument);
    if (presentationPartName_.empty() || !builder_->hasPart(presentationPartName_))
        return false;
    const opc::Part presentation = builder_->getPart(presentationPartName_);
    const bool isAccepted = isPresentationType(presentation.getContentType().toString());
    if (isAccepted) {
        presentationDocument_.reset(builder_->getDocument(presentation));
        loadMasters(presentation);
        loadSlides(presentation);
    }
    const std::wstring tableStyles =
        builder_->getRelationshipTarget(presentation, relationship::kTableStyles);
    if (!tableStyles.empty())
        loadTableStyles(tableStyles);
    return isAccepted;
}

// Masters, themes, layouts

void PresentationModel::loadMasters(const opc::Part& presentation) {
    for (const DOMElement* element : getElementsByName(presentationDocument_.get(), xml::kSldMasterId)) {
        const auto master = boost::make_shared<TemplateMaster>();
        master->id = getAttribute(element, xml::kId);
        master->relationshipId = getAttribute(element, xml::kRId);
        masters_->push_back(master);
    }
    for (const auto& master : *masters_)
        loadMaster(presentation, master);
}

void PresentationModel::loadMaster(const opc::Part& presentation,
                                   const boost::shared_ptr<TemplateMaster>& master) {
    const opc::Part part = builder_->getPart(presentation.getRelationshipByID(master->relationshipId));
    master->partName = part.getName().toString();
    mastersByPartName_.emplace(master->partName, master);
    master->document.reset(builder_->getDocument(part));
    for (DOMElement* properties : getElementsByName(master->document.get(), xml::kCNvPr)) {
        const std::wstring id = getAttribute(properties, xml::kId);
        auto* shape = dynamic_cast<DOMElement*>(properties->getParentNode()->getParentNode());
        if (!id.empty() && shape)
            master->shapeElementsById.emplace(id, shape);
    }
    loadTheme(part, *master);
    masterNames_.push_back(master->name);
    mastersByName_.emplace(master->name, master);
    loadLayouts(part, *master);
}

void PresentationModel::loadTheme(const opc::Part& masterPart, TemplateMaster& master) {
    const std::wstring target = builder_->getRelationshipTarget(masterPart, relationship::kTheme);
    if (target.empty())
        return;
    const OwnedDocument document(builder_->getDocument(builder_->getPart(target)));
    const std::vector<DOMElement*> themes = getElementsByName(document.get(), xml::kATheme);
    master.theme = boost::make_shared<TemplateTheme>();
    master.theme->partName = target;
    master.theme->name = getAttribute(themes.empty() ? nullptr : themes.front(), xml::kName);
    master.name = master.theme->name;
}

void PresentationModel::loadLayouts(const opc::Part& masterPart, TemplateMaster& master) {
    master.layouts = boost::make_shared<std::vector<boost::shared_ptr<TemplateLayout>>>();
    for (const opc::Relationship& row : builder_->getRelationships(masterPart, relationship::kSlideLayout)) {
        const boost::shared_ptr<TemplateLayout> layout = getLayout(builder_->getPart(row));
        if (!layout)
            continue;
        builder_->charge(opc::kShapeCost + layout->name.size() * opc::kXmlAttributeCharacterCost);
        master.layouts->push_back(layout);
        master.layoutsByName.emplace(layout->name, layout);
        master.layoutNames.push_back(layout->name);
    }
}

// The document of a layout or slide, to be marked with data-uid. Marks that it has already, from wherever, are
// nobody's: they would lead to the wrong elements, and into the file.
OwnedDocument PresentationModel::readMarked(const opc::Part& part) {
    OwnedDocument document(builder_->getDocument(part));
    for (DOMElement* element : getAllElements(document.get()))
        if (element->hasAttribute(xml::kDataUid))
            element->removeAttribute(xml::kDataUid);
    return document;
}

boost::shared_ptr<TemplateLayout> PresentationModel::getLayout(const opc::Part& part) {
    const std::wstring partName = part.getName().toString();
    const auto known = layoutsByPartName_.find(partName);
    if (known != layoutsByPartName_.end())
        return known->second;
    OwnedDocument document = readMarked(part);
    const std::vector<DOMElement*> roots = getElementsByName(document.get(), xml::kSldLayout);
    if (roots.empty())
        return {};
    const auto layout = boost::make_shared<TemplateLayout>();
    layout->partName = partName;
    layout->document = std::move(document);
    layout->shapes = boost::make_shared<TemplateShapes>();
    readLayoutShapes(*layout);
    layout->type = getAttribute(roots.front(), xml::kType);
    layout->masterPartName = builder_->getRelationshipTarget(part, relationship::kSlideMaster);
    const std::vector<DOMElement*> slideData = getElementsByName(layout->document.get(), xml::kCSld);
    layout->name = getAttribute(slideData.empty() ? nullptr : slideData.front(), xml::kName);
    layoutsByPartName_.emplace(partName, layout);
    layout->master = findMaster(layout->masterPartName);
    return layout;
}

// A target may spell the name of its part in another way than the package does.
boost::shared_ptr<TemplateMaster> PresentationModel::findMaster(const std::wstring& target) const {
    if (target.empty() || !builder_->hasPart(target))
        return {};
    const auto found = mastersByPartName_.find(builder_->getPart(target).getName().toString());
    return found == mastersByPartName_.end() ? boost::shared_ptr<TemplateMaster>() : found->second;
}

void PresentationModel::readLayoutShapes(TemplateLayout& layout) {
    // Down to the first element of the shape tree, by first children: a layout in which a background stands
    // ahead of the tree has no placeholders for this library.
    DOMElement* element = goDownFirstChildren(layout.document.get(), 3);
    for (; element; element = element->getNextElementSibling())
        parseShape(element, *layout.shapes, nullptr);
    layout.elementsByUid = mapElementsByUid(layout.document.get());
    for (const auto& shape : *layout.shapes) {
        if (shape->xmlId.empty())
            continue;
        layout.shapeUidsById.emplace(shape->xmlId, shape->id);
        layout.maxShapeId = std::max(layout.maxShapeId, str2uint(shape->xmlId));
    }
}

// Slides

void PresentationModel::loadSlides(const opc::Part& presentation) {
    for (const DOMElement* element : getElementsByName(presentationDocument_.get(), xml::kSldId)) {
        const auto slide = boost::make_shared<TemplateSlide>();
        slide->id = getAttribute(element, xml::kId);
        slide->relationshipId = getAttribute(element, xml::kRId);
        slides_->push_back(slide);
    }
    for (const auto& slide : *slides_)
        loadSlide(presentation, *slide);
}

void PresentationModel::loadSlide(const opc::Part& presentation, TemplateSlide& slide) {
    const opc::Part part = builder_->getPart(presentation.getRelationshipByID(slide.relationshipId));
    slide.partName = part.getName().toString();
    const std::wstring layout = builder_->getRelationshipTarget(part, relationship::kSlideLayout);
    if (!layout.empty())
        slide.layout = getLayout(builder_->getPart(layout));
    slide.shapes = boost::make_shared<TemplateShapes>();
    slide.document = readMarked(part);
    const DOMElement* slideData = findChild(slide.document->getDocumentElement(), xml::kCSld);
    slide.name = getAttribute(slideData, xml::kName);
    DOMElement* tree = findDescendant(slide.document->getDocumentElement(), {xml::kCSld, xml::kSpTree});
    for (DOMElement* element : getChildElements(tree))
        parseShape(element, *slide.shapes, slide.layout.get());
    slide.elementsByUid = mapElementsByUid(slide.document.get());
}

// Shapes

namespace {

NodeType classifyShape(const DOMElement* shape) {
    struct Row {
        const XMLCh* placeholderType;
        NodeType type;
    };
    static const Row rows[] = {
        {u"", NodeType::ContentPlaceholder},        {u"body", NodeType::BodyPlaceholder},
        {u"clipArt", NodeType::PicturePlaceholder}, {u"ctrTitle", NodeType::TextBoxPlaceholder},
        {u"pic", NodeType::PicturePlaceholder},     {u"subTitle", NodeType::TextBoxPlaceholder},
        {u"tbl", NodeType::TablePlaceholder},       {u"title", NodeType::TextBoxPlaceholder},
    };
    const DOMElement* placeholder = findDescendant(shape, {xml::kNvSpPr, xml::kNvPr, xml::kPh});
    if (!placeholder)
        return NodeType::TextBox;
    for (const Row& row : rows)
        if (XMLString::equals(placeholder->getAttribute(xml::kType), row.placeholderType))
            return row.type;
    return NodeType::None;
}

bool isPlaceholder(NodeType type) {
    return isKindOf(type, NodeType::TextBoxPlaceholder);
}

// Those whose type in the XML is worth keeping: for the others it follows from the type of the node.
bool hasPlaceholderType(NodeType type) {
    return type == NodeType::PicturePlaceholder || type == NodeType::TablePlaceholder ||
           type == NodeType::TextBoxPlaceholder;
}

} // namespace

NodeType PresentationModel::classify(const DOMElement* element) {
    if (!element)
        return NodeType::None;
    if (hasName(*element, xml::kSp))
        return classifyShape(element);
    if (hasName(*element, xml::kPic))
        return NodeType::Picture;
    if (hasName(*element, xml::kGrpSp))
        return NodeType::Group;
    if (hasName(*element, xml::kGraphicFrame) &&
        findDescendant(element, {xml::kAGraphic, xml::kAGraphicData, xml::kATbl}))
        return NodeType::Table;
    return NodeType::None;
}

void PresentationModel::parseShape(DOMElement* element, TemplateShapes& shapes,
                                   const TemplateLayout* layout) {
    const NodeType type = classify(element);
    if (type == NodeType::None || (!layout && !isPlaceholder(type)))
        return;
    builder_->charge(opc::kShapeCost);
    const auto shape = boost::make_shared<TemplateShape>();
    shape->id = nextShapeUid();
    shape->type = type;
    if (const DOMElement* properties = findDescendant(element, {getNodeKind(type).nonVisual, xml::kCNvPr})) {
        const std::wstring name = getAttribute(properties, xml::kName);
        if (!name.empty())
            shape->shapeName.set(name);
        shape->xmlId = getAttribute(properties, xml::kId);
        if (layout && layout->shapeUidsById.count(shape->xmlId) > 0)
            shape->layoutShapeUid = layout->shapeUidsById.at(shape->xmlId);
    }
    shapes.push_back(shape);
    setAttribute(element, xml::kDataUid, shape->id);
    if (hasPlaceholderType(type))
        shape->placeholderType =
            getAttribute(findDescendant(element, {xml::kNvSpPr, xml::kNvPr, xml::kPh}), xml::kType);
    if (type == NodeType::Group) {
        shape->children = boost::make_shared<TemplateShapes>();
        for (DOMElement* child : getChildElements(element))
            parseShape(child, *shape->children, layout);
    }
}

// Table styles

void PresentationModel::loadTableStyles(const std::wstring& partName) {
    const OwnedDocument document(builder_->getDocument(builder_->getPart(partName)));
    for (const DOMElement* element : getElementsByName(document.get(), xml::kATblStyle)) {
        const auto style = boost::make_shared<TemplateTableStyle>();
        style->styleId = getAttribute(element, xml::kStyleId);
        style->styleName = getAttribute(element, xml::kStyleName);
        tableStyles_.push_back(style);
    }
}

// Look-ups

boost::shared_ptr<TemplateLayout> PresentationModel::findLayout(const std::wstring& layoutName,
                                                                const std::wstring& masterName) const {
    const auto master = mastersByName_.find(masterName);
    if (master == mastersByName_.end())
        return {};
    const auto layout = master->second->layoutsByName.find(layoutName);
    return layout == master->second->layoutsByName.end() ? boost::shared_ptr<TemplateLayout>()
                                                         : layout->second;
}

boost::shared_ptr<TemplateLayout> PresentationModel::findLayout(const std::wstring& layoutName) const {
    for (const auto& master : mastersByPartName_) {
        const auto layout = master.second->layoutsByName.find(layoutName);
        if (layout != master.second->layoutsByName.end())
            return layout->second;
    }
    return {};
}

const PresentationModel::Names& PresentationModel::getLayoutNames(const std::wstring& masterName) const {
    static const Names& none = *new const Names;
    const auto master = mastersByName_.find(masterName);
    return master == mastersByName_.end() ? none : master->second->layoutNames;
}

void PresentationModel::getTableStyleNames(NamePairs& list) const {
    list.clear();
    for (const auto& style : tableStyles_)
        list.emplace_back(style->styleName, style->styleId);
}

const std::wstring* PresentationModel::findTableStyleId(const std::wstring& styleName) const {
    for (const auto& style : tableStyles_)
        if (style->styleName == styleName)
            return &style->styleId;
    return nullptr;
}

// The slide list

namespace {

// Slide ids start here: the format keeps what is below for other uses.
constexpr unsigned int kFirstSlideId = 256;

} // namespace

DOMElement* PresentationModel::prepareSlideList() {
    DOMElement* root = presentationDocument_->getDocumentElement();
    DOMElement* list = findChild(root, xml::kSldIdLst);
    for (DOMElement* former : getElementsByName(presentationDocument_.get(), xml::kSldId))
        removeNode(former);
    if (list)
        return list;
    // Behind the lists of masters, which stand in this order where there are any.
    list = presentationDocument_->createElement(xml::kSldIdLst);
    DOMNode* next = root->getFirstElementChild();
    for (const XMLCh* name : {xml::kSldMasterIdLst, xml::kNotesMasterIdLst, xml::kHandoutMasterIdLst})
        if (const DOMElement* masters = findChild(root, name))
            next = masters->getNextSibling();
    root->insertBefore(list, next);
    return list;
}

void PresentationModel::updateSlideList(PPTPartWriter& partWriter, const Slides& slides) {
    if (!presentationDocument_)
        return;
    declarePrefixes(presentationDocument_->getDocumentElement());
    std::vector<std::wstring> formerIds;
    for (const auto& slide : slides)
        formerIds.push_back(slide->id);
    updateSections(*presentationDocument_.get(), formerIds, kFirstSlideId);
    DOMElement* list = prepareSlideList();
    unsigned int id = kFirstSlideId;
    for (const auto& slide : slides) {
        DOMElement* element = appendElement(list, xml::kSldId);
        setAttribute(element, xml::kId, num2str(id++));
        if (slide->relationshipId.empty())
            slide->relationshipId =
                partWriter.addRelationship(presentationPartName_, relationship::kSlide, slide->partName);
        setAttribute(element, xml::kRId, slide->relationshipId);
    }
    partWriter.writeDocument(presentationPartName_, presentationDocument_.get());
}

} // namespace vellox::ppt
