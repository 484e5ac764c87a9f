// Are these templates fit for vellox? For one template, or every one of a folder, this makes a deck with one slide of
// every layout, each placeholder filled, and checks that the deck is sound. A template that vellox refuses is told
// with the error; that is no failure of this program, but a deck with a fault in it is.
//
//     vellox-template-check <template, or folder of templates> <folder for the decks>

#include "tools/PackageCheck.h"

#include <vellox/vellox.h>

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;
using namespace vellox::ppt;
using vellox::tools::findFaults;

namespace {

bool isTemplate(const fs::path& file) {
    const std::string extension = file.extension().string();
    return extension.size() == 5 && (extension.substr(0, 3) == ".pp" || extension.substr(0, 3) == ".po");
}

void fill(const Slide& slide) {
    for (const auto& child : slide.getChildren())
        if (const auto box = BaseTextBox::cast(child))
            box->add(L"Text in " + box->getName());
}

unsigned makeDeck(const fs::path& templateFile, const fs::path& output) {
    Presentation deck(vellox::fromUtf8(output.string()), vellox::fromUtf8(templateFile.string()));
    unsigned slides = 0;
    for (const std::wstring& master : deck.getMasterNames()) {
        for (const std::wstring& layout : deck.getLayoutNames(master)) {
            fill(deck.add(layout, master));
            ++slides;
        }
    }
    deck.close();
    return slides;
}

// Faults that the deck has and its template hasn't.
std::vector<std::string> findNewFaults(const fs::path& templateFile, const fs::path& deck) {
    std::vector<std::string> former = findFaults(vellox::fromUtf8(templateFile.string()));
    std::vector<std::string> faults = findFaults(vellox::fromUtf8(deck.string()));
    const auto isFormer = [&](const std::string& fault) {
        return std::find(former.begin(), former.end(), fault) != former.end();
    };
    faults.erase(std::remove_if(faults.begin(), faults.end(), isFormer), faults.end());
    return faults;
}

bool check(const fs::path& templateFile, const fs::path& output) {
    std::cout << templateFile.filename().string() << ": ";
    try {
        const unsigned slides = makeDeck(templateFile, output);
        const std::vector<std::string> faults = findNewFaults(templateFile, output);
        std::cout << slides << " slides, " << faults.size() << " faults\n";
        for (const std::string& fault : faults)
            std::cout << "    " << fault << "\n";
        return faults.empty();
    } catch (const hostfx::except::IUserException& error) {
        std::cout << "refused, " << error.getErrorID() << ": " << error.what() << "\n";
        return true;
    } catch (const std::exception& error) {
        std::cout << "failed without an identifier: " << error.what() << "\n";
        return false;
    }
}

std::vector<fs::path> findTemplates(const fs::path& place) {
    if (!fs::is_directory(fs::canonical(place))) // which throws if there is nothing
        return {place};
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(place))
        if (isTemplate(entry.path()))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

bool checkAll(const fs::path& place, const fs::path& folder) {
    const std::vector<fs::path> files = findTemplates(place);
    if (files.empty())
        std::cerr << "there is no template in " << place.string() << "\n";
    fs::create_directories(folder);
    bool isSound = !files.empty();
    // Numbered: not every name of a template may be that of an output.
    for (std::size_t i = 0; i < files.size(); ++i)
        isSound = check(files[i], folder / ("deck" + std::to_string(i + 1) + ".pptx")) && isSound;
    return isSound;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr
            << "usage: vellox-template-check <template, or folder of templates> <folder for the decks>\n";
        return 2;
    }
    try {
        // The library is in this program, which stands elsewhere than it: the texts are found from here.
        vellox::host::setInstallRoot(
            vellox::fromUtf8((fs::canonical("/proc/self/exe").parent_path() / VELLOX_ROOT_FROM_PROGRAM)
                                 .lexically_normal()
                                 .string()));
        return checkAll(argv[1], argv[2]) ? 0 : 1;
    } catch (const fs::filesystem_error& error) {
        std::cerr << error.what() << "\n";
        return 2;
    }
}
