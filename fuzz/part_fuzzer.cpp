// The default template with one part replaced by the input: whatever a part holds, a deck is made or an
// identified error says why not. The first byte chooses the part.

#include "tests/support/Files.h"

#include <vellox/vellox.h>

#include <cstdint>

using namespace vellox;

namespace {

const char* const kParts[] = {
    "ppt/slideLayouts/slideLayout2.xml",
    "ppt/presentation.xml",
    "ppt/slideMasters/slideMaster1.xml",
    "ppt/tableStyles.xml",
    "ppt/theme/theme1.xml",
    "[Content_Types].xml",
    "_rels/.rels",
    "ppt/_rels/presentation.xml.rels",
    "ppt/slideMasters/_rels/slideMaster1.xml.rels",
    "ppt/slideLayouts/_rels/slideLayout2.xml.rels",
    "ppt/slides/slide1.xml",
};
constexpr std::size_t kPartCount = sizeof kParts / sizeof *kParts;

// A template with a slide, so that slides are read, too.
const test::Parts& getBase() {
    static const test::Parts parts = [] {
        const test::TempFolder folder;
        ppt::Presentation deck(folder / L"base.pptx");
        deck.add(L"Two Content").replace(L"Title", L"{text} and {list}");
        deck.close();
        return test::readParts(folder / L"base.pptx");
    }();
    return parts;
}

ppt::Table makeTable() {
    ppt::TableRow row;
    row.append(ppt::TableEntry(L"text"));
    ppt::Table table;
    table.append(row);
    return table;
}

// What the template brings is a sample: copied, filled, and taken out.
void useSamples(ppt::Presentation& deck) {
    constexpr std::size_t kMostSamples = 3;
    const ppt::PPTNode::Children slides(deck.getChildren());
    for (std::size_t i = 0; i < slides.size() && i < kMostSamples; ++i) {
        const auto sample = ppt::Slide::cast(slides[i]);
        ppt::Slide copy = deck.copy(*sample);
        copy.setNotes(copy.getNotes() + L" {text}");
        copy.setHidden(!copy.isHidden());
        copy.fill({}, true);
        for (const auto& child : copy.getChildren()) {
            const auto table = ppt::Table::cast(child);
            if (const auto cell = table ? table->entry(0, 0) : nullptr)
                cell->setText(cell->getText() + L"\n{text}");
        }
    }
    deck.fillTokens(
        {{L"text", 2.5}, {L"list", ppt::list({L"a", ppt::list({L"b"})})}, {L"table", makeTable()}});
    if (!slides.empty())
        deck.remove(*ppt::Slide::cast(slides.front()));
}

void makeDeck(const std::wstring& output, const std::wstring& templateFile) {
    ppt::Presentation deck(output, templateFile);
    deck.open();
    useSamples(deck);
    for (const std::wstring& master : deck.getMasterNames())
        for (const std::wstring& layout : deck.getLayoutNames(master)) {
            ppt::Slide slide = deck.add(layout, master);
            for (const auto& child : ppt::PPTNode::Children(slide.getChildren())) {
                if (const auto content = ppt::ContentPlaceholder::cast(child))
                    content->replace(makeTable());
                if (const auto picture = ppt::PicturePlaceholder::cast(child);
                    picture && picture->getParent())
                    picture->replace(ppt::Picture(L"missing.png"));
                const auto box = ppt::BaseTextBox::cast(child);
                if (!box || !box->getParent())
                    continue;
                box->setX(L"1in");
                box->add(L"text");
            }
        }
    deck.close();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    static const test::TempFolder folder;
    test::Parts parts = getBase();
    parts[kParts[data[0] % kPartCount]] = std::string(reinterpret_cast<const char*>(data) + 1, size - 1);
    test::writeParts(folder / L"template.pptx", parts);
    try {
        makeDeck(folder / L"deck.pptx", folder / L"template.pptx");
    } catch (const hostfx::except::IMsgIDException&) {
    }
    return 0;
}
