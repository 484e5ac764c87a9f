/// @file
/// What the arguments of a bound method must be, and which of its overloads a call means. Written once for all
/// hosts.

#ifndef VELLOX_HOST_BINDING_SIGNATURE_H
#define VELLOX_HOST_BINDING_SIGNATURE_H

#include <initializer_list>
#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/host/values/hvArray.h"

namespace vellox::ppt::hostbind {

/// The package that the bound classes stand in.
inline constexpr char kPackage[] = "vellox.ppt";

/// The arguments of a call. None of them is null.
struct Arguments {
    const hvArray* const* values;
    std::size_t count;

    const hvArray& operator[](std::size_t i) const { return *values[i]; }
};

/// What a value must be, in the words that signatures are declared with:
///
///     "char"            a text                        "logical scalar"   one truth value
///     "uint32 scalar"   one unsigned 32-bit number    "double scalar"    one number
///     "uint8 vector"    bytes, such as an image's
///     "any"             any value                     "void"             no result
///     a class's name    one object of it or a subclass
///
/// and, for what a property holds, "list of" a class, "char or double scalar", and a class's name and "vector".
class VELLOX_API SignatureWord {
public:
    enum class Kind { Char, Logical, Uint32, Double, Bytes, Any, Void, Compound, Object };

    /// @param word as above, the names of classes without their package
    explicit SignatureWord(const std::string& word);

    Kind getKind() const { return kind_; }
    /// The word with the names of classes in full.
    const std::string& getText() const { return text_; }
    /// The class that an object, or each object of a list or a vector, must be of; empty for other words.
    const std::string& getClassName() const { return className_; }

    /// True if a value is exactly that. Nothing is exactly "any".
    bool matches(const hvArray& value) const;
    /// True if a value becomes that by converting a number: any number is a double, and a whole one that
    /// isn't negative a uint32.
    bool matchesConverted(const hvArray& value) const;

private:
    Kind kind_;
    std::string text_;
    std::string className_;
};

/// One parameter of a bound function.
struct Parameter {
    const char* name; ///< for readers
    SignatureWord word;
};

using Signature = std::vector<Parameter>;

/// The first signature that fits the arguments exactly; else the first that fits once numbers are converted;
/// else the first with "any" in it that fits. So "any" only serves what nothing else takes.
/// @return the position in the list, or -1 if none fits
VELLOX_API int findOverload(const std::vector<const Signature*>& signatures, const Arguments& arguments);

} // namespace vellox::ppt::hostbind

#endif
