/// @file
/// The container beneath a package: a ZIP archive or a folder.

#ifndef VELLOX_OPC_PHYSICALPACKAGE_H
#define VELLOX_OPC_PHYSICALPACKAGE_H

#include <boost/shared_ptr.hpp>
#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "vellox/foundation/Lazy.h"
#include "vellox/opc/Compression.h"
#include "vellox/opc/PartName.h"
#include "vellox/opc/Streams.h"

namespace opc {

enum class OpenMode { Read = 0, Write = 1, ReadWrite = 2 };

/// What a new part asks of its container: 0 to store its bytes as they are, 1 to compress them. The size is
/// a hint of the bytes to come, 0 if it isn't known.
struct StandardPartInfo {
    int compressionType = 1;
    unsigned long long size = 0;
};

/// One entry of a container: what it holds, and what it is to hold once the container is saved.
class PhysicalPart {
public:
    PhysicalPart(const PartName& name, StandardPartInfo info) : name_(name), info_(info) {}
    virtual ~PhysicalPart();

    const PartName& getName() const { return name_; }
    const StandardPartInfo& getInfo() const { return info_; }
    void setInfo(StandardPartInfo info) { info_ = info; }

    /// The content as it stands: the new one if there is one.
    /// @throws opc::Exception
    boost::shared_ptr<InputStream> openInput() const;
    /// Starts new content, empty at first. The stream writes to memory and stays valid as long as the part. Content is
    /// whole once the stream is closed, or the container saved.
    OutputStream& startOutput();
    /// Makes a file on disk the new content. It is read in small blocks when the container is saved, and
    /// must still be there then.
    void setContentFile(const std::wstring& path);

    enum class Content { Original, Bytes, File };
    Content getContent() const { return content_; }
    const std::string& getBytes() const { return bytes_; }
    const std::wstring& getContentFile() const { return file_.get(); }

protected:
    /// The content that the container holds.
    virtual boost::shared_ptr<InputStream> openOriginal() const = 0;
    /// New content in memory.
    virtual std::string readBytes() const { return bytes_; }
    /// New content in memory has come to its start, or to its end.
    virtual void beginBytes() {}
    virtual void endBytes() {}
    std::string takeBytes() { return std::exchange(bytes_, {}); }

private:
    /// Collects the bytes of a part.
    class Output : public OutputStream {
    public:
        explicit Output(PhysicalPart& part) : part_(part) {}
        void write(const unsigned char* bytes, std::size_t count) override {
            part_.bytes_.append(reinterpret_cast<const char*>(bytes), count);
        }
        void close() override { part_.endBytes(); }

    private:
        PhysicalPart& part_;
    };

    PartName name_;
    StandardPartInfo info_;
    Content content_ = Content::Original;
    std::string bytes_;
    vellox::Lazy<std::wstring> file_;
    Output output_{*this};
};

/// A container. Package works with it, and so does who has to see what Package glosses over.
class PhysicalPackage {
public:
    virtual ~PhysicalPackage();

    /// How small new content is made where the container compresses; Normal if nothing is said.
    void setCompression(Compression compression) { compression_ = compression; }

    /// Finds the entries.
    /// @throws opc::Exception if this isn't a container, or a damaged, encrypted or absurd one
    virtual void open(OpenMode mode) = 0;
    /// Ends the use of the container.
    /// @param save write what has changed; all of it takes effect, or none
    /// @throws opc::Exception if it can't be saved; the former container is whole then
    virtual void close(bool save) = 0;

    /// The bytes of the container on disk; 0 for a new one.
    std::uint64_t getSize() const { return size_; }
    /// All parts but the content-type stream, in the order of the container, new ones last.
    std::vector<boost::shared_ptr<PhysicalPart>> getParts() const { return parts_; }
    virtual boost::shared_ptr<PhysicalPart> createPart(const PartName& name, StandardPartInfo info) = 0;
    void deletePart(const PartName& name) { deleteParts({name}); }
    void deleteParts(const std::set<PartName>& names);

    bool hasContentTypeStream() const { return contentTypes_ != nullptr; }
    boost::shared_ptr<InputStream> getContentTypeInputStream() const { return contentTypes_->openInput(); }
    virtual OutputStream& getContentTypeOutputStream() = 0;

protected:
    /// The name that the content-type stream goes by here; no part can have it in a container.
    static const wchar_t kContentTypesEntry[];

    /// Files an entry under what it is.
    /// @throws opc::Exception for the content-type stream if there is one already
    void addEntry(const std::wstring& entryName, boost::shared_ptr<PhysicalPart> part);

    Compression compression_ = Compression::Normal;
    std::vector<boost::shared_ptr<PhysicalPart>> parts_;
    boost::shared_ptr<PhysicalPart> contentTypes_;
    std::uint64_t size_ = 0;
};

} // namespace opc

#endif
