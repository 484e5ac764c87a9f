#include "vellox/ppt/template/TemplateReader.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/Package.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/template/Kin.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/template/SlidePrototype.h"
#include "vellox/ppt/template/SlideSource.h"
#include "vellox/ppt/xml/Prefixes.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

using namespace xercesc;

namespace {

std::wstring nextShapeUid() {
    static unsigned int counter = 0;
    return num2str(++counter);
}

} // namespace

TemplateReader::TemplateReader(PartDOMBuilder& builder, const Rules& rules)
    : builder_(builder),
      rules_(rules),
      template_(boost::make_shared<ReadTemplate>()) {}

Refusal TemplateReader::load() {
    template_->presentationPartName = builder_.getRelationshipTarget(relationship::kOfficeDocument);
    facts_.isStrict = template_->presentationPartName.empty() &&
                      !builder_.getRelationshipTarget(relationship::kStrictOfficeDocument).empty();
    facts_.hasMainPart =
        !template_->presentationPartName.empty() && builder_.hasPart(template_->presentationPartName);
    if (!facts_.hasMainPart)
        return rules_.refuse(facts_);
    const opc::Part presentation = builder_.getPart(template_->presentationPartName);
    facts_.mainType = presentation.getContentType().toString();
    const Refusal refusal = rules_.refuse(facts_);
    if (refusal == Refusal::None) {
        template_->presentationDocument = readDocument(presentation);
        const DOMElement* root = template_->presentationDocument->getDocumentElement();
        template_->slideHeight = getAttribute(findChild(root, xml::kSldSz), xml::kCy);
        loadMasters(presentation);
        loadSlides(presentation);
        settleFields();
        loadExtras(presentation);
    }
    const std::wstring tableStyles = builder_.getRelationshipTarget(presentation, relationship::kTableStyles);
    if (!tableStyles.empty())
        loadTableStyles(tableStyles);
    if (refusal == Refusal::None)
        result_ = template_;
    return refusal;
}

// What the main type will be isn't known yet: all that may be left out of some deck is found.
void TemplateReader::loadExtras(const opc::Part& presentation) {
    for (const Extra what : {Extra::Macros, Extra::Signatures, Extra::Thumbnail})
        if (rules_.leavesOut(what, {}))
            for (PackageExtra& extra : builder_.findExtra(presentation, what))
                template_->extras.push_back(std::move(extra));
}

OwnedDocument TemplateReader::readDocument(const opc::Part& part) {
    OwnedDocument document(builder_.getDocument(part));
    if (rules_.takesAnyPrefix())
        useUsualPrefixes(*document.get());
    return document;
}

// Masters, themes, layouts

void TemplateReader::loadMasters(const opc::Part& presentation) {
    for (const DOMElement* element :
         getElementsByName(template_->presentationDocument.get(), xml::kSldMasterId)) {
        const auto master = boost::make_shared<TemplateMaster>();
        master->id = getAttribute(element, xml::kId);
        master->relationshipId = getAttribute(element, xml::kRId);
        template_->masters.push_back(master);
    }
    for (const auto& master : template_->masters)
        loadMaster(presentation, master);
    nameMasters();
}

void TemplateReader::loadMaster(const opc::Part& presentation,
                                const boost::shared_ptr<TemplateMaster>& master) {
    const opc::Part part = builder_.getPart(presentation.getRelationshipByID(master->relationshipId));
    master->partName = part.getName().toString();
    template_->mastersByPartName.emplace(master->partName, master);
    const OwnedDocument document = readDocument(part);
    for (const DOMElement* properties : getElementsByName(document.get(), xml::kCNvPr)) {
        const std::wstring id = getAttribute(properties, xml::kId);
        const auto* shape = dynamic_cast<DOMElement*>(properties->getParentNode()->getParentNode());
        // A frame gives no place: what a layout may inherit stands in a p:spPr.
        if (!shape)
            continue;
        const Place place = hasName(*shape, xml::kGraphicFrame) ? Place() : readPlace(*shape);
        if (!id.empty())
            master->placesById.emplace(id, place);
        addKin(*master, readFacts(*shape), place);
    }
    master->maxShapeId = findGreatestId(document.get());
    const DOMElement* styles = findChild(document->getDocumentElement(), xml::kTxStyles);
    master->titleSizes = readTextSizes(findChild(styles, xml::kTitleStyle));
    master->bodySizes = readTextSizes(findChild(styles, xml::kBodyStyle));
    loadTheme(part, *master);
    loadLayouts(part, document.get(), *master);
}

