#include "vellox/opc/ZipPhysicalPackage.h"

#include "vellox/host/services/FreshFile.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Deflater.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/ZipFileSource.h"
#include "vellox/opc/ZipHeaders.h"
#include "vellox/opc/ZipStreamSource.h"

#include <array>
#include <boost/make_shared.hpp>
#include <cerrno>
#include <fstream>
#include <sstream>

namespace opc {

namespace fsys = hostfx::filesystem;

namespace {

constexpr zip_uint16_t kNewEntryTime = 0;      // midnight
constexpr zip_uint16_t kNewEntryDate = 0x0021; // of 1980-01-01, where the format's calendar begins

// An error of libzip that is ended with its scope.
class ZipError {
public:
    ZipError() { zip_error_init(&error_); }
    ZipError(const ZipError&) = delete;
    ZipError& operator=(const ZipError&) = delete;
    ~ZipError() { zip_error_fini(&error_); }
    zip_error_t* get() { return &error_; }

private:
    zip_error_t error_;
};

[[noreturn]] void fail(const zip_error_t* reason) {
    ZipError copy; // the text belongs to the error that it is asked of
    zip_error_set(copy.get(), zip_error_code_zip(reason), zip_error_code_system(reason));
    throw Exception(zip_error_strerror(copy.get()));
}

// The bytes of one entry, inflated, with their checksum verified at the end.
class EntryStream : public InputStream {
public:
    EntryStream(zip_t* archive, zip_uint64_t index) : file_(zip_fopen_index(archive, index, 0), zip_fclose) {
        if (!file_)
            fail(zip_get_error(archive));
    }

    std::size_t read(unsigned char* target, std::size_t count) override {
        const zip_int64_t read = zip_fread(file_.get(), target, count);
        if (read < 0)
            fail(zip_file_get_error(file_.get()));
        isDone_ = read == 0;
        return static_cast<std::size_t>(read);
    }
    bool isDone() const override { return isDone_; }

private:
    std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file_;
    bool isDone_ = false;
};

// Archives from some systems have backslashes between the elements.
std::wstring readEntryName(const char* name) {
    std::wstring text = vellox::fromUtf8(name);
    for (wchar_t& c : text)
        if (c == L'\\')
            c = L'/';
    return text.substr(text.find_first_not_of(L'/') == 1 ? 1 : 0);
}

// What is no larger than XML may be can be as repetitive as it likes.
void checkInflation(const zip_stat_t& entry) {
    if (entry.size > kMaxXmlBytes && entry.size / kMaxInflation > entry.comp_size)
        throw Exception(std::string("its entry ") + entry.name + " would inflate more than " +
                        std::to_string(kMaxInflation) + " times");
}

// Office files with a password are compound files and no archives at all; telling so saves a riddle.
bool isCompoundFile(std::istream& file) {
    static constexpr std::array<unsigned char, 8> kMagic{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
    std::array<unsigned char, 8> start{};
    file.clear();
    file.seekg(0);
    file.read(reinterpret_cast<char*>(start.data()), start.size());
    return start == kMagic;
}

[[noreturn]] void failToOpen(const zip_error_t* reason, std::istream& file) {
    if (isCompoundFile(file))
        throw Exception("it is encrypted, or in an old binary format");
    fail(reason);
}

bool isStored(const PhysicalPart& part) {
    return part.getInfo().compressionType == 0;
}

} // namespace

/// An entry of the archive, or one to come.
class ZipPhysicalPackage::Entry : public PhysicalPart {
public:
    static constexpr long long kNew = -1;

    Entry(ZipPhysicalPackage& package, const PartName& name, StandardPartInfo info, std::string entryName,
          long long index)
        : PhysicalPart(name, info),
          package_(package),
          index_(index) {
        if (!entryName.empty())
            entryName_.require() = std::move(entryName);
    }

