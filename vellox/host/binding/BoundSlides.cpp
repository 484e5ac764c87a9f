#include "vellox/check/PackageCheck.h"
#include "vellox/doctor/ReportJson.h"
#include "vellox/doctor/TemplateDoctor.h"
#include "vellox/foundation/Conversions.h"
#include "vellox/host/binding/Adapters.h"
#include "vellox/host/binding/BoundClasses.h"
#include "vellox/host/binding/ContentArguments.h"
#include "vellox/host/binding/FormatRows.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/engine/Presentation.h"
#include "vellox/ppt/engine/PresentationImpl.h"

namespace vellox::ppt::hostbind {

namespace {

/// A position counts from 1 here, and from 0 in the facade.
unsigned int toIndex(const Presentation& deck, unsigned int position) {
    if (position == 0)
        raise(ppt_error::positiveSubscript());
    if (position > deck.getNChildren())
        raise(ppt_error::badSlideSubscript(num2str(position), num2str(deck.getNChildren())));
    return position - 1;
}

Slide addAt(Presentation& deck, Wide layout, unsigned int position) {
    return deck.add(layout, toIndex(deck, position));
}

Slide addOfMasterAt(Presentation& deck, Wide layout, Wide master, unsigned int position) {
    return deck.add(layout, master, toIndex(deck, position));
}

TextCells getChartNames(Slide& slide) {
    return {1, slide.getChartNames()};
}

template <class T> using Optional = std::optional<T>;

Slide addWith(Presentation& deck, Wide layout, const Optional<Contents>& contents,
              const Optional<std::wstring>& master, const Optional<Slide>& before,
              const Optional<unsigned int>& index, const Optional<bool>& dropEmpty) {
    if (before && index)
        raise(ppt_error::invalidAddArg());
    const unsigned int place = index ? toIndex(deck, *index) : 0;
    Slide slide = master ? deck.add(layout, *master) : deck.add(layout);
    try {
        if (contents)
            slide.fill(*contents, dropEmpty.value_or(false));
    } catch (const std::exception&) {
        deck.remove(slide);
        throw;
    }
    if (before)
        deck.moveBefore(slide, *before);
    else if (index)
        deck.move(slide, place);
    return slide;
}

Slide copySlide(Presentation& deck, const Slide& slide, const Optional<unsigned int>& index) {
    return index ? deck.copy(slide, toIndex(deck, *index)) : deck.copy(slide);
}

PPTNode::Children addPages(Presentation& deck, Wide layoutName, Wide name, const Table& table,
                           const Optional<unsigned int>& rows, const Optional<std::wstring>& height,
                           const Optional<std::wstring>& title) {
    PageOptions options;
    options.rows = rows.value_or(0);
    options.height = height.value_or(L"");
    options.title = title.value_or(L"");
    PPTNode::Children slides;
    for (const Slide& slide : deck.addPages(layoutName, name, table, options))
        slides.push_back(boost::make_shared<Slide>(slide));
    return slides;
}

void moveSlide(Presentation& deck, const Slide& slide, unsigned int index) {
    deck.move(slide, toIndex(deck, index));
}

void fillSlide(Slide& slide, const Contents& contents, const Optional<bool>& dropEmpty) {
    slide.fill(contents, dropEmpty.value_or(false));
}

template <class C> unsigned int fillTokensOf(C& owner, const Contents& values, const Optional<bool>& strict) {
    return owner.fillTokens(values, strict.value_or(false));
}

template <class C> BoundMethod makeFillTokensRow() {
    return Method<C, unsigned int(const Contents&, const Optional<bool>&)>::template row<&fillTokensOf<C>>(
        "fillTokens", {"values", keyword("strict")},
        "Puts values in the place of tokens such as {name} in the template's texts. Gives how many there "
        "were.");
}

TextCells getMasterNames(Presentation& deck) {
    return {1, deck.getMasterNames()};
}

TextCells getLayoutNames(Presentation& deck, const hvArray& master) {
    return {1, deck.getLayoutNames(StringContent::getValue(HvCell(&master).getContent()))};
}

TextCells getTableStyleNames(Presentation& deck) {
    TextCells cells = {2, {}};
    for (const auto& style : deck.getTableStyleNames())
        cells.texts.insert(cells.texts.end(), {style.first, style.second});
    return cells;
}

/// A row for each finding: severity, code, part, number of the slide (0 for none), shape, text.
TextCells toRows(const std::vector<Finding>& findings) {
    TextCells cells = {6, {}};
    for (const Finding& finding : findings)
        cells.texts.insert(cells.texts.end(),
                           {fromUtf8(toString(finding.severity)), fromUtf8(finding.code), finding.part,
                            std::to_wstring(finding.slide), finding.shape, finding.text});
    return cells;
}

TextCells getFindings(Presentation& deck) {
    return toRows(deck.getFindings());
}

TextCells checkFile(Wide path) {
    return toRows(checkPackage(path));
}

std::wstring inspectFile(Wide path) {
    return fromUtf8(toJson(inspectTemplate(path)));
}

TextCells healFile(Wide input, Wide output) {
    return toRows(healTemplate(input, output));
}

/// Of the last handle on a presentation. While that ends, it is less than a presentation.
bool isUnfinished(const PPTObject& deck) {
    const auto* impl = implAs<PresentationImpl>(deck);
    return impl && impl->getState() == PresentationState::Open && impl->getRefCount() == 1;
}

/// replace by name, of slides and presentations.
template <class C> std::vector<BoundMethod> makeReplaceByNameRows() {
    return {
        Method<C, void(Wide, Wide)>::template row<&C::replace>(
            "replace", {"name", "text"}, "Makes a new paragraph the only one of the shapes of a name."),
        Method<C, void(Wide, const Paragraph&)>::template row<&C::replace>(
            "replace", {"name", "paragraph"}, "Makes a paragraph the only one of the shapes of a name."),
        Method<C, void(const hvArray&, const hvArray&)>::template row<&replaceAnyByName<C>>(
            "replace", {"name", "content"},
            "Gives the shapes of a name the items of a list, a Picture or a Table, whichever they take."),
    };
}

BoundMethod describeAddParagraph(BoundMethod row) {
    row.doc = "Adds a paragraph to the text boxes and placeholders of a name; copies to all but the first.";
    return row;
}

/// A text that may be unset, and of which the empty text is one.
template <class C, auto kGet, auto kSet, auto kUnset>
BoundProperty pageTextProperty(const char* name, const char* doc) {
    BoundProperty row = optionalProperty<C, kGet, kSet, kUnset>(name, doc);
    row.set = [](PPTObject& self, const hvArray& value) {
        if (value.getClassCode() == HvCharClass)
            (static_cast<C&>(self).*kSet)(value.getNElements() > 0 ? value.getString() : std::wstring());
        else
            UnsettingClassSetter<C, kSet, kUnset>::set(self, value);
    };
    return row;
}

/// Of slides and presentations.
template <class C> std::vector<BoundProperty> makePageFieldRows() {
    // The one that refuses no texts.
    constexpr void (PageFieldProperties<C>::*kShow)(bool) = &PageFieldProperties<C>::setSlideNumbers;
    return {
        pageTextProperty<C, &C::getDate, &C::setDate, &C::unsetDate>(
            "Date",
            "The date shown: a text, \"auto\" for one that programs bring up to date, or \"\" for none."),
        pageTextProperty<C, &C::getFooter, &C::setFooter, &C::unsetFooter>(
            "Footer", "The text at the foot, or \"\" for none."),
        optionalProperty<C, &C::getSlideNumbers, kShow, &C::unsetSlideNumbers>(
            "SlideNumbers", "Whether slide numbers are shown."),
    };
}

BoundClass describeTemplate() {
    BoundClass bound =
        describe<Template>("Template", "Object", "A template that was read once, for many presentations.");
    bound.constructors = {make<Template>(), make<Template, std::wstring>({"path"}),
                          make<Template, std::wstring, std::wstring>({"path", "profile"})};
    bound.properties = {readOnlyProperty<Template, &Template::getPath>("Path", "The file that was read.")};
    bound.methods = {
        StaticMethod<TextCells(Wide)>::row<&checkFile>("checkPackage", {"path"},
                                                       "What a strict reader would want to repair in a file: "
                                                       "rows as those of Presentation.getFindings()."),
        StaticMethod<std::wstring(Wide)>::row<&inspectFile>(
            "inspectTemplate", {"path"},
            "Masters, layouts, placeholders and findings of a template, as JSON."),
        StaticMethod<TextCells(Wide, Wide)>::row<&healFile>(
            "healTemplate", {"input", "output"},
            "Writes a mended copy of a template. What was changed: rows as those of checkPackage()."),
    };
    return bound;
}

BoundClass describePresentation() {
    using Deck = Presentation;
    BoundClass bound =
        describe<Deck>("Presentation", "Node", "A presentation, from its template to its file.");
    bound.constructors = {make<Deck>(), make<Deck, std::wstring>({"outputPath"}),
                          make<Deck, std::wstring, std::wstring>({"outputPath", "templatePath"}),
                          make<Deck, std::wstring, Template>({"outputPath", "template"})};
    bound.copy = nullptr; // it would write the same file
    bound.isUnfinished = isUnfinished;
    bound.properties = {
        property<Deck, &Deck::getTemplatePath, &Deck::setTemplatePath>(
            "TemplatePath", "The template; can't be changed once the presentation is open."),
        property<Deck, &Deck::getOutputPath, &Deck::setOutputPath>(
            "OutputPath", "The file to be made; can't be changed once the presentation is open."),
        property<Deck, &Deck::getCompression, &Deck::setCompression>(
            "Compression", "How small the file is made: \"fast\", \"normal\" or \"small\"."),
        property<Deck, &Deck::getTitle, &Deck::setTitle>("Title", "What the file says that its title is."),
        property<Deck, &Deck::getAuthor, &Deck::setAuthor>("Author", "Who the file says has made it."),
        property<Deck, &Deck::getSubject, &Deck::setSubject>("Subject",
                                                             "What the file says that it is about."),
        property<Deck, &Deck::getKeywords, &Deck::setKeywords>("Keywords",
                                                               "What the file is to be found by."),
        property<Deck, &Deck::getProfile, &Deck::setProfile>(
            "Profile", "By which rules slides are made of the template: \"classic\" or \"office\"; can't be "
                       "changed once the presentation is open."),
        property<Deck, &Deck::getStrict, &Deck::setStrict>(
            "Strict", "Whether the first finding that is an error is raised."),
        optionalProperty<Deck, &Deck::getDecimalMark, &Deck::setDecimalMark, &Deck::unsetDecimalMark>(
            "DecimalMark", "What stands ahead of the fractions of numbers, \".\" unless told otherwise."),
        optionalProperty<Deck, &Deck::getThousandsMark, &Deck::setThousandsMark, &Deck::unsetThousandsMark>(
            "ThousandsMark", "What sets off thousands where a form asks for that."),
    };
    append(bound.properties, makeValueRows<Deck>());
    append(bound.properties, makePageFieldRows<Deck>());
    bound.methods = {
        Method<Deck, bool()>::row<&Deck::open>("open", {},
                                               "Reads the template. False if it was open before."),
        Method<Deck, bool()>::row<&Deck::close>(
            "close", {}, "Writes all slides and saves the file. False if it isn't open."),
        Method<Deck, PPTNode::Children(Wide)>::row<&Deck::find>("find", {"name"},
                                                                "All slides and shapes of a name."),
        describeAddParagraph(
            Method<Deck, void(Wide, const Paragraph&)>::row<&Deck::add>("add", {"name", "paragraph"}, "")),
    };
    append(bound.methods, makeReplaceByNameRows<Deck>());
    append(
        bound.methods,
        {Method<Deck, Slide(Wide)>::row<&Deck::add>("add", {"layout"},
                                                    "Adds a slide of a layout at the end."),
         Method<Deck, Slide(Wide, Wide)>::row<&Deck::add>("add", {"layout", "master"},
                                                          "The same, of the layout of one slide master."),
         Method<Deck, Slide(Wide, const Slide&)>::row<&Deck::add>("add", {"layout", "before"},
                                                                  "Adds a slide before a slide."),
         Method<Deck, Slide(Wide, Wide, const Slide&)>::row<&Deck::add>(
             "add", {"layout", "master", "before"}, "The same, of the layout of one slide master."),
         Method<Deck, Slide(Wide, unsigned int)>::row<&addAt>(
             "add", {"layout", "position"}, "Adds a slide at a position, which counts from 1."),
         Method<Deck, Slide(Wide, Wide, unsigned int)>::row<&addOfMasterAt>(
             "add", {"layout", "master", "position"}, "The same, of the layout of one slide master."),
         Method<Deck, Slide(Wide, const Optional<Contents>&, const Optional<std::wstring>&,
                            const Optional<Slide>&, const Optional<unsigned int>&, const Optional<bool>&)>::
             row<&addWith>("add",
                           {"layout", "contents", keyword("master"), keyword("before"), keyword("index"),
                            keyword("drop_empty")},
                           "Adds a slide and fills its shapes by their names; before a slide, or at an "
                           "index, which counts "
                           "from 1."),
         Method<Deck, Slide(const Slide&, const Optional<unsigned int>&)>::row<&copySlide>(
             "copy", {"slide", keyword("index")},
             "Adds a copy of a slide at the end, or at an index, which counts from 1."),
         Method<Deck, PPTNode::Children(Wide, Wide, const Table&, const Optional<unsigned int>&,
                                        const Optional<std::wstring>&, const Optional<std::wstring>&)>::
             row<&addPages>(
                 "addPages",
                 {"layout", "name", "table", keyword("rows"), keyword("height"), keyword("title")},
                 "Adds slides of a layout with parts of a long table in the place of the shape of a "
                 "name: so many rows on each, or as many as find room. Returns the slides."),
         Method<Deck, void(const Slide&, unsigned int)>::row<&moveSlide>(
             "move", {"slide", "index"}, "Puts a slide in the place of an index, which counts from 1."),
         Method<Deck, void(const Slide&)>::row<&Deck::remove>("remove", {"slide"}, "Takes a slide out."),
         Method<Deck, void()>::row<&Deck::clear>("clear", {},
                                                 "Takes out the slides that the template brought along."),
         makeFillTokensRow<Deck>(),
         Method<Deck, TextCells()>::row<&getMasterNames>("getMasterNames", {},
                                                         "The names of the slide masters."),
         Method<Deck, TextCells(const hvArray&)>::row<&getLayoutNames>(
             "getLayoutNames", {"master"}, "The names of a slide master's layouts."),
         Method<Deck, TextCells()>::row<&getFindings>(
             "getFindings", {},
             "What isn't as it was asked for: severity, code, part, number of the slide or 0, shape, text."),
         Method<Deck, TextCells()>::row<&getTableStyleNames>(
             "getTableStyleNames", {}, "The name and the id of each table style of the template.")});
    return bound;
}

BoundClass describeSlide() {
    BoundClass bound = describeAbstract<Slide>("Slide", "Element", "A slide.");
    bound.properties = {
        property<Slide, &Slide::getName, &Slide::setName>("Name", "What the slide is found by."),
        readOnlyProperty<Slide, &Slide::getLayoutName>("Layout", "The name of its layout."),
        readOnlyProperty<Slide, &Slide::getSlideMasterName>("SlideMaster", "The name of its slide master."),
        property<Slide, &Slide::isHidden, &Slide::setHidden>("Hidden", "Whether it is left out of the show."),
        property<Slide, &Slide::getNotes, &Slide::setNotes>("Notes", "What the speaker reads."),
    };
    append(bound.properties, makePageFieldRows<Slide>());
    constexpr const char* kAddObject = "Puts this very object on the slide, on top of what is there.";
    bound.methods = {
        Method<Slide, Picture(const Picture&)>::row<&Slide::add>("add", {"picture"}, kAddObject),
        Method<Slide, Table(const Table&)>::row<&Slide::add>("add", {"table"}, kAddObject),
        Method<Slide, TextBox(const TextBox&)>::row<&Slide::add>("add", {"textBox"}, kAddObject),
        Method<Slide, Chart(Wide)>::row<&Slide::chart>("chart", {"name"},
                                                       "A chart of the template by its name."),
        Method<Slide, TextCells()>::row<&getChartNames>("getChartNames", {}, "The names of those charts."),
        Method<Slide, PPTNode::Children(Wide)>::row<&Slide::find>("find", {"name"}, "All shapes of a name."),
        Method<Slide, void(Wide, Wide)>::row<&Slide::add>(
            "add", {"name", "text"}, "Adds a new paragraph to the text boxes and placeholders of a name."),
        describeAddParagraph(
            Method<Slide, void(Wide, const Paragraph&)>::row<&Slide::add>("add", {"name", "paragraph"}, "")),
    };
    append(bound.methods, makeReplaceByNameRows<Slide>());
    append(bound.methods,
           {Method<Slide, void(const Contents&, const Optional<bool>&)>::row<&fillSlide>(
                "fill", {"contents", keyword("drop_empty")},
                "Fills shapes by their names, all or none; placeholders that stay empty can go."),
            makeFillTokensRow<Slide>(),
            Method<Slide, boost::shared_ptr<Shape>(Wide)>::row<&Slide::shape>(
                "shape", {"name"},
                "The one shape of a name, or of \"idx:13\", \"type:title\", \"type:body#2\".")});
    return bound;
}

} // namespace

std::vector<BoundClass> describeSlides() {
    return {describeTemplate(), describePresentation(), describeSlide()};
}

} // namespace vellox::ppt::hostbind
