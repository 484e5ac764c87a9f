// Writes the class files of Octave, from the table that the oct-file reads too.
//
//     vellox_octave_classes <folder of hand-written methods> <folder for the files>
//
// A file Slide.m in the first folder holds further methods of the class Slide.

#include "bindings/octave/OctTerms.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>

using namespace vellox::ppt::hostbind;
using namespace vellox::ppt::oct;

namespace {

constexpr char kHead[] = "## Written from the class table of the library.\n\n";

std::string indent(const std::string& text, const std::string& start) {
    std::istringstream lines(text);
    std::string indented;
    for (std::string line; std::getline(lines, line);)
        indented.append(start).append(line.empty() ? "" : " ").append(line).append("\n");
    return indented;
}

class ClassFile {
public:
    ClassFile(const BoundClass& bound, std::size_t number, std::ostream& file)
        : bound_(bound),
          number_(std::to_string(number)),
          file_(file) {}

    void write(const std::string& furtherMethods) {
        file_ << kHead << "classdef " << (bound_.isAbstract ? "(Abstract) " : "") << bound_.name << " < "
              << (bound_.getSuperclass() ? bound_.getSuperclass()->getFullName() : "handle") << "\n"
              << indent(describeClass(bound_), "  ##") << "\n";
        writeProperties();
        file_ << "  methods\n";
        writeConstructor();
        for (std::size_t i = 0; i < bound_.properties.size(); ++i)
            writeAccess(bound_.properties[i], i);
        writeMethods(false);
        if (!bound_.events.empty())
            writeListening();
        file_ << furtherMethods << "  endmethods\n";
        if (std::any_of(bound_.methods.begin(), bound_.methods.end(),
                        [](const auto& m) { return m.isStatic; })) {
            file_ << "\n  methods (Static)\n";
            writeMethods(true);
            file_ << "  endmethods\n";
        }
        file_ << "endclassdef\n";
    }

private:
    /// Octave gives back what a property holds after an assignment inside of it; only what holds no objects can be
    /// closed to that.
    static bool isClosed(const BoundProperty& property) {
        return !property.set && property.type.getClassName().empty();
    }

    void writeProperties() {
        if (!bound_.getSuperclass())
            file_ << "  properties (Hidden, Access = private)\n    vellox_slot_\n  endproperties\n\n";
        for (const bool closed : {false, true}) {
            const auto belongs = [&](const BoundProperty& p) { return isClosed(p) == closed; };
            if (std::none_of(bound_.properties.begin(), bound_.properties.end(), belongs))
                continue;
            file_ << "  properties" << (closed ? " (SetAccess = private)" : "") << "\n";
            for (const BoundProperty& property : bound_.properties)
                if (belongs(property))
                    file_ << indent(property.doc, "    ##") << "    " << property.name << "\n";
            file_ << "  endproperties\n\n";
        }
    }

    void writeConstructor() {
        if (bound_.isAbstract || !bound_.getSuperclass())
            return;
        const BoundClass& superclass = *bound_.getSuperclass();
        file_ << "    function self = " << bound_.name << " (varargin)\n"
              << indent(formatConstructors(bound_), "      ##");
        if (!superclass.isAbstract && superclass.getSuperclass())
            file_ << "      self@" << superclass.getFullName() << " (\"\\001vellox: made by a subclass\");\n";
        file_ << "      __vellox__ (\"make\", " << number_ << ", self, varargin{:});\n    endfunction\n\n";
    }

    void writeAccess(const BoundProperty& property, std::size_t row) {
        const std::string place = number_ + ", " + std::to_string(row) + ", self";
        file_ << "    function value = get." << property.name << " (self)\n"
              << "      value = __vellox__ (\"get\", " << place << ");\n    endfunction\n\n";
        if (!isClosed(property))
            file_ << "    function set." << property.name << " (self, value)\n"
                  << "      __vellox__ (\"set\", " << place << ", value);\n    endfunction\n\n";
    }

    void writeMethods(bool areStatic) {
        for (std::size_t i = 0; i < bound_.methods.size(); ++i) {
            const BoundMethod& method = bound_.methods[i];
            const auto isSame = [&](const BoundMethod& m) { return std::strcmp(m.name, method.name) == 0; };
            const bool isFirst =
                std::find_if(bound_.methods.begin(), bound_.methods.end(), isSame) - bound_.methods.begin() ==
                static_cast<std::ptrdiff_t>(i);
            if (isFirst && method.isStatic == areStatic)
                writeMethod(method, i);
        }
    }

    void writeMethod(const BoundMethod& method, std::size_t row) {
        const std::vector<const BoundMethod*> overloads = bound_.getOverloads(method.name);
        const auto isVoid = [](const BoundMethod* m) {
            return m->result.getKind() == SignatureWord::Kind::Void;
        };
        const auto nVoid = std::count_if(overloads.begin(), overloads.end(), isVoid);
        const bool isMixed = nVoid > 0 && nVoid < static_cast<std::ptrdiff_t>(overloads.size());
        const char* result = isMixed ? "varargout = " : nVoid > 0 ? "" : "result = ";
        const char* operation = method.isStatic ? "static" : isMixed ? "cells" : "call";
        file_ << "    function " << result << method.name << (method.isStatic ? " (" : " (self, ")
              << "varargin)\n"
              << indent(describeOverloads(overloads), "      ##") << "      " << result << "__vellox__ (\""
              << operation << "\", " << number_ << ", " << row << (method.isStatic ? "" : ", self")
              << ", varargin{:});\n    endfunction\n\n";
    }

    void writeListening() {
        const BoundEvent& event = bound_.events.front();
        file_ << "    function addListener (self, listener)\n"
              << "      ## addListener (listener: function handle)\n"
              << "      ##     Lets a function hear of the event \"" << event.name << "\". It gets a "
              << event.payload << ".\n      __vellox__ (\"listen\", self, listener);\n    endfunction\n\n"
              << "    function removeListener (self, listener)\n"
              << "      ## removeListener (listener: function handle)\n"
              << "      ##     Takes a listener off again. Does nothing for one that isn't listening.\n"
              << "      __vellox__ (\"unlisten\", self, listener);\n    endfunction\n\n";
    }

    const BoundClass& bound_;
    std::string number_;
    std::ostream& file_;
};

/// The hand-written methods of a class; empty if there are none.
std::string readMethods(const std::string& folder, const BoundClass& bound) {
    std::ifstream file(folder + "/" + bound.name + ".m");
    std::ostringstream text;
    for (std::string line; std::getline(file, line);)
        text << (line.empty() ? "" : "    ") << line << "\n";
    return text.str();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "vellox_octave_classes <methods> <folder>\n";
        return 2;
    }
    const std::vector<BoundClass>& classes = getBoundClasses();
    for (std::size_t i = 0; i < classes.size(); ++i) {
        std::ofstream file(argv[2] + std::string("/") + classes[i].name + ".m");
        ClassFile(classes[i], i, file).write(readMethods(argv[1], classes[i]));
        file.close();
        if (!file) {
            std::cerr << "can't write " << classes[i].name << ".m\n";
            return 1;
        }
    }
    return 0;
}
