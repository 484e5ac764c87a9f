// Runs the C++ of each page of docs/ in a folder of its own, with the files that pages speak of.
//
//     run_pages FOLDER TEMPLATE PICTURE

#include <vellox/vellox.h>

#include <exception>
#include <filesystem>
#include <iostream>

#include "tests/docs/pages.h"

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    if (argc != 4)
        return 2;
    const fs::path folder = fs::absolute(argv[1]), corporate = fs::absolute(argv[2]),
                   picture = fs::absolute(argv[3]);
    unsigned int failures = 0;
    for (unsigned int i = 0; i < kPageCount; ++i) {
        fs::remove_all(folder);
        fs::create_directories(folder);
        fs::copy_file(corporate, folder / "corporate.potx");
        fs::copy_file(corporate, folder / "report.pptx");
        fs::copy_file(picture, folder / "curve.png");
        fs::current_path(folder);
        std::cout << kPages[i].name << std::endl;
        try {
            kPages[i].run();
        } catch (const std::exception& error) {
            std::cerr << "docs/" << kPages[i].name << ".md: " << error.what() << "\n";
            ++failures;
        }
    }
    return failures != 0;
}
