// Lets system calls of open and close fail, one after the other, or be the last of their process. Whatever happens,
// what stands at the output path is the former file, the template's copy or the new deck, whole; nothing else is
// left but what a kill leaves, under a name that says what it is. By the office rules it is never the template's copy.
//
//     fault_check <faults to inject at least>

#include "tests/faults/Injector.h"
#include "tests/support/Files.h"

#include <vellox/vellox.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <vector>

namespace fs = std::filesystem;
using namespace vellox;
using namespace vellox::test;

namespace {

using Kind = Fault::Kind;

/// What becomes of a deck.
enum Outcome { Written = 0, Refused = 1, Wrong = 2, NotStruck = 3, Killed = 4 };

/// One way to make a deck: what stands at the output path before, and what must still be said of it.
struct Scenario {
    const char* name;
    bool hasFormer;
    bool throughLink;
    bool withPicture;
    const wchar_t* profile = L"classic";

    bool isClassic() const { return profile == std::wstring(L"classic"); }
};

constexpr Scenario kScenarios[] = {
    {"a new file", false, false, false},
    {"a file that exists", true, false, true},
    {"a link to a file", true, true, false},
    {"a file that exists, by the office rules", true, false, true, L"office"},
};

// What can befall a call; the last one only those that read and write.
constexpr Fault kKinds[] = {{Kind::Error, ENOSPC}, {Kind::Error, EIO}, {Kind::Error, EINTR},
                            {Kind::Error, EACCES}, {Kind::Kill},       {Kind::Short}};
constexpr std::size_t kKindCount = sizeof kKinds / sizeof *kKinds;
constexpr std::size_t kMostOfOneSite = 36; // a template is read in hundreds of calls, which are all alike

constexpr char kFormer[] = "what stood here before";
const std::string kPicture(100000, 'p');

/// The folder of the decks, and the one that the library has for its temporary files.
struct Place {
    TempFolder decks, temporary;
    std::wstring output = decks / L"deck.pptx", file = decks / L"real.pptx";
    std::wstring templateFile = decks / L"template.pptx", picture = decks / L"picture.png";

