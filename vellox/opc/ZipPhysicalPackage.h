/// @file
/// A package in a ZIP archive.

#ifndef VELLOX_OPC_ZIPPHYSICALPACKAGE_H
#define VELLOX_OPC_ZIPPHYSICALPACKAGE_H

#include <zip.h>

#include <memory>
#include <string>

#include "vellox/host/services/FileSystem.h"
#include "vellox/opc/PhysicalPackage.h"

namespace opc {

class Deflater;

/// An archive through libzip: ZIP64, data descriptors, stored and deflated entries, in any order.
///
/// Saving writes a new archive,
///
///     [Content_Types].xml        always first, as some readers want it
///     entries of the old one     untouched ones still compressed, byte for byte
///     new entries                in the order in which they were made
///
/// beside the file that it is to be and renames it over that; one that was opened in place only if no other file
/// has taken its place meanwhile. Entries for
/// folders are left out. New entries bear the earliest date that the format has, so that the same calls give
/// the same bytes.
class ZipPhysicalPackage : public PhysicalPackage {
public:
    /// For reading from a stream that can seek.
    explicit ZipPhysicalPackage(boost::shared_ptr<StdIStreamAdaptor> input);
    /// For writing a new archive to a stream that can seek. The flag has only this value.
    ZipPhysicalPackage(boost::shared_ptr<StdOStreamAdaptor> output, bool append);
    /// For reading from a stream that can seek, and saving to a file, whatever stands there.
    ZipPhysicalPackage(boost::shared_ptr<StdIStreamAdaptor> input, const std::wstring& target);
    /// For reading and writing a file in place. Flag and text have only these values.
    ZipPhysicalPackage(const std::wstring& path, bool inPlace, const std::wstring& password);
    ~ZipPhysicalPackage() override;

    void open(OpenMode mode) override;
    void close(bool save) override;
    boost::shared_ptr<PhysicalPart> createPart(const PartName& name, StandardPartInfo info) override;
    OutputStream& getContentTypeOutputStream() override;

private:
    class Entry;
    using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;

    static Archive openSource(zip_source_t* source, int flags, zip_error_t* error);
    Archive openForReading() const;
    std::uint64_t measure() const;
    void listEntries();
    Deflater& requireDeflater();
    void saveToFile();
    void writeArchive(std::ostream& stream);
    void copyHeaders(std::iostream& target) const;
    void copyHeaders(std::istream& source, std::iostream& target) const;
    void writeEntry(zip_t* target, Entry& entry);
    static zip_source_t* makeSource(zip_t* target, Entry& entry);

    boost::shared_ptr<StdIStreamAdaptor> input_;
    boost::shared_ptr<StdOStreamAdaptor> output_;
    std::string path_;
    hostfx::filesystem::FileIdentity former_; // of the file at the path, as it was opened
    Archive archive_;
    std::unique_ptr<Deflater> deflater_; // from the first content on
};

} // namespace opc

#endif
