/// @file
/// The parts of one package, read whenever they are referred to. Internal.

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
    /// The part's document, which is charged each time: what several frames show is there for all of them, and a small
    /// package is no huge deck for that.
    /// @return null if the part doesn't exist or can't be read, which is reported once
    opc::DocumentScope read(const check::PartKey& key);
    /// Charges what becomes of a part beyond what stands in it.
    /// @throws opc::Exception if that is too much for the package
    void charge(std::uint64_t cost) { budget_->take(cost); }
    /// What is to be known of a picture, whoever asks.
    const PictureFacts& readPicture(const check::PartKey& key);

private:
    PictureFacts digest(const check::PartRecord& part);

    const check::PackageIndex& index_;
    check::Report& report_;
    opc::XercesProcess xerces_;
    boost::shared_ptr<opc::XmlBudget> budget_;
    opc::BoundedParser parser_;
    std::set<check::PartKey> unreadable_;
    std::map<check::PartKey, PictureFacts> pictures_;
};

} // namespace vellox::reading

#endif
