// The smallest deck: one slide with a title.
//
//     hello [output.pptx]

#include <vellox/vellox.h>

int main(int argc, char** argv) {
    vellox::ppt::Presentation deck(vellox::fromUtf8(argc > 1 ? argv[1] : "hello.pptx"));
    vellox::ppt::Slide slide = deck.add(L"Title and Content");
    slide.replace(L"Title", L"Weekly report");
    slide.add(L"Content", L"All went well.");
    slide.add(L"Content", L"Next week we measure again.");
    deck.close();
}
