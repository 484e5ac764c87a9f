// The input is a text that somebody gives for a length, a colour, a word, a path or a part's name: it is taken, or an
// identified error says why not.

#include "vellox/opc/Exception.h"
#include "vellox/opc/PartName.h"
#include "vellox/opc/Uri.h"

#include <vellox/vellox.h>

#include <cstdint>
#include <cstdlib>

using namespace vellox;

namespace {

template <class Use> void attempt(Use use) {
    try {
        use();
    } catch (const hostfx::except::IMsgIDException&) {
    } catch (const opc::Exception&) {
    }
}

void useLength(const std::wstring& text) {
    const Dimension length(text);
    const Dimension again(length.getRawValue());
    if (again.getUnits() != length.getUnits() || again.getEMUNumber() != length.getEMUNumber())
        std::abort(); // number and unit say all of a length
    length.getTwipsValue();
    length.getPixelValue();
    length.getHalfPointValue();
    length.getPCTValue();
}

void useTarget(const std::wstring& text) {
    const std::wstring name = opc::resolveTarget(L"/ppt/slides/", text);
    opc::makeRelativeTarget(L"/ppt/slides/", name);
    opc::makeExternalTarget(text);
}

void useName(const std::wstring& text) {
    const opc::PartName name(text);
    if (opc::PartName(name.toString()) != name)
        std::abort();
    name.getRelationshipPartName();
    name.toEntryName();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text = fromUtf8(std::string(reinterpret_cast<const char*>(data), size));
    attempt([&] { useLength(text); });
    attempt([&] { useTarget(text); });
    attempt([&] { useName(L"/" + text); });
    attempt([&] { ppt::FontColor{text}.getValue(); });
    attempt([&] { ppt::FontSize{text}.getValue(); });
    attempt([&] { ppt::ColWidth{text}.getValue(); });
    attempt([&] { ppt::HAlign{text}.getValue(); });
    attempt([&] { ppt::Underline{text}.getStyle(); });
    str2double(text);
    str2int(text);
    str2uint(text);
    toUtf8(text);
    return 0;
}
