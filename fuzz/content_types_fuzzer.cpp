// The input is [Content_Types].xml: it is read or refused, and what was read comes back from what is written.

#include "fuzz/xml.h"

#include "vellox/opc/ContentTypes.h"

using namespace vellox::fuzz;

namespace {

// Names that the seeds speak of, and one that they don't.
const opc::PartName kNames[] = {opc::PartName(L"/ppt/presentation.xml"),
                                opc::PartName(L"/ppt/slides/slide1.xml"),
                                opc::PartName(L"/ppt/media/image1.PNG"), opc::PartName(L"/ppt/noextension"),
                                opc::PartName(L"/other/\u00e4.bin")};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    opc::ContentTypes types;
    try {
        readRows(types, toString(data, size));
    } catch (const opc::Exception&) {
        return 0;
    }
    for (const wchar_t* type : {L"image/png", L"application/slide+xml"})
        for (const opc::PartName& name : kNames) {
            types.add(name, opc::ContentType(type));
            require(types.find(name).toString() == type, "a type that was added is found");
        }
    opc::ContentTypes again;
    readRows(again, writeRows(types));
    for (const opc::PartName& name : kNames)
        require(again.find(name).toString() == types.find(name).toString(), "types come back as they were");
    return 0;
}
