// Decks over any template, whatever it holds: each visits every layout or every slide.

#include "tests/programs/classic/Content.h"
#include "tests/programs/classic/Decks.h"

#include <boost/make_shared.hpp>

namespace vellox::test {

using namespace ppt;

namespace {

template <class Action> void forEachLayout(Presentation& deck, Action action) {
    unsigned count = 0;
    for (const std::wstring& master : deck.getMasterNames())
        for (const std::wstring& layout : deck.getLayoutNames(master))
            action(layout, master, count++);
}

template <class Action> void forEachShape(const PPTNode& node, Action action) {
    unsigned count = 0;
    for (const auto& child : node.getChildren()) {
        if (child->getNodeType() == NodeType::Group)
            forEachShape(*child, action);
        else
            action(child, count++);
    }
}

// The paragraphs of a text box, in the ways that there are.
void fillWithText(BaseTextBox& box, unsigned way) {
    switch (way % 5) {
    case 0:
        box.replace(L"Title of " + box.getName());
        break;
    case 1:
        box.add(L"One");
        box.add(Paragraph(L"Two", 2)).setItalic(true);
        box.add(makeRuns());
        break;
    case 2:
        box.replace(makeList());
        box.setVAlign(L"middleCentered");
        break;
    case 3:
        box.add(L"Small").setFontSize(L"9pt");
        box.setX(L"1cm");
        box.setBold(true);
        box.setBackgroundColor(L"gold");
        break;
    default:
        break; // left empty
    }
}

void makeNothing(Presentation& deck, Images&) {
    deck.open();
}

void makeText(Presentation& deck, Images&) {
    unsigned way = 0;
    forEachLayout(deck, [&](const std::wstring& layout, const std::wstring& master, unsigned i) {
        Slide slide = deck.add(layout, master);
        if (i % 2 == 0)
            slide.setName(L"Slide " + std::to_wstring(i));
        forEachShape(slide, [&](const boost::shared_ptr<PPTNode>& shape, unsigned) {
            if (const auto box = BaseTextBox::cast(shape))
                fillWithText(*box, way++);
        });
        if (i % 3 == 0)
            setSlideFormats(slide);
        slide.add(L"Title", L"By name");
        slide.replace(L"Content", makeRuns());
    });
    deck.replace(L"Subtitle", L"On all slides");
}

// Pictures and tables in the place of whatever takes them, and free shapes on top.
void fillWithObjects(const boost::shared_ptr<PPTNode>& shape, unsigned way, Images& images) {
    if (const auto tablePlaceholder = TablePlaceholder::cast(shape)) {
        tablePlaceholder->replace(makeTable(way % 3 + 1, 3)).setStyleName(L"Striped");
    } else if (const auto content = ContentPlaceholder::cast(shape)) {
        if (way % 3 == 0)
            content->replace(Picture(images.next()));
        else if (way % 3 == 1)
            content->replace(makeTable(2, 2));
        else
            content->replace(makeList());
    } else if (const auto picture = PicturePlaceholder::cast(shape)) {
        Picture given(images.next());
        if (way % 2 == 0)
            given.unsetHeight();
        picture->replace(given);
    } else if (const auto box = BaseTextBox::cast(shape)) {
        box->add(L"Beside objects");
    }
}

void makeMixed(Presentation& deck, Images& images) {
    unsigned way = 0;
    forEachLayout(deck, [&](const std::wstring& layout, const std::wstring& master, unsigned i) {
        Slide slide = i % 3 == 2 ? deck.add(layout, master, 0u) : deck.add(layout, master);
        forEachShape(slide, [&](const boost::shared_ptr<PPTNode>& shape, unsigned) {
            fillWithObjects(shape, way++, images);
        });
        addFreeShapes(slide, i, images);
    });
}

// Changes to what the template's slides hold.
void edit(const boost::shared_ptr<PPTNode>& shape, unsigned way, Images& images) {
    if (const auto picture = boost::dynamic_pointer_cast<Picture>(shape)) {
        picture->replace(Picture(images.next()));
    } else if (const auto table = boost::dynamic_pointer_cast<Table>(shape)) {
        Table given = makeTable(2, 4);
        given.setFontColor(L"navy");
        table->replace(given).setStyleName(L"Striped");
    } else if (const auto box = BaseTextBox::cast(shape)) {
        if (way % 2 == 0)
            box->add(L"and more");
        fillWithText(*box, way);
    }
}

void makeEdited(Presentation& deck, Images& images) {
    deck.open();
    const PPTNode::Children slides = deck.getChildren();
    const std::wstring master = deck.getMasterNames().front();
    const std::wstring layout = deck.getLayoutNames(master).front();
    for (const auto& child : slides) {
        Slide slide = *Slide::cast(child);
        forEachShape(slide,
                     [&](const boost::shared_ptr<PPTNode>& shape, unsigned i) { edit(shape, i, images); });
        slide.setName(slide.getName() + L" edited");
        slide.add(TextBox(L"Remark"));
        deck.add(layout, master, slide).setName(L"Before");
    }
    deck.add(layout).replace(L"Title", L"At the end");
    deck.add(layout, 1u).replace(L"Title", L"At 1");
}

} // namespace

const std::vector<DeckKind> kAnyDecks{
    {L"open", makeNothing}, {L"text", makeText}, {L"mixed", makeMixed}, {L"edit", makeEdited}};

} // namespace vellox::test
