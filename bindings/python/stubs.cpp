// Writes the stubs of vellox.ppt for type checkers, from the table that the module itself is made from.
//
//     vellox_python_stubs _conveniences.py ppt.pyi
//
// _conveniences.py is the layer in Python over the classes of the table, and typed there.

#include "bindings/python/PyTerms.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iostream>
#include <set>
#include <utility>

using namespace vellox::ppt::hostbind;
using namespace vellox::ppt::python;

namespace {

constexpr char kHead[] = R"(# Written from the class table of the library.

import datetime
import os
from _typeshed import SupportsRead
from collections.abc import Callable, Mapping, Sequence
from typing import Any, Generic, Never, Protocol, SupportsFloat, SupportsIndex, TypeVar, overload

from . import _conveniences
from ._units import cm as cm, emu as emu, inch as inch, mm as mm, pt as pt

class _Array(Protocol):
    def __array__(self) -> Any: ...

class _Frame(Protocol):
    @property
    def columns(self) -> Any: ...
    def to_numpy(self) -> Any: ...

class _Figure(Protocol):
    @property
    def savefig(self) -> Callable[..., Any]: ...

class _Saved(Protocol):
    @property
    def save(self) -> Callable[..., Any]: ...

class _Shown(Protocol):
    def _repr_png_(self) -> Any: ...

_Image = bytes | bytearray | memoryview | SupportsRead[bytes] | _Figure | _Saved | _Shown
_Text = str | os.PathLike[str] | datetime.date | datetime.time | datetime.timedelta
_Number = SupportsFloat | SupportsIndex
_Items = list[Any] | tuple[Any, ...] | dict[Any, Any] | float | memoryview | _Array | _Frame | None
_Content = _Items | Object

_Held = TypeVar("_Held", covariant=True)
_Given = TypeVar("_Given", contravariant=True)

class _Property(Generic[_Held, _Given]):
    @overload
    def __get__(self, instance: None, owner: type[Any], /) -> Any: ...
    @overload
    def __get__(self, instance: object, owner: type[Any], /) -> _Held: ...
    def __set__(self, instance: Any, value: _Given, /) -> None: ...

class _Optional(_Property[_Held | None, _Given | None]):
    def __delete__(self, instance: Any, /) -> None: ...

__version__: str

class Error(Exception):
    identifier: str
    arguments: tuple[str, ...]

class BadValueError(Error, ValueError): ...
class BadTypeError(Error, TypeError): ...
class BadSubscriptError(Error, IndexError): ...
class UnknownNameError(Error, LookupError): ...
class FileError(Error, OSError): ...
class PathNotFoundError(FileError, FileNotFoundError): ...
class PermissionDeniedError(FileError, PermissionError): ...
class IsFolderError(FileError, IsADirectoryError): ...
class NoFolderError(FileError, NotADirectoryError): ...
class StateError(Error, RuntimeError): ...
class PresentationWarning(UserWarning): ...
)";

/// What stands in a node of a class.
constexpr const char* kChildren[][2] = {
    {"Node", "Sequence[Node]"},         {"Presentation", "list[Slide]"},   {"Slide", "list[Shape]"},
    {"BaseTextBox", "list[Paragraph]"}, {"Paragraph", "list[Text]"},       {"Table", "list[TableRow]"},
    {"TableRow", "list[TableEntry]"},   {"TableEntry", "list[Paragraph]"},
};

/// Results of which the table says less than a type checker can use.
constexpr const char* kResults[][2] = {
    {"Presentation.find", "list[Slide | Shape]"},
    {"Presentation.addPages", "list[Slide]"},
    {"Slide.find", "list[Shape]"},
    {"Slide.getChartNames", "list[str]"},
    {"Presentation.getMasterNames", "list[str]"},
    {"Presentation.getLayoutNames", "list[str]"},
    {"Presentation.getTableStyleNames", "list[tuple[str, str]]"},
    {"Presentation.getFindings", "list[tuple[str, str, str, str, str, str]]"},
    {"Template.healTemplate", "list[tuple[str, str, str, str, str, str]]"},
    {"Template.checkPackage", "list[tuple[str, str, str, str, str, str]]"},
};

constexpr char kListenerMethods[] =
    R"(    def addListener(self, listener: Callable[[MessageEventData], object], /) -> None: ...
    def removeListener(self, listener: Callable[[MessageEventData], object], /) -> None: ...
)";

/// The second entry of the row that begins with a key; empty if there is none.
template <std::size_t kCount>
std::string findRow(const char* const (&rows)[kCount][2], const std::string& key) {
    for (const auto& row : rows)
        if (key == row[0])
            return row[1];
    return {};
}

std::string getResult(const BoundClass& bound, const BoundMethod& method) {
    const std::string special = findRow(kResults, std::string(bound.name) + "." + method.name);
    return special.empty() ? getTypeName(method.result) : special;
}

