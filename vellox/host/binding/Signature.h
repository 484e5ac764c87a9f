/// @file
/// What the arguments of a bound method must be, and which of its overloads a call means. Written once for all
/// hosts.

#ifndef VELLOX_HOST_BINDING_SIGNATURE_H
#define VELLOX_HOST_BINDING_SIGNATURE_H

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/host/values/hvArray.h"

namespace vellox::ppt::hostbind {

/// The package that the bound classes stand in.
inline constexpr char kPackage[] = "vellox.ppt";

/// The arguments of a call, in the order of the parameters.
struct Arguments {
    const hvArray* const* values; ///< null for one that is left out
    std::size_t count;

    const hvArray& operator[](std::size_t i) const { return *values[i]; }
    /// Null for one that is left out, in the middle or at the end.
    const hvArray* find(std::size_t i) const { return i < count ? values[i] : nullptr; }
};

/// An argument that is given by the name of its parameter.
struct NamedArgument {
    std::string name;
    const hvArray* value;
};

/// What a value must be, in the words that signatures are declared with:
///
///     "char"            a text                        "logical scalar"   one truth value
///     "uint32 scalar"   one unsigned 32-bit number    "double scalar"    one number
///     "uint8 vector"    bytes, such as an image's
///     "any"             any value                     "void"             no result
///     "fields"          values under names, see hvFields
///     a class's name    one object of it or a subclass
///
/// and, for what a property holds, "list of" a class, "char or double scalar", and a class's name and "vector".
class VELLOX_API SignatureWord {
public:
    enum class Kind { Char, Logical, Uint32, Double, Bytes, Any, Fields, Void, Compound, Object };

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
    const char* name; ///< for readers, and for who gives it by name
    SignatureWord word;
    bool isOptional = false; ///< a call may leave it out
    bool isKeyword = false;  ///< it is given by its name, and by nothing else
};

/// Parameters that are given by name come last.
using Signature = std::vector<Parameter>;

/// The arguments of a call in the order of a signature, null for those that are left out.
/// @return nothing if there are too many or too few of them, or names that no parameter has
VELLOX_API std::optional<std::vector<const hvArray*>> orderArguments(const Signature& signature,
                                                                     const Arguments& arguments,
                                                                     const std::vector<NamedArgument>& named);

/// The first signature that fits the arguments exactly; else the first that fits once numbers are converted;
/// else the first with "any" in it that fits. So "any" only serves what nothing else takes.
/// @return the position in the list, or -1 if none fits
VELLOX_API int findOverload(const std::vector<const Signature*>& signatures, const Arguments& arguments,
                            const std::vector<NamedArgument>& named = {});

} // namespace vellox::ppt::hostbind

#endif
