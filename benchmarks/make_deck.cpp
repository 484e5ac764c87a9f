// Makes one deck, to be measured from outside:
//
//     make_deck text|styled|table|picture <slides> <output.pptx> [<image>]
//     make_deck master <shapes> <output.pptx>     the default template with shapes on its master
//     make_deck open <template.pptx> <output.pptx>

#include "benchmarks/decks.h"

#include <vellox/vellox.h>

#include <iostream>

int main(int argc, char** argv) {
    using namespace vellox::bench;
    if (argc < 4) {
        std::cerr << "usage: make_deck text|styled|table|picture <slides> <output.pptx> [<image>]\n"
                     "       make_deck master <shapes> <output.pptx>\n"
                     "       make_deck open <template.pptx> <output.pptx>\n";
        return 2;
    }
    const std::string kind = argv[1];
    const std::wstring output = vellox::fromUtf8(argv[3]);
    if (kind == "open") {
        openDeck(output, vellox::fromUtf8(argv[2]));
        return 0;
    }
    const auto slides = static_cast<unsigned>(std::stoul(argv[2]));
    if (kind == "text")
        makeTextDeck(output, slides);
    else if (kind == "styled")
        makeStyledDeck(output, slides, 100);
    else if (kind == "table")
        makeTableDeck(output, slides);
    else if (kind == "master")
        writeHeavyMaster(output, slides);
    else if (kind == "picture" && argc > 4)
        makePictureDeck(output, slides, vellox::fromUtf8(argv[4]));
    else
        return 2;
    return 0;
}
