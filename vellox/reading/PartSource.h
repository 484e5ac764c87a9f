/// @file
/// The parts of one package, each read once. Internal.

#ifndef VELLOX_READING_PARTSOURCE_H
#define VELLOX_READING_PARTSOURCE_H

#include <map>
#include <set>
#include <string>

#include "vellox/check/PackageIndex.h"
#include "vellox/check/Report.h"
#include "vellox/opc/BoundedParser.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"

namespace vellox::reading {

struct PictureFacts {
    std::string digest; // empty if the part can't be read
    std::uint64_t bytes = 0;
};

class PartSource {
public:
    /// @param containerBytes what the package takes on disk, which bounds what reading it may cost
    PartSource(const check::PackageIndex& index, std::uint64_t containerBytes, check::Report& report);

    const check::PackageIndex& getIndex() const { return index_; }
    /// The part's document, the first time that it is asked for.
    /// @return null afterwards, and if the part doesn't exist or can't be read, which is reported
    opc::DocumentScope take(const check::PartKey& key);
    /// What is to be known of a picture, whoever asks.
    const PictureFacts& readPicture(const check::PartKey& key);

private:
    PictureFacts digest(const check::PartRecord& part);

    const check::PackageIndex& index_;
    check::Report& report_;
    opc::XercesProcess xerces_;
    opc::BoundedParser parser_;
    std::set<check::PartKey> taken_;
    std::map<check::PartKey, PictureFacts> pictures_;
};

} // namespace vellox::reading

#endif
