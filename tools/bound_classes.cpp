// Writes the page of all classes that a host language sees, from the table that adapters read.
//
//     bound_classes > docs/classes.md
//     bound_classes --check docs/classes.md      says whether the page is up to date

#include "vellox/host/binding/BoundClass.h"

#include <fstream>
#include <iostream>
#include <sstream>

using namespace vellox::ppt::hostbind;

namespace {

constexpr char kHead[] = R"(# The classes of vellox.ppt

*This page is written by `bound_classes` from the table that adapters for host languages read.*

For those who tie a further host language to vellox: each class with its superclass, how its objects are made, its
properties and its methods. Users of Python ask `help(vellox.ppt.Slide)` instead, which speaks of Python's own kinds of
values, and read [python.md](python.md); users of Octave ask `help vellox.ppt.Slide`, and read [octave.md](octave.md).

A class has what its superclasses have. Classes stand in the package `vellox.ppt`; the words are those that arguments
are matched by:

| word | what it takes |
|---|---|
| char | a text |
| logical scalar | one truth value |
| uint8 vector | bytes, such as those of an image |
| uint32 scalar | one whole number that isn't negative |
| double scalar | one number |
| any | what none of the others takes |
| fields | values under names, such as a dictionary |
| a class | one object of it or of a subclass |
| Node vector | nodes, each of its own class |

*Or empty* means that the value may be the empty array: reading gives it where nothing is set, and setting it unsets.
Subscripts count from 1. Parameters in brackets can be left out; those with `=` are given by their names.
)";

std::string removePackage(std::string text) {
    const std::string package = std::string(kPackage) + ".";
    for (std::size_t at; (at = text.find(package)) != std::string::npos;)
        text.erase(at, package.size());
    return text;
}

std::string formatSignature(const Signature& signature) {
    std::string text;
    for (const Parameter& parameter : signature)
        text += (text.empty() ? "" : ", ") + std::string(parameter.isOptional ? "[" : "") +
                removePackage(parameter.word.getText()) + " *" + parameter.name + "*" +
                (parameter.isKeyword ? "=" : "") + (parameter.isOptional ? "]" : "");
    return "(" + text + ")";
}

void writeClass(const BoundClass& bound, std::ostream& page) {
    page << "\n## " << bound.name << "\n\n" << bound.doc;
    for (std::size_t i = 0; i < bound.superclasses.size(); ++i)
        page << (i == 0 ? " Derives from " : " and ") << removePackage(bound.superclasses[i])
             << (findBoundClass(bound.superclasses[i]) ? "" : " of the host");
    page << "." << (bound.isAbstract ? " The library alone makes objects of it." : "") << "\n";
    if (!bound.constructors.empty())
        page << "\n";
    for (const BoundConstructor& constructor : bound.constructors)
        page << "- `" << bound.name << "`" << formatSignature(constructor.signature)
             << (constructor.isHidden ? " for the library alone" : "") << "\n";
    if (!bound.properties.empty())
        page << "\n| property | holds | |\n|---|---|---|\n";
    for (const BoundProperty& property : bound.properties)
        page << "| `" << property.name << "` | " << removePackage(property.getTypeText())
             << (property.set ? "" : ", only read") << " | " << property.doc << " |\n";
    if (!bound.methods.empty())
        page << "\n| method | gives | |\n|---|---|---|\n";
    for (const BoundMethod& method : bound.methods)
        page << "| `" << method.name << "`" << formatSignature(method.signature) << " | "
             << removePackage(method.result.getText()) << " | " << method.doc
             << (method.isStatic ? " Of the class, not of an object." : "") << " |\n";
    for (const BoundEvent& event : bound.events)
        page << "\nThe event `" << event.name << "`: " << event.description << ". Listeners get a "
             << removePackage(event.payload) << ".\n";
}

} // namespace

int main(int argc, char** argv) {
    std::ostringstream page;
    page << kHead;
    for (const BoundClass& bound : getBoundClasses())
        writeClass(bound, page);
    if (argc == 1) {
        std::cout << page.str();
        return 0;
    }
    if (argc != 3 || std::string(argv[1]) != "--check") {
        std::cerr << "bound_classes [--check docs/classes.md]\n";
        return 2;
    }
    std::ifstream file(argv[2]);
    std::ostringstream present;
    present << file.rdbuf();
    if (present.str() == page.str())
        return 0;
    std::cerr << argv[2] << " isn't what the class table says\n";
    return 1;
}
