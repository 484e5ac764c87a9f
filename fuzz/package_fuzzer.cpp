// The input is the template's file: whatever it holds, it is opened or an identified error says why not.

#include "tests/support/Files.h"

#include <vellox/vellox.h>

#include <cstdint>

using namespace vellox;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::TempFolder folder;
    test::writeFile(folder / L"template.pptx", std::string(reinterpret_cast<const char*>(data), size));
    try {
        ppt::Presentation deck(folder / L"deck.pptx", folder / L"template.pptx");
        deck.open();
        deck.close();
    } catch (const hostfx::except::IMsgIDException&) {
    }
    return 0;
}
