// Writes the stubs of vellox.ppt for type checkers, from the table that the module itself is made from.
//
//     vellox_python_stubs ppt.pyi

#include "bindings/python/PyTerms.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iostream>
#include <set>

using namespace vellox::ppt::hostbind;
using namespace vellox::ppt::python;

namespace {

constexpr char kHead[] = R"(# Written from the class table of the library.

import os
from collections.abc import Callable
from types import TracebackType
from typing import Any, Literal, Protocol, overload

class _Array(Protocol):
    def __array__(self) -> Any: ...

class _Frame(Protocol):
    @property
    def columns(self) -> Any: ...
    def to_numpy(self) -> Any: ...

_Text = str | os.PathLike[str]
_Items = list[Any] | tuple[Any, ...] | float | memoryview | _Array | _Frame | None
_Content = _Items | Object

__version__: str

class Error(Exception):
    identifier: str
    arguments: tuple[str, ...]

class BadValueError(Error, ValueError): ...
class BadTypeError(Error, TypeError): ...
class BadSubscriptError(Error, IndexError): ...
class UnknownNameError(Error, LookupError): ...
class FileError(Error, OSError): ...
class PathNotFoundError(Error, FileNotFoundError): ...
class StateError(Error, RuntimeError): ...
class PresentationWarning(UserWarning): ...
)";

constexpr char kPresentationMethods[] = R"(    def __enter__(self) -> Presentation: ...
    def __exit__(
        self, type: type[BaseException] | None = ..., value: BaseException | None = ...,
        traceback: TracebackType | None = ..., /
    ) -> Literal[False]: ...
)";

constexpr char kListenerMethods[] =
    R"(    def addListener(self, listener: Callable[[MessageEventData], object], /) -> None: ...
    def removeListener(self, listener: Callable[[MessageEventData], object], /) -> None: ...
)";

void replaceAll(std::string& text, const std::string& word, const std::string& other) {
    for (std::size_t at = 0; (at = text.find(word, at)) != std::string::npos; at += other.size())
        text.replace(at, word.size(), other);
}

/// What arguments may be, where Python knows more kinds than the table, or fewer.
std::string refineParameters(std::string parameters) {
    constexpr const char* kWords[][2] = {
        {": str", ": _Text"},
        {"name: Any", "name: _Text"},
        {"master: Any", "master: _Text"},
        // What a shape of a name is given may be an object, what a text box is given itself is a list.
        {"_Text, content: Any", "_Text, content: _Content"},
        {": Any", ": _Items"},
    };
    for (const auto& [word, refined] : kWords)
        replaceAll(parameters, word, refined);
    return parameters;
}

/// Nodes are of their own classes, which only the script can know.
std::string refineResult(std::string result) {
    replaceAll(result, "list[Node]", "list[Any]");
    return result;
}

std::string formatFunction(const std::string& name, const Signature& signature, const char* parameters,
                           const std::string& result, bool isStatic) {
    const std::string list = refineParameters(formatParameters(signature, parameters));
    const std::string self = isStatic ? "" : "self";
    const std::string separator = self.empty() || list.empty() ? "" : ", ";
    return "    def " + name + "(" + self + separator + list + (list.empty() ? "" : ", /") + ") -> " +
           refineResult(result) + ": ...\n";
}

void writeConstructors(const BoundClass& bound, std::ostream& stubs) {
    if (bound.isAbstract || bound.constructors.empty() || bound.constructors.front().isHidden)
        return;
    for (const BoundConstructor& constructor : bound.constructors)
        stubs << (bound.constructors.size() > 1 ? "    @overload\n" : "")
              << formatFunction("__init__", constructor.signature, constructor.parameters, "None", false);
}

void writeProperty(const BoundProperty& property, std::ostream& stubs) {
    const std::string type = refineResult(getTypeName(property));
    stubs << "    @property\n    def " << property.name << "(self) -> " << type << ": ...\n";
    if (property.set)
        stubs << "    @" << property.name << ".setter\n    def " << property.name << "(self, value: " << type
              << ") -> None: ...\n";
}

bool takesAll(const SignatureWord& wide, const SignatureWord& narrow) {
    if (wide.getKind() == SignatureWord::Kind::Any || wide.getText() == narrow.getText())
        return true;
    const BoundClass* bound = findBoundClass(narrow.getClassName());
    for (; bound; bound = bound->getSuperclass())
        if (bound->getFullName() == wide.getClassName())
            return true;
    return false;
}

bool takesAll(const Signature& wide, const Signature& narrow) {
    return std::equal(wide.begin(), wide.end(), narrow.begin(), narrow.end(),
                      [](const SignatureWord& w, const SignatureWord& n) { return takesAll(w, n); });
}

/// Type checkers take the first overload that fits: one that another would hide comes ahead of that.
std::vector<const BoundMethod*> orderForCheckers(const std::vector<const BoundMethod*>& overloads) {
    std::vector<const BoundMethod*> ordered;
    for (const BoundMethod* overload : overloads) {
        const auto hides = [&](const BoundMethod* o) { return takesAll(o->signature, overload->signature); };
        ordered.insert(std::find_if(ordered.begin(), ordered.end(), hides), overload);
    }
    return ordered;
}

void writeMethods(const BoundClass& bound, std::ostream& stubs) {
    std::set<std::string> written;
    for (const BoundMethod& method : bound.methods) {
        if (!written.insert(method.name).second)
            continue;
        const auto overloads = orderForCheckers(bound.getOverloads(method.name));
        for (const BoundMethod* overload : overloads)
            stubs << (overload->isStatic ? "    @staticmethod\n" : "")
                  << (overloads.size() > 1 ? "    @overload\n" : "")
                  << formatFunction(overload->name, overload->signature, overload->parameters,
                                    getTypeName(overload->result), overload->isStatic);
    }
}

void writeClass(const BoundClass& bound, std::ostream& stubs) {
    const BoundClass* superclass = bound.getSuperclass();
    stubs << "\nclass " << bound.name << (superclass ? "(" + std::string(superclass->name) + ")" : "")
          << ":\n";
    stubs << "    \"\"\"" << bound.doc << "\"\"\"\n";
    writeConstructors(bound, stubs);
    for (const BoundProperty& property : bound.properties)
        writeProperty(property, stubs);
    writeMethods(bound, stubs);
    if (std::strcmp(bound.name, "Presentation") == 0)
        stubs << kPresentationMethods;
    if (!bound.events.empty())
        stubs << kListenerMethods;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "vellox_python_stubs <ppt.pyi>\n";
        return 2;
    }
    std::ofstream stubs(argv[1]);
    stubs << kHead;
    for (const BoundClass& bound : getBoundClasses())
        writeClass(bound, stubs);
    stubs.close();
    return stubs ? 0 : 1;
}
