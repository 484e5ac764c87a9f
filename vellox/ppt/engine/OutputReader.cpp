#include "vellox/ppt/engine/OutputReader.h"

#include "vellox/ppt/package/PackageNames.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace {

OPCPackage& openForReading(OPCPackage& package) {
    package.openRead(false);
    return package;
}

} // namespace

OutputReader::OutputReader(const std::wstring& path) : package_(path), builder_(openForReading(package_)) {}

boost::shared_ptr<const TemplateNotes> OutputReader::readNotes(const std::wstring& slidePartName) {
    const std::wstring target =
        builder_.getRelationshipTarget(builder_.getPart(slidePartName), relationship::kNotesSlide);
    if (target.empty() || !builder_.hasPart(target))
        return {};
    const auto notes = boost::make_shared<TemplateNotes>();
    notes->document.reset(builder_.getDocument(builder_.getPart(target)));
    return notes;
}

} // namespace vellox::ppt
