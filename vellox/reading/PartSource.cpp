#include "vellox/reading/PartSource.h"

#include "vellox/host/services/Utf8.h"

#include <array>
#include <boost/make_shared.hpp>
#include <boost/uuid/detail/sha1.hpp>

namespace vellox::reading {

using check::Code;

PartSource::PartSource(const check::PackageIndex& index, std::uint64_t containerBytes, check::Report& report)
    : index_(index),
      report_(report),
      budget_(boost::make_shared<opc::XmlBudget>(containerBytes)),
      parser_(budget_) {
    parser_.setNamespaceAware(true);
}

opc::DocumentScope PartSource::read(const check::PartKey& key) {
    const check::PartRecord* part = index_.find(key);
    if (!part || unreadable_.count(key) > 0)
        return {};
    try {
        const auto stream = part->physical->openInput();
        return opc::DocumentScope(parser_.readDocument(*stream));
    } catch (const std::exception& failure) {
        unreadable_.insert(key);
        report_.add(Code::unreadablePart, {part->name, 0}, L"it can't be read: " + fromUtf8(failure.what()));
        return {};
    }
}

const PictureFacts& PartSource::readPicture(const check::PartKey& key) {
    const auto place = pictures_.emplace(key, PictureFacts());
    const check::PartRecord* part = index_.find(key);
    if (!place.second || !part)
        return place.first->second;
    try {
        place.first->second = digest(*part);
    } catch (const std::exception& failure) {
        report_.add(Code::unreadablePart, {part->name, 0}, L"it can't be read: " + fromUtf8(failure.what()));
    }
    return place.first->second;
}

PictureFacts PartSource::digest(const check::PartRecord& part) {
    std::array<unsigned char, 65536> block;
    boost::uuids::detail::sha1 hash;
    PictureFacts facts;
    const auto stream = part.physical->openInput();
    while (const std::size_t count = stream->read(block.data(), block.size())) {
        hash.process_bytes(block.data(), count);
        facts.bytes += count;
    }
    boost::uuids::detail::sha1::digest_type words;
    hash.get_digest(words);
    for (const unsigned int word : words)
        for (int shift = 28; shift >= 0; shift -= 4)
            facts.digest += "0123456789abcdef"[word >> shift & 15];
    return facts;
}

} // namespace vellox::reading
