/// @file
/// The types of a package's parts: the content-type stream (ECMA-376 Part 2, 10.1.2).

#ifndef VELLOX_OPC_CONTENTTYPES_H
#define VELLOX_OPC_CONTENTTYPES_H

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "vellox/opc/PartName.h"
#include "vellox/opc/Streams.h"
#include "vellox/opc/XercesHelper.h"

namespace opc {

/// The media type of a part, as text. A value.
class ContentType {
public:
    explicit ContentType(std::wstring text) : text_(std::move(text)) {}
    const std::wstring& toString() const { return text_; }
    /// True for XML and what is built on it, images aside.
    bool isXml() const;

private:
    std::wstring text_;
};

/// A default for each extension, and what overrides it for single parts.
class ContentTypes {
public:
    ContentTypes() = default;
    ContentTypes(const ContentTypes&) = delete;
    ContentTypes& operator=(const ContentTypes&) = delete;

    /// @throws opc::Exception if the stream isn't the list that it should be
    void read(xercesc::DOMLSParser& namespaceAwareParser, InputStream& stream);
    /// Writes the list with its namespace as the default one, which some readers insist on, and closes the stream.
    void write(OutputStream& stream) const;

    /// Empty for a part that the list doesn't cover.
    ContentType find(const PartName& name) const;
    /// Enters a new part: XML as an override, anything else as the default of its extension where that
    /// isn't taken by another type. An empty type leaves the part with that of its extension; where the list
    /// has none, it becomes that of unknown bytes.
    void add(const PartName& name, const ContentType& type);
    /// Gives a part that is listed another type.
    void change(const PartName& name, const ContentType& type);

    /// Forgets what is listed for single parts.
    void remove(const std::set<PartName>& names);

    /// True if the stream must be written anew: something was added, or it was in a form that readers
    /// stumble over.
    bool needsWriting() const { return isChanged_ || hasPrefix_; }
    /// Whether a type was added since the list was read.
    bool isChanged() const { return isChanged_; }

private:
    /// @{ What the list says, with a type that is one of types_.
    struct Default {
        std::wstring extension;
        const std::wstring* type;
    };
    struct Override {
        PartName name;
        const std::wstring* type;
    };
    /// @}

    void setDefault(const std::wstring& extension, const std::wstring& type);
    void setOverride(const PartName& name, const std::wstring& type);
    const std::wstring* hold(const std::wstring& type) { return &*types_.insert(type).first; }

    std::unordered_set<std::wstring> types_; // they are few and long, the parts many
    // Rows in the order of the stream, and where to find them.
    std::vector<Default> defaults_;
    std::vector<Override> overrides_;
    std::map<std::wstring, std::size_t> defaultByExtension_;
    std::unordered_map<std::string_view, std::size_t> overrideByName_; // by the keys of their names
    bool isChanged_ = false;
    bool hasPrefix_ = false;
};

} // namespace opc

#endif