/// What a property can be given: more than it holds.
std::string getGivenType(const SignatureWord& word) {
    const std::string name = getTypeName(word);
    const std::string list = "list[";
    if (name.compare(0, list.size(), list) == 0)
        return "Sequence[" + name.substr(list.size()) + " | None";
    switch (word.getKind()) {
    case SignatureWord::Kind::Char:
        return "_Text";
    case SignatureWord::Kind::Logical:
        return "_Number | _Array";
    case SignatureWord::Kind::Uint32:
        return "_Number";
    case SignatureWord::Kind::Compound:
        return "_Text | _Number";
    default:
        return name;
    }
}

/// What an argument may be, where Python knows more kinds than the table, or fewer.
std::string getArgumentType(const Parameter& parameter, bool isFirst) {
    switch (parameter.word.getKind()) {
    case SignatureWord::Kind::Char:
        return "_Text";
    case SignatureWord::Kind::Uint32:
        return "SupportsIndex";
    case SignatureWord::Kind::Double:
        return "_Number";
    case SignatureWord::Kind::Logical:
        return "bool";
    case SignatureWord::Kind::Bytes:
        return "_Image";
    case SignatureWord::Kind::Any:
        break;
    default:
        return getTypeName(parameter.word);
    }
    const std::string name = parameter.name;
    if (name == "name" || name == "master")
        return "_Text";
    // What a shape of a name is given may be an object, what a text box is given itself is a list.
    return isFirst ? "_Items" : "_Content";
}

std::string formatFunction(const std::string& name, const Signature& signature, const std::string& result,
                           bool isStatic) {
    std::string list = isStatic ? "" : "self";
    bool hasKeywords = false;
    for (const Parameter& parameter : signature) {
        if (parameter.isKeyword && !std::exchange(hasKeywords, true))
            list += ", /, *";
        list += (list.empty() ? "" : ", ") + std::string(parameter.name) + ": " +
                getArgumentType(parameter, &parameter == &signature.front()) +
                (parameter.isOptional ? " = ..." : "");
    }
    return "    def " + name + "(" + list + (signature.empty() || hasKeywords ? "" : ", /") + ") -> " +
           result + ": ...\n";
}

/// Of abstract classes the library alone makes objects; nothing can be passed to what wants a Never.
void writeConstructors(const BoundClass& bound, std::ostream& stubs) {
    const bool isForUsers =
        !bound.isAbstract && !bound.constructors.empty() && !bound.constructors.front().isHidden;
    if (!isForUsers)
        stubs << "    def __init__(self, nothing: Never, /) -> None: ...\n";
    for (const BoundConstructor& constructor : bound.constructors)
        if (isForUsers)
            stubs << (bound.constructors.size() > 1 ? "    @overload\n" : "")
                  << formatFunction("__init__", constructor.signature, "None", false);
}

void writeReadOnly(const char* name, const std::string& type, std::ostream& stubs) {
    stubs << "    @property\n    def " << name << "(self) -> " << type << ": ...\n";
}

void writeProperty(const BoundProperty& property, std::ostream& stubs) {
    if (!property.set && std::strcmp(property.name, "Children") != 0)
        writeReadOnly(property.name, getTypeName(property), stubs);
    if (property.set)
        stubs << "    " << property.name << (property.mayBeEmpty ? ": _Optional[" : ": _Property[")
              << getTypeName(property.type) << ", " << getGivenType(property.type) << "]\n";
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
                      [](const Parameter& w, const Parameter& n) { return takesAll(w.word, n.word); });
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
                  << formatFunction(overload->name, overload->signature, getResult(bound, *overload),
                                    overload->isStatic);
    }
}

/// The classes that a source of Python defines.
std::set<std::string> readClassNames(std::istream& source) {
    const std::string start = "class ";
    std::set<std::string> names;
    for (std::string line; std::getline(source, line);)
        if (line.compare(0, start.size(), start) == 0)
            names.insert(line.substr(start.size(), line.find_first_of("(:") - start.size()));
    return names;
}

/// @param conveniences the classes to which the layer in Python adds something
void writeClass(const BoundClass& bound, const std::set<std::string>& conveniences, std::ostream& stubs) {
    std::string bases = bound.getSuperclass() ? bound.getSuperclass()->name : "";
    if (conveniences.count(bound.name) > 0)
        bases += (bases.empty() ? "" : ", ") + std::string("_conveniences.") + bound.name;
    stubs << "\nclass " << bound.name << (bases.empty() ? "" : "(" + bases + ")") << ":\n";
    stubs << "    \"\"\"" << bound.doc << "\"\"\"\n";
    writeConstructors(bound, stubs);
    for (const BoundProperty& property : bound.properties)
        writeProperty(property, stubs);
    const std::string children = findRow(kChildren, bound.name);
    if (!children.empty())
        writeReadOnly("Children", children, stubs);
    writeMethods(bound, stubs);
    if (!bound.events.empty())
        stubs << kListenerMethods;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "vellox_python_stubs <_conveniences.py> <ppt.pyi>\n";
        return 2;
    }
    std::ifstream layer(argv[1]);
    const std::set<std::string> conveniences = readClassNames(layer);
    std::ofstream stubs(argv[2]);
    stubs << kHead;
    for (const BoundClass& bound : getBoundClasses())
        writeClass(bound, conveniences, stubs);
    stubs.close();
    return stubs && layer.eof() ? 0 : 1;
}
