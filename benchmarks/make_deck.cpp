// Makes decks, to be measured from outside:
//
//     make_deck text|styled|table <slides> <output.pptx>
//     make_deck picture <slides> <output.pptx> <folder>    a different picture on each slide
//     make_deck chart <slides> <output.pptx> <folder>      data for the charts of the folder's charts.pptx
//     make_deck small <decks> <output.pptx> <folder>       one deck after the other, over the last
//     make_deck small-path <decks> <output.pptx> <folder>  the same, reading the template for each
//     make_deck office-text|office-styled|... ...          all these by the profile of that name
//     make_deck images <count> <folder>                    the pictures for these
//     make_deck master <shapes> <output.pptx>              the default template with shapes on its master
//     make_deck open <template.pptx> <output.pptx>

#include "benchmarks/decks.h"

#include <vellox/vellox.h>

#include <iostream>

namespace {

using namespace vellox::bench;

constexpr std::string_view kOfficeStart = "office-";

std::wstring nameImage(const std::wstring& folder, unsigned number) {
    return folder + L"/" + std::to_wstring(number) + L".png";
}

std::vector<std::wstring> nameImages(const std::wstring& folder, unsigned count) {
    std::vector<std::wstring> names;
    for (unsigned i = 0; i < count; ++i)
        names.push_back(nameImage(folder, i));
    return names;
}

bool run(std::string kind, unsigned count, const std::wstring& output, const std::wstring& folder) {
    const bool isOffice = kind.compare(0, kOfficeStart.size(), kOfficeStart) == 0;
    const std::wstring profile = isOffice ? kOffice : kClassic;
    kind.erase(0, isOffice ? kOfficeStart.size() : 0);
    if (kind == "text")
        makeTextDeck(output, count, profile);
    else if (kind == "styled")
        makeStyledDeck(output, count, 100, profile);
    else if (kind == "table")
        makeTableDeck(output, count, profile);
    else if (kind == "picture")
        makePictureDeck(output, count, nameImages(folder, count), profile);
    else if (kind == "chart")
        makeChartDeck(output, folder + L"/charts.pptx", profile);
    else if (kind == "master")
        writeHeavyMaster(output, count);
    else if (kind == "small")
        makeSmallDecks(output, nameImage(folder, 0), count, profile);
    else if (kind == "small-path")
        for (unsigned i = 0; i < count; ++i)
            makeSmallDeck(output, nameImage(folder, 0), profile);
    else if (kind == "images")
        for (unsigned i = 0; i < count; ++i)
            writePng(nameImage(output, i), 300000, i);
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 4 && std::string(argv[1]) == "open") {
        openDeck(vellox::fromUtf8(argv[3]), vellox::fromUtf8(argv[2]));
        return 0;
    }
    if (argc < 4 || !run(argv[1], static_cast<unsigned>(std::stoul(argv[2])), vellox::fromUtf8(argv[3]),
                         vellox::fromUtf8(argc > 4 ? argv[4] : ""))) {
        std::cerr
            << "usage: make_deck [office-]text|styled|table|picture|chart|small|small-path|images|master "
               "<count> <output> "
               "[<folder>]\n"
               "       make_deck open <template> <output>\n";
        return 2;
    }
    return 0;
}