void TemplateReader::loadTheme(const opc::Part& masterPart, TemplateMaster& master) {
    const std::wstring target = builder_.getRelationshipTarget(masterPart, relationship::kTheme);
    if (target.empty())
        return;
    const OwnedDocument document = readDocument(builder_.getPart(target));
    const std::vector<DOMElement*> themes = getElementsByName(document.get(), xml::kATheme);
    master.theme = boost::make_shared<TemplateTheme>();
    master.theme->partName = target;
    master.theme->name = getAttribute(themes.empty() ? nullptr : themes.front(), xml::kName);
}

void TemplateReader::nameMasters() {
    std::vector<std::wstring> themes;
    for (const auto& master : template_->masters)
        themes.push_back(master->theme ? master->theme->name : std::wstring());
    template_->masterNames = rules_.nameMasters(themes);
    for (std::size_t i = 0; i < themes.size(); ++i) {
        const auto& master = template_->masters[i];
        master->name = template_->masterNames[i];
        template_->mastersByName.emplace(master->name, master);
    }
    template_->searchOrder = template_->masters;
    if (rules_.orderLayouts() == Order::Template)
        return;
    template_->searchOrder.clear();
    for (const auto& master : template_->mastersByPartName)
        template_->searchOrder.push_back(master.second);
}

namespace {

// What a master's list doesn't have comes last.
void sortByList(std::vector<opc::Relationship>& rows, DOMDocument* master) {
    std::map<std::wstring, std::size_t> places;
    for (const DOMElement* element : getElementsByName(master, xml::kSldLayoutId))
        places.emplace(getAttribute(element, xml::kRId), places.size());
    const auto placeOf = [&](const opc::Relationship& row) {
        const auto found = places.find(row.getID());
        return found == places.end() ? places.size() : found->second;
    };
    std::stable_sort(rows.begin(), rows.end(),
                     [&](const opc::Relationship& left, const opc::Relationship& right) {
                         return placeOf(left) < placeOf(right);
                     });
}

} // namespace

void TemplateReader::loadLayouts(const opc::Part& masterPart, DOMDocument* document, TemplateMaster& master) {
    master.layouts = boost::make_shared<std::vector<boost::shared_ptr<TemplateLayout>>>();
    auto rows = builder_.getRelationships(masterPart, relationship::kSlideLayout);
    if (rules_.orderLayouts() == Order::Template)
        sortByList(rows, document);
    for (const opc::Relationship& row : rows) {
        const boost::shared_ptr<TemplateLayout> layout = getLayout(builder_.getPart(row));
        if (!layout)
            continue;
        builder_.charge(opc::kShapeCost + layout->name.size() * opc::kXmlAttributeCharacterCost);
        master.layouts->push_back(layout);
        master.layoutNames.push_back(layout->name);
    }
    master.layoutNames = rules_.nameLayouts(master.layoutNames);
    for (std::size_t i = 0; i < master.layoutNames.size(); ++i)
        master.layoutsByName.emplace(master.layoutNames[i], (*master.layouts)[i]);
    for (std::size_t i = 0; i < master.layoutNames.size() && rules_.numbersLayouts(); ++i)
        master.layoutsByName.emplace(L"#" + std::to_wstring(i + 1), (*master.layouts)[i]);
}

// The document of a layout or slide, to be marked with data-uid. Marks that it has already, from wherever, are
// nobody's: they would lead to the wrong elements, and into the file.
OwnedDocument TemplateReader::readMarked(const opc::Part& part) {
    OwnedDocument document = readDocument(part);
    for (DOMElement* element : getAllElements(document.get()))
        if (element->hasAttribute(xml::kDataUid))
            element->removeAttribute(xml::kDataUid);
    return document;
}

boost::shared_ptr<TemplateLayout> TemplateReader::getLayout(const opc::Part& part) {
    const std::wstring partName = part.getName().toString();
    const auto known = template_->layoutsByPartName.find(partName);
    if (known != template_->layoutsByPartName.end())
        return known->second;
    OwnedDocument document = readMarked(part);
    const std::vector<DOMElement*> roots = getElementsByName(document.get(), xml::kSldLayout);
    if (roots.empty())
        return {};
    const auto layout = boost::make_shared<TemplateLayout>();
    layout->partName = partName;
    layout->document = std::move(document);
    layout->type = getAttribute(roots.front(), xml::kType);
    layout->masterPartName = builder_.getRelationshipTarget(part, relationship::kSlideMaster);
    layout->master = findMaster(layout->masterPartName);
    const std::vector<DOMElement*> slideData = getElementsByName(layout->document.get(), xml::kCSld);
    layout->name = getAttribute(slideData.empty() ? nullptr : slideData.front(), xml::kName);
    readLayoutShapes(layout);
    template_->layoutsByPartName.emplace(partName, layout);
    return layout;
}

