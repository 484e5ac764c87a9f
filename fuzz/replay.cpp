// Puts the kept seeds through a fuzz target, without a fuzzer.
//
//     <target>_fuzzer <folder of seeds>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " <folder of seeds>\n";
        return 2;
    }
    unsigned count = 0;
    for (const auto& seed : std::filesystem::directory_iterator(argv[1])) {
        std::cout << seed.path().filename().string() << std::endl; // the last one told is the one that failed
        std::ifstream file(seed.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++count;
    }
    std::cout << count << " seeds\n";
    return count > 0 ? 0 : 1;
}