    /// That of a new one follows from its part's.
    std::string getEntryName() const {
        return entryName_.get().empty() ? getName().toEntryName() : entryName_.get();
    }
    /// The entry in the target as it is in its archive, still compressed.
    zip_source_t* makeSource(zip_t* target) const {
        return zip_source_zip(target, package_.archive_.get(), getIndex(), ZIP_FL_COMPRESSED, 0, -1);
    }
    /// Its new content in memory.
    zip_source_t* makeBytesSource(zip_t* target) {
        endBytes();
        return deflated_ ? Deflater::makeSource(target, deflated_)
                         : zip_source_buffer(target, getBytes().data(), getBytes().size(), 0);
    }
    zip_uint64_t getIndex() const { return static_cast<zip_uint64_t>(index_); }
    /// Whether the archive holds the entry uncompressed.
    bool isStored() const {
        zip_stat_t facts;
        return zip_stat_index(package_.archive_.get(), getIndex(), 0, &facts) == 0 &&
               (facts.valid & ZIP_STAT_COMP_METHOD) && facts.comp_method == ZIP_CM_STORE;
    }

protected:
    // Deflated at once, so that a deck of thousands of slides never is in memory in full length.
    void beginBytes() override { deflated_.reset(); }
    void endBytes() override {
        if (getInfo().compressionType != 0 && !deflated_)
            deflated_ = package_.requireDeflater().deflate(takeBytes());
    }
    std::string readBytes() const override { return deflated_ ? deflated_->inflate() : getBytes(); }
    boost::shared_ptr<InputStream> openOriginal() const override {
        if (index_ == kNew)
            return boost::make_shared<StdIStreamAdaptor>(boost::make_shared<std::istringstream>());
        const auto place = static_cast<zip_uint64_t>(index_);
        zip_stat_t facts;
        zip_t* const archive = package_.archive_.get();
        if (zip_stat_index(archive, place, 0, &facts) != 0)
            fail(zip_get_error(archive));
        checkInflation(facts);
        return boost::make_shared<EntryStream>(archive, place);
    }

private:
    ZipPhysicalPackage& package_;
    vellox::Lazy<std::string> entryName_;
    long long index_;
    boost::shared_ptr<const Deflated> deflated_;
};

ZipPhysicalPackage::ZipPhysicalPackage(boost::shared_ptr<StdIStreamAdaptor> input)
    : input_(std::move(input)),
      archive_(nullptr, zip_discard) {}

ZipPhysicalPackage::ZipPhysicalPackage(boost::shared_ptr<StdOStreamAdaptor> output, bool)
    : output_(std::move(output)),
      archive_(nullptr, zip_discard) {}

ZipPhysicalPackage::ZipPhysicalPackage(boost::shared_ptr<StdIStreamAdaptor> input, const std::wstring& target)
    : input_(std::move(input)),
      path_(vellox::toUtf8(target)),
      archive_(nullptr, zip_discard) {}

ZipPhysicalPackage::ZipPhysicalPackage(const std::wstring& path, bool, const std::wstring&)
    : path_(vellox::toUtf8(path)),
      archive_(nullptr, zip_discard) {}

ZipPhysicalPackage::~ZipPhysicalPackage() = default;

ZipPhysicalPackage::Archive ZipPhysicalPackage::openSource(zip_source_t* source, int flags,
                                                           zip_error_t* error) {
    Archive archive(source ? zip_open_from_source(source, flags, error) : nullptr, zip_discard);
    if (!archive && source)
        zip_source_free(source);
    return archive;
}

ZipPhysicalPackage::Archive ZipPhysicalPackage::openForReading() const {
    ZipError error;
    if (input_) {
        Archive archive =
            openSource(makeReadSource(input_->getStream(), error.get()), ZIP_RDONLY, error.get());
        if (!archive)
            failToOpen(error.get(), input_->getStream());
        return archive;
    }
    Archive archive =
        openSource(zip_source_file_create(path_.c_str(), 0, -1, error.get()), ZIP_RDONLY, error.get());
    if (!archive) {
        std::ifstream file(path_, std::ios::binary);
        failToOpen(error.get(), file);
    }
    return archive;
}

void ZipPhysicalPackage::open(OpenMode mode) {
    if (mode == OpenMode::Write)
        return;
    if (input_ && !input_->getStream().good())
        throw Exception("it doesn't exist or can't be read");
    if (!input_)
        refusePipe(path_);
    former_ = fsys::identify(fsys::Path(std::filesystem::path(path_)));
    archive_ = openForReading();
    size_ = measure();
    listEntries();
}

std::uint64_t ZipPhysicalPackage::measure() const {
    if (!input_)
        return std::filesystem::file_size(path_);
    std::istream& stream = input_->getStream();
    stream.clear();
    const auto here = stream.tellg(); // where libzip has left it
    const auto size = static_cast<std::uint64_t>(stream.seekg(0, std::ios::end).tellg());
    stream.seekg(here);
    return size;
}

void ZipPhysicalPackage::listEntries() {
    const zip_int64_t count = zip_get_num_entries(archive_.get(), 0);
    if (static_cast<std::uint64_t>(count) > kMaxEntries)
        throw Exception("it has more than " + std::to_string(kMaxEntries) + " entries");
    std::uint64_t left = size_;
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        zip_stat_t facts;
        if (zip_stat_index(archive_.get(), index, ZIP_FL_ENC_GUESS, &facts) != 0)
            fail(zip_get_error(archive_.get()));
        if ((facts.valid & ZIP_STAT_ENCRYPTION_METHOD) && facts.encryption_method != ZIP_EM_NONE)
            throw Exception(std::string("its entry ") + facts.name + " is encrypted");
        // Entries that lie over one another are a few bytes here and would be any number in a copy.
        if (facts.comp_size > left)
            throw Exception("its entries hold more bytes than it has, so that some of them overlap");
        left -= facts.comp_size;
        const std::wstring name = readEntryName(facts.name);
        if (name.empty() || name.back() == L'/')
            continue;
        addEntry(name, boost::make_shared<Entry>(*this, PartName(L"/" + name), StandardPartInfo(),
                                                 vellox::toUtf8(name), i));
    }
}

boost::shared_ptr<PhysicalPart> ZipPhysicalPackage::createPart(const PartName& name, StandardPartInfo info) {
    const auto part = boost::make_shared<Entry>(*this, name, info, std::string(), Entry::kNew);
    part->startOutput();
    parts_.push_back(part);
    return part;
}

OutputStream& ZipPhysicalPackage::getContentTypeOutputStream() {
    if (!contentTypes_)
        contentTypes_ =
            boost::make_shared<Entry>(*this, PartName(std::wstring(L"/") + kContentTypesEntry),
                                      StandardPartInfo(), vellox::toUtf8(kContentTypesEntry), Entry::kNew);
    return contentTypes_->startOutput();
}

void ZipPhysicalPackage::close(bool save) {
    if (save && output_) {
        writeArchive(output_->getStream());
        output_->close();
    } else if (save) {
        saveToFile();
    }
    archive_.reset();
    if (input_)
        input_->close();
}

Deflater& ZipPhysicalPackage::requireDeflater() {
    if (!deflater_)
        deflater_ = std::make_unique<Deflater>(compression_);
    return *deflater_;
}

void ZipPhysicalPackage::saveToFile() {
    try {
        const fsys::Path place{std::filesystem::path(path_)};
        fsys::FreshFile fresh(place);
        writeArchive(fresh.getStream());
        copyHeaders(fresh.getStream());
        if (!input_ && fsys::identify(place) != former_)
            throw Exception("another file has taken its place while it was open");
        fresh.takePlace();
    } catch (const fsys::FsysExceptionBase& failure) {
        throw Exception(failure.what());
    }
}

void ZipPhysicalPackage::writeArchive(std::ostream& stream) {
    ZipError error;
    Archive target = openSource(makeWriteSource(stream, error.get()), ZIP_CREATE | ZIP_TRUNCATE, error.get());
    if (!target)
        fail(error.get());
    if (contentTypes_)
        writeEntry(target.get(), static_cast<Entry&>(*contentTypes_));
    for (const auto& part : parts_)
        writeEntry(target.get(), static_cast<Entry&>(*part));
    if (zip_close(target.get()) != 0)
        fail(zip_get_error(target.get()));
    static_cast<void>(target.release()); // zip_close has ended it
}

// Entries that nothing has touched keep their times and flags, too.
void ZipPhysicalPackage::copyHeaders(std::iostream& target) const {
    if (input_) {
        input_->getStream().clear();
        return copyHeaders(input_->getStream(), target);
    }
    std::ifstream file(path_, std::ios::binary);
    copyHeaders(file, target);
}

void ZipPhysicalPackage::copyHeaders(std::istream& source, std::iostream& target) const {
    std::vector<const PhysicalPart*> entries; // as writeArchive() has written them
    if (contentTypes_)
        entries.push_back(contentTypes_.get());
    for (const auto& part : parts_)
        entries.push_back(part.get());
    const std::vector<ZipHeader> sources = readZipHeaders(source);
    const std::vector<ZipHeader> headers = readZipHeaders(target);
    if (!source || headers.size() != entries.size())
        throw Exception("its directory can't be read");
    if (static_cast<zip_int64_t>(sources.size()) != zip_get_num_entries(archive_.get(), 0))
        return; // libzip has found its own way through a damaged archive
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i]->getContent() == PhysicalPart::Content::Original)
            copyZipHeader(target, headers[i], sources[static_cast<const Entry*>(entries[i])->getIndex()]);
}

