// The input is a relationship part: it is read or refused, and what was read comes back from what is written.

#include "fuzz/xml.h"

#include "vellox/opc/Relationship.h"

#include <boost/make_shared.hpp>

using namespace vellox::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    opc::RelationshipTable table(L"/ppt/slides/", boost::make_shared<opc::RelationshipTexts>());
    try {
        readRows(table, toString(data, size));
    } catch (const opc::Exception&) {
        return 0;
    }
    const opc::URI image(L"/ppt/media/image1.png");
    const std::wstring added = table.addInternal(L"image", image, {}).getID();
    require(table.find(added)->getTargetURI().toString() == image.toString(), "a target is found again");
    table.addExternal(L"link", table.getAll().front().getTargetURI().toString(), {});

    opc::RelationshipTable again(L"/ppt/slides/", boost::make_shared<opc::RelationshipTexts>());
    readRows(again, writeRows(table));
    require(again.getAll().size() == table.getAll().size(), "no row gets lost");
    for (std::size_t i = 0; i < table.getAll().size(); ++i)
        require(again.getAll()[i].getID() == table.getAll()[i].getID() &&
                    again.getAll()[i].getTargetURI().toString() ==
                        table.getAll()[i].getTargetURI().toString(),
                "rows come back as they were");
    table.remove({added});
    require(!table.find(added), "what was removed is gone");
    return 0;
}