// A target may spell the name of its part in another way than the package does.
boost::shared_ptr<TemplateMaster> TemplateReader::findMaster(const std::wstring& target) const {
    if (target.empty() || !builder_.hasPart(target))
        return {};
    const auto found = template_->mastersByPartName.find(builder_.getPart(target).getName().toString());
    return found == template_->mastersByPartName.end() ? boost::shared_ptr<TemplateMaster>() : found->second;
}

void TemplateReader::readLayoutShapes(const boost::shared_ptr<TemplateLayout>& layout) {
    layout->shapes = boost::make_shared<TemplateShapes>();
    page_.clear();
    std::vector<ShapeFacts> page;
    DOMElement* element = findFirstShape(layout->document.get(), rules_.findsTree());
    for (; element; element = element->getNextElementSibling()) {
        const ShapeFacts& facts = page.emplace_back(readFacts(*element));
        layout->fates.push_back(rules_.fateOf(facts));
        if (layout->fates.back() == Fate::Ask)
            openFields_.push_back({layout, layout->fates.size() - 1, facts});
        if (layout->fates.back() != Fate::Empty)
            continue;
        const auto shape = makeRecord(*element, facts);
        shape->place = readPlace(*element);
        choosePlaces(*shape, facts, shape->place, shape->place, layout->master.lock().get());
        chooseSizes(*shape, facts, *element, layout->master.lock().get());
        layout->shapes->push_back(shape);
        addKin(*layout, facts, shape);
        if (!shape->xmlId.empty())
            layout->maxShapeId = std::max(layout->maxShapeId, str2uint(shape->xmlId));
    }
    layout->keptPlaces = rules_.keepPlaces(page);
    nameShapes();
}

// With all records of a page at hand: a name may hang on the others.
void TemplateReader::nameShapes() {
    std::vector<NamedShape> page;
    page.reserve(page_.size());
    for (const auto& shape : page_)
        page.push_back({shape->shapeName.isSet() ? shape->shapeName.get() : std::wstring(),
                        shape->successorPlace.get()});
    const Rules::Names names = rules_.nameShapes(page);
    for (std::size_t i = 0; i < names.size(); ++i)
        if (!names[i].empty())
            page_[i]->shapeName.set(names[i]);
    page_.clear();
}

void TemplateReader::settleFields() {
    deck_.hasSlides = !template_->slides.empty();
    for (const OpenField& field : openFields_)
        field.layout->fates[field.place] = rules_.showsField(field.facts, deck_) ? Fate::Keep : Fate::Drop;
    openFields_.clear();
}

// Slides

void TemplateReader::loadSlides(const opc::Part& presentation) {
    std::vector<TemplateSlide> slides;
    for (const DOMElement* element : getElementsByName(template_->presentationDocument.get(), xml::kSldId)) {
        slides.emplace_back();
        slides.back().id = getAttribute(element, xml::kId);
        slides.back().relationshipId = getAttribute(element, xml::kRId);
    }
    for (TemplateSlide& slide : slides)
        template_->slides.push_back(loadSlide(presentation, std::move(slide)));
}

namespace {

bool isFalse(const std::wstring& attribute) {
    return attribute == L"0" || attribute == L"false";
}

} // namespace

boost::shared_ptr<const TemplateSlide> TemplateReader::loadSlide(const opc::Part& presentation,
                                                                 TemplateSlide slide) {
    const opc::Part part = builder_.getPart(presentation.getRelationshipByID(slide.relationshipId));
    slide.partName = part.getName().toString();
    const std::wstring layout = builder_.getRelationshipTarget(part, relationship::kSlideLayout);
    if (!layout.empty())
        slide.layout = getLayout(builder_.getPart(layout));
    slide.shapes = boost::make_shared<TemplateShapes>();
    page_.clear();
    const auto source = boost::make_shared<SlideSource>(readMarked(part));
    DOMElement* root = source->get()->getDocumentElement();
    slide.name = getAttribute(findChild(root, xml::kCSld), xml::kName);
    slide.isHidden = isFalse(getAttribute(root, xml::kShow));
    for (DOMElement* element : getChildElements(findDescendant(root, {xml::kCSld, xml::kSpTree})))
        parseShape(*element, *slide.shapes, slide.layout.get());
    nameShapes();
    slide.source = source;
    return boost::make_shared<const TemplateSlide>(std::move(slide));
}

