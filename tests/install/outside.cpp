#include <vellox/vellox.h>

#include <cstdio>

int main(int argc, char** argv) {
    try {
        vellox::ppt::Presentation deck(vellox::fromUtf8(argv[argc - 1]));
        deck.add(L"Title Slide").replace(L"Title", L"From outside");
        deck.close();
        deck.add(L"No such layout"); // its text must be found, too
    } catch (const hostfx::except::Exception<vellox::ppt_error::invalidLayoutName>& error) {
        return std::printf("%s\n", error.what()) > 0 ? 0 : 1;
    }
    return 1;
}