    void prepare(const Scenario& scenario) const {
        for (const TempFolder* folder : {&decks, &temporary})
            for (const std::string& name : folder->list())
                if (name != "template.pptx" && name != "picture.png")
                    fs::remove(folder->getPath() / name);
        if (scenario.hasFormer)
            writeFile(scenario.throughLink ? file : output, kFormer);
        if (scenario.throughLink)
            fs::create_symlink("real.pptx", toUtf8(output));
    }
};

// The default template with one layout, so that a run takes milliseconds.
Parts makeSmallTemplate() {
    Parts parts = getTemplateParts();
    const std::string master = "ppt/slideMasters/slideMaster1.xml";
    const std::string relationships = "ppt/slideMasters/_rels/slideMaster1.xml.rels";
    const auto cut = [](std::string& text, const std::string& from, const std::string& to,
                        const std::string& mark) {
        const std::size_t at = text.find(mark);
        const std::size_t start = text.rfind(from, at);
        text.erase(start, text.find(to, at) + to.size() - start);
    };
    for (int i = 2; parts.count("ppt/slideLayouts/slideLayout" + std::to_string(i) + ".xml") > 0; ++i) {
        const std::string file = "slideLayout" + std::to_string(i) + ".xml";
        std::string& table = parts.at(relationships);
        const std::size_t row = table.rfind('<', table.find("/" + file));
        const std::size_t id = table.find("Id=\"", row) + 4;
        const std::string mark = "r:id=\"" + table.substr(id, table.find('"', id) - id) + "\"";
        cut(parts.at(master), "<p:sldLayoutId ", "/>", mark);
        cut(table, "<Relationship ", "/>", "/" + file);
        cut(parts.at("[Content_Types].xml"), "<Override ", "/>", "/" + file);
        parts.erase("ppt/slideLayouts/" + file);
        parts.erase("ppt/slideLayouts/_rels/" + file + ".rels");
    }
    return parts;
}

Outcome makeDeck(const Place& place, const Scenario& scenario) {
    try {
        ppt::Presentation deck(place.output, place.templateFile);
        deck.setProfile(scenario.profile);
        deck.open();
        ppt::Slide slide = deck.add(L"Title Slide");
        slide.replace(L"Title", L"written");
        if (scenario.withPicture) {
            ppt::Picture picture(place.picture);
            picture.setName(L"picture"); // else it has a random one
            slide.add(picture);
        }
        return deck.close() ? Written : Wrong;
    } catch (const hostfx::except::IMsgIDException&) {
        return Refused;
    } catch (const std::exception& error) {
        std::cerr << "another exception: " << error.what() << "\n";
        return Wrong;
    }
}

Outcome makeDeckAndFail(const Place& place, const Scenario& scenario, const Fault& fault) {
    arm(fault);
    const Outcome outcome = makeDeck(place, scenario);
    disarm();
    return hasStruck() || outcome == Wrong ? outcome : NotStruck;
}

// What is killed needs a process of its own.
Outcome makeDeckAndDie(const Place& place, const Scenario& scenario, const Fault& fault) {
    const pid_t process = fork();
    if (process == 0)
        _exit(makeDeckAndFail(place, scenario, fault));
    int status = 0;
    waitpid(process, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL ? Killed : Wrong;
}

// A deck tells when it was made, and no two runs are of one moment.
Parts readDeck(const std::wstring& path) {
    Parts parts = readParts(path);
    parts.erase("docProps/core.xml");
    return parts;
}

// Parts have random names for pictures alone, and the tables that lead to those differ too.
bool isNewDeck(const std::wstring& path, const Parts& expected, bool withPicture) {
    Parts parts;
    try {
        parts = readDeck(path);
    } catch (const std::exception&) {
        return false;
    }
    std::size_t pictures = 0;
    for (const auto& part : parts) {
        const bool isPicture = part.first.rfind("ppt/media/", 0) == 0;
        pictures += isPicture && part.second == kPicture ? 1 : 0;
        const bool isFixed = !isPicture && part.first.find("slides/_rels/") == std::string::npos;
        if (isFixed && (expected.count(part.first) == 0 || expected.at(part.first) != part.second))
            return false;
    }
    return parts.size() == expected.size() && pictures == (withPicture ? 1u : 0u);
}

/// Judges what a run has left.
class Judge {
public:
    Judge(const Place& place, const Scenario& scenario, Parts deck, Parts deckWithoutPicture)
        : place_(place),
          scenario_(scenario),
          templateBytes_(readFile(place.templateFile)),
          deck_(std::move(deck)),
          deckWithoutPicture_(std::move(deckWithoutPicture)) {}

    /// @param mayLackPicture a picture that can't be read is no error, and the deck is written without it
    std::string findFault(Outcome outcome, bool mayLackPicture) const {
        if (outcome == Wrong)
            return "a crash, or no identified error";
        const bool isNew = isNewDeck(place_.output, deck_, scenario_.withPicture) ||
                           (mayLackPicture && isNewDeck(place_.output, deckWithoutPicture_, false));
        if (outcome == Written && !isNew)
            return "it is said to be written, and isn't";
        if (!isNew && !isOld())
            return "what stands at the output path isn't whole";
        if (scenario_.throughLink && !fs::is_symlink(toUtf8(place_.output)))
            return "the link is gone";
        return findLitter(outcome == Killed);
    }

private:
    bool isOld() const {
        if (!fs::exists(toUtf8(place_.output)))
            return !scenario_.hasFormer;
        const std::string bytes = readFile(place_.output);
        return (scenario_.isClassic() && bytes == templateBytes_) ||
               (scenario_.hasFormer && bytes == kFormer);
    }

    std::string findLitter(bool wasKilled) const {
        for (const TempFolder* folder : {&place_.decks, &place_.temporary})
            for (const std::string& name : folder->list()) {
                const bool isOurs = name == "deck.pptx" || name == "real.pptx" || name == "template.pptx" ||
                                    name == "picture.png";
                if (!isOurs && !(wasKilled && name.rfind("vellox-", 0) == 0))
                    return "left behind: " + name;
            }
        return {};
    }

    const Place& place_;
    const Scenario& scenario_;
    std::string templateBytes_;
    Parts deck_, deckWithoutPicture_;
};

struct Counts {
    unsigned injected = 0, wrong = 0;
    unsigned outcomes[Killed + 1] = {};
};

// What a file is to the library, so that calls on it are alike.
std::string nameFile(const Place& place, const std::string& path) {
    const fs::path file(path);
    const std::string name = file.filename().string();
    if (file.parent_path() == place.temporary.getPath())
        return "a temporary file";
    if (file.parent_path() == place.decks.getPath())
        return name.rfind("vellox-", 0) == 0 ? "the new file" : name;
    return file == place.decks.getPath() || file == place.temporary.getPath() ? "a folder" : "elsewhere";
}

// Each kind of fault meets each function on each kind of file, and each call meets a fault, up to a number.
std::vector<Fault> planFaults(const Place& place, const std::vector<Call>& calls) {
    std::map<std::string, std::vector<unsigned>> sites;
    for (unsigned i = 0; i < calls.size(); ++i)
        sites[std::string(calls[i].function) + " of " + nameFile(place, calls[i].path)].push_back(i);
    std::vector<Fault> faults;
    for (const auto& site : sites) {
        const std::string function = site.first.substr(0, site.first.find(' '));
        const bool canBeShort = function == "read" || function == "write" || function == "writev";
        const std::size_t kinds = canBeShort ? kKindCount : kKindCount - 1;
        const std::size_t size = site.second.size();
        const std::size_t count = std::max(kinds, std::min(size, kMostOfOneSite));
        for (std::size_t i = 0; i < count; ++i) {
            faults.push_back(kKinds[i % kinds]);
            faults.back().call = site.second[count <= size ? i * size / count : i % size];
        }
    }
    std::cout << calls.size() << " calls at " << sites.size() << " sites" << std::endl;
    return faults;
}

// Runs until the calls are those of every further run: what is read once in a process has been read.
std::vector<Call> listCalls(const Place& place, const Scenario& scenario) {
    for (int run = 0; run < 2; ++run) {
        place.prepare(scenario);
        arm({});
        makeDeck(place, scenario);
        disarm();
    }
    place.prepare(scenario);
    arm({});
    makeDeck(place, scenario);
    return disarm();
}

Judge makeJudge(const Place& place, const Scenario& scenario) {
    const Parts deck = readDeck(place.output);
    if (!scenario.isClassic()) // a picture that can't be read is an error then
        return {place, scenario, deck, deck};
    fs::remove(toUtf8(place.picture));
    makeDeck(place, scenario);
    writeFile(place.picture, kPicture);
    return {place, scenario, deck, readDeck(place.output)};
}

void runScenario(const Place& place, const Scenario& scenario, Counts& counts) {
    std::cout << scenario.name << ": ";
    const std::vector<Call> calls = listCalls(place, scenario);
    const Judge judge = makeJudge(place, scenario);
    for (const Fault& fault : planFaults(place, calls)) {
        place.prepare(scenario);
        const Outcome outcome = fault.kind == Kind::Kill ? makeDeckAndDie(place, scenario, fault)
                                                         : makeDeckAndFail(place, scenario, fault);
        if (outcome == NotStruck)
            continue;
        ++counts.injected;
        ++counts.outcomes[outcome];
        const Call& call = calls[fault.call];
        const bool isPicture =
            scenario.isClassic() && fault.kind == Kind::Error && nameFile(place, call.path) == "picture.png";
        const std::string wrong = judge.findFault(outcome, isPicture);
        if (wrong.empty())
            continue;
        ++counts.wrong;
        std::cout << scenario.name << ", call " << fault.call << ", " << call.function << " of " << call.path
                  << ", kind " << static_cast<int>(fault.kind) << " "
                  << (fault.code ? std::strerror(fault.code) : "") << ": " << wrong << std::endl;
    }
}

} // namespace

int main(int argc, char** argv) {
    const Place place;
    setenv("TMPDIR", place.temporary.getPath().c_str(), 1);
    writeParts(place.templateFile, makeSmallTemplate());
    writeFile(place.picture, kPicture);
    Counts counts;
    for (const Scenario& scenario : kScenarios)
        runScenario(place, scenario, counts);
    std::cout << counts.injected << " faults injected: " << counts.outcomes[Written] << " decks written, "
              << counts.outcomes[Refused] << " identified errors, " << counts.outcomes[Killed]
              << " processes killed, " << counts.wrong << " faults found" << std::endl;
    const unsigned wanted = argc > 1 ? static_cast<unsigned>(std::stoul(argv[1])) : 0;
    return counts.wrong == 0 && counts.injected >= wanted ? 0 : 1;
}