// Shapes

void TemplateReader::parseShape(DOMElement& element, TemplateShapes& shapes, const TemplateLayout* layout,
                                bool isInGroup) {
    const ShapeFacts facts = readFacts(element, isInGroup);
    if (facts.isField)
        deck_.fields.emplace(facts.placeholderType, facts.text);
    if (rules_.classify(facts) == NodeType::None)
        return;
    const boost::shared_ptr<TemplateShape> shape = makeRecord(element, facts);
    shapes.push_back(shape);
    shape->givesWayInGroup = isInGroup && rules_.reachesIntoGroups();
    const Place ofLayout = layout ? findKinsPlace(*layout, facts, rules_.findsKin()) : Place();
    choosePlaces(*shape, facts, readPlace(element), ofLayout, layout ? layout->master.lock().get() : nullptr);
    if (shape->type != NodeType::Group)
        return;
    shape->children = boost::make_shared<TemplateShapes>();
    for (DOMElement* child : getChildElements(&element))
        parseShape(*child, *shape->children, layout, true);
}

boost::shared_ptr<TemplateShape> TemplateReader::makeRecord(DOMElement& element, const ShapeFacts& facts) {
    builder_.charge(opc::kShapeCost);
    const auto shape = boost::make_shared<TemplateShape>();
    shape->id = nextShapeUid();
    shape->type = rules_.classify(facts);
    if (!facts.name.empty())
        shape->shapeName.set(facts.name);
    shape->xmlId = facts.id;
    if (shape->type != NodeType::BodyPlaceholder && facts.element == ShapeElement::Shape)
        shape->placeholderType = facts.placeholderType;
    if (facts.isPlaceholder) {
        shape->isPlaceholder = true;
        shape->phType = facts.placeholderType.empty() ? L"obj" : facts.placeholderType;
        shape->phIndex = facts.placeholderIndex.empty() ? L"0" : facts.placeholderIndex;
    }
    setAttribute(&element, xml::kDataUid, shape->id);
    page_.push_back(shape);
    return shape;
}

void TemplateReader::choosePlaces(TemplateShape& shape, const ShapeFacts& facts, const Place& own,
                                  const Place& ofLayout, const TemplateMaster* master) const {
    const Place ofMaster = master ? findKinsPlace(*master, facts, rules_.findsKin()) : Place();
    const Place places[] = {Place(), own, ofLayout, ofMaster}; // by PlaceSource
    const PlaceFacts kin{shape.type, own.get(), ofLayout.get(), ofMaster.get()};
    const auto choose = [&](PlaceUse use) {
        return places[static_cast<std::size_t>(rules_.choosePlace(kin, use))];
    };
    shape.successorPlace = choose(PlaceUse::Successor);
    shape.textPlace = choose(PlaceUse::Text);
}

void TemplateReader::chooseSizes(TemplateShape& shape, const ShapeFacts& facts, const DOMElement& element,
                                 const TemplateMaster* master) {
    const bool isTitle = facts.placeholderType == L"title" || facts.placeholderType == L"ctrTitle";
    if (master)
        shape.textSizes = isTitle ? master->titleSizes : master->bodySizes;
    layOver(shape.textSizes, readTextSizes(findDescendant(&element, {xml::kTxBody, xml::kALstStyle})));
}

// Table styles

void TemplateReader::loadTableStyles(const std::wstring& partName) {
    const opc::Part part = builder_.getPart(partName);
    template_->tableStylesPartName = part.getName().toString();
    template_->tableStylesDocument = readDocument(part);
    DOMDocument* document = template_->tableStylesDocument.get();
    template_->defaultTableStyleId = getAttribute(document->getDocumentElement(), xml::kDef);
    for (const DOMElement* element : getElementsByName(document, xml::kATblStyle)) {
        const auto style = boost::make_shared<TemplateTableStyle>();
        style->styleId = getAttribute(element, xml::kStyleId);
        style->styleName = getAttribute(element, xml::kStyleName);
        template_->isDefaultTableStyleDefined =
            template_->isDefaultTableStyleDefined || style->styleId == template_->defaultTableStyleId;
        template_->tableStyles.push_back(style);
    }
}

} // namespace vellox::ppt
