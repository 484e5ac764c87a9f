#include "vellox/ppt/engine/OutputReader.h"

#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/xml/Prefixes.h"

#include <boost/interprocess/streams/bufferstream.hpp>
#include <boost/make_shared.hpp>

namespace vellox::ppt {

OPCPackage& OutputReader::open(OPCPackage& package, const std::string* bytes) {
    if (bytes)
        package.openRead(
            boost::make_shared<boost::interprocess::ibufferstream>(bytes->data(), bytes->size()));
    else
        package.openRead(false);
    return package;
}

OutputReader::OutputReader(const std::wstring& path, boost::shared_ptr<const std::string> bytes)
    : bytes_(std::move(bytes)),
      package_(path),
      builder_(open(package_, bytes_.get())) {}

boost::shared_ptr<const TemplateNotes> OutputReader::readNotes(const std::wstring& slidePartName) {
    const std::wstring target =
        builder_.getRelationshipTarget(builder_.getPart(slidePartName), relationship::kNotesSlide);
    if (target.empty() || !builder_.hasPart(target))
        return {};
    const auto notes = boost::make_shared<TemplateNotes>();
    notes->document.reset(builder_.getDocument(builder_.getPart(target)));
    useUsualPrefixes(*notes->document.get());
    return notes;
}

} // namespace vellox::ppt
