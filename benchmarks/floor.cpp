// What a deck costs at the least: its parts, ready as they are, deflated by zlib and written.
//
//     floor unpack <deck.pptx> <parts>         not measured: the parts of a finished deck, one by one
//     floor write <parts> <output> [<times>]   a program that knows nothing but how to make an archive of them
//
// Parts that are stored in the deck, as pictures are, are stored again. The output has all that an archive
// has but the directory at its end.

#include <zip.h>
#include <zlib.h>

#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

struct PartHeader {
    std::uint32_t isStored;
    std::uint32_t nameLength;
    std::uint64_t size;
};

void write(std::ostream& out, const void* bytes, std::size_t count) {
    out.write(static_cast<const char*>(bytes), static_cast<std::streamsize>(count));
}

bool unpack(const char* deck, std::ostream& out) {
    zip_t* archive = zip_open(deck, ZIP_RDONLY, nullptr);
    if (!archive)
        return false;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        zip_stat_t facts;
        zip_stat_index(archive, index, 0, &facts);
        const std::string name = facts.name;
        std::string bytes(facts.size, '\0');
        zip_file_t* file = zip_fopen_index(archive, index, 0);
        zip_fread(file, bytes.data(), bytes.size());
        zip_fclose(file);
        const PartHeader header{facts.comp_method == ZIP_CM_STORE, static_cast<std::uint32_t>(name.size()),
                                bytes.size()};
        write(out, &header, sizeof header);
        write(out, name.data(), name.size());
        write(out, bytes.data(), bytes.size());
    }
    zip_discard(archive);
    return true;
}

class Archiver {
public:
    explicit Archiver(std::ostream& out) : out_(out) {
        deflateInit2(&stream_, 6, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    }
    Archiver(const Archiver&) = delete;
    Archiver& operator=(const Archiver&) = delete;
    ~Archiver() { deflateEnd(&stream_); }

    void add(const std::string& name, std::vector<unsigned char>& bytes, bool isStored) {
        const std::vector<unsigned char>& packed = isStored ? bytes : deflateAll(bytes);
        // Lengths and checksum stand where an archive has them; the rest is as good as any.
        std::uint32_t header[8] = {};
        header[3] = static_cast<std::uint32_t>(crc32(0, bytes.data(), static_cast<uInt>(bytes.size())));
        header[4] = static_cast<std::uint32_t>(packed.size());
        header[5] = static_cast<std::uint32_t>(bytes.size());
        write(out_, header, 30);
        write(out_, name.data(), name.size());
        write(out_, packed.data(), packed.size());
    }

private:
    const std::vector<unsigned char>& deflateAll(std::vector<unsigned char>& bytes) {
        deflateReset(&stream_);
        packed_.resize(deflateBound(&stream_, bytes.size()));
        stream_.next_in = bytes.data();
        stream_.avail_in = static_cast<uInt>(bytes.size());
        stream_.next_out = packed_.data();
        stream_.avail_out = static_cast<uInt>(packed_.size());
        deflate(&stream_, Z_FINISH);
        packed_.resize(stream_.total_out);
        return packed_;
    }

    std::ostream& out_;
    z_stream stream_{};
    std::vector<unsigned char> packed_;
};

void writeAll(std::istream& parts, std::ostream& out) {
    Archiver archiver(out);
    PartHeader header;
    std::string name;
    std::vector<unsigned char> bytes;
    while (parts.read(reinterpret_cast<char*>(&header), sizeof header)) {
        name.resize(header.nameLength);
        bytes.resize(header.size);
        parts.read(name.data(), static_cast<std::streamsize>(name.size()));
        parts.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        archiver.add(name, bytes, header.isStored != 0);
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::string command = argc > 3 ? argv[1] : "";
    if (command == "unpack") {
        std::ofstream out(argv[3], std::ios::binary);
        return unpack(argv[2], out) && out.flush() ? 0 : 1;
    }
    if (command != "write") {
        std::cerr << "usage: floor unpack <deck.pptx> <parts> | write <parts> <output> [<times>]\n";
        return 2;
    }
    for (unsigned long i = 0, times = argc > 4 ? std::stoul(argv[4]) : 1; i < times; ++i) {
        std::ifstream parts(argv[2], std::ios::binary);
        std::ofstream out(argv[3], std::ios::binary);
        writeAll(parts, out);
        if (!out.flush())
            return 1;
    }
    return 0;
}