zip_source_t* ZipPhysicalPackage::makeSource(zip_t* target, Entry& entry) {
    switch (entry.getContent()) {
    case PhysicalPart::Content::Original:
        return entry.makeSource(target);
    case PhysicalPart::Content::Bytes:
        return entry.makeBytesSource(target);
    case PhysicalPart::Content::File:
        return makeFileSource(target, vellox::toUtf8(entry.getContentFile()));
    }
    return nullptr;
}

void ZipPhysicalPackage::writeEntry(zip_t* target, Entry& entry) {
    zip_source_t* source = makeSource(target, entry);
    if (!source)
        fail(zip_get_error(target));
    const zip_int64_t index = zip_file_add(target, entry.getEntryName().c_str(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        fail(zip_get_error(target));
    }
    const auto place = static_cast<zip_uint64_t>(index);
    if (entry.getContent() == PhysicalPart::Content::Original) {
        // libzip takes a stored entry for content that is still to be compressed, unless told otherwise.
        if (entry.isStored() && zip_set_file_compression(target, place, ZIP_CM_STORE, 0) != 0)
            fail(zip_get_error(target));
        return;
    }
    const zip_int32_t method = isStored(entry) ? ZIP_CM_STORE : ZIP_CM_DEFLATE;
    if (zip_set_file_compression(target, place, method, requireDeflater().getZlibLevel()) != 0 ||
        zip_file_set_dostime(target, place, kNewEntryTime, kNewEntryDate, 0) != 0)
        fail(zip_get_error(target));
}

} // namespace opc
