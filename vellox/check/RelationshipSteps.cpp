#include "vellox/check/PackageSteps.h"
#include "vellox/check/PartKinds.h"
#include "vellox/foundation/Conversions.h"
#include "vellox/opc/Uri.h"

#include <boost/algorithm/string/predicate.hpp>

#include <cwctype>
#include <set>

namespace vellox::check {

namespace {

std::wstring getFolder(const std::wstring& name) {
    return name.substr(0, name.rfind(L'/') + 1);
}

bool isHexDigit(wchar_t c) {
    return c < 0x80 && std::iswxdigit(static_cast<std::wint_t>(c));
}

/// Whether each "%" begins an encoded byte, and one fragment is all there is.
bool isReference(const std::wstring& target) {
    for (std::size_t i = target.find(L'%'); i != target.npos; i = target.find(L'%', i + 1))
        if (i + 2 >= target.size() || !isHexDigit(target[i + 1]) || !isHexDigit(target[i + 2]))
            return false;
    return target.find(L'#') == target.rfind(L'#');
}

/// Backslashes are let pass, since office suites write them in paths of files.
bool isEncoded(const std::wstring& target) {
    for (const wchar_t c : target)
        if (c <= L' ' || std::wstring(L"\"<>^`{|}").find(c) != std::wstring::npos)
            return false;
    return true;
}

class RelationshipCheck {
public:
    RelationshipCheck(const PackageIndex& index, Report& report) : index_(index), report_(report) {}

    void run() {
        for (const auto& source : index_.relationships) {
            source_ = source.first;
            place_ = {source_.empty() ? L"/_rels/.rels" : index_.getName(source_), 0};
            for (const RelationshipRow& row : source.second.rows)
                row.isExternal ? checkExternal(row) : checkInternal(row);
        }
    }

private:
    static std::wstring label(const RelationshipRow& row) {
        return L"the relationship " + quote(row.id) + L" (" + row.kind + L")";
    }

    void checkExternal(const RelationshipRow& row) {
        if (row.target.empty())
            report_.add(Code::emptyTarget, place_, label(row) + L" leads out of the package, to nothing");
        else if (!isReference(row.target))
            report_.add(Code::invalidTarget, place_,
                        label(row) + L" has a target that is no URI: " + quote(row.target));
        else if (!isEncoded(row.target))
            report_.add(Code::unencodedTarget, place_,
                        label(row) + L" has a target with a character that must be encoded: " +
                            quote(row.target));
    }

    void checkInternal(const RelationshipRow& row) {
        const PartRecord* part = index_.find(row.part);
        if (!part)
            return report_.add(Code::danglingRelationship, place_,
                               label(row) + L" leads to " + quote(row.target) + L", which doesn't exist");
        const std::wstring name = opc::resolveTarget(getFolder(index_.getName(source_)), row.target);
        const bool isComparable = row.target.find(L'%') == std::wstring::npos && row.target[0] != L'#';
        if (isComparable && !source_.empty() && name != part->name)
            report_.add(Code::targetSpelling, place_,
                        label(row) + L" spells its target " + quote(row.target) +
                            L" otherwise than the part " + part->name);
        if (told_.emplace(row.part, row.kind).second)
            checkType(row, *part);
    }

    void checkType(const RelationshipRow& row, const PartRecord& part) {
        const PartKind* kind = findKindByRelationship(row.kind);
        std::wstring wanted;
        if (row.kind == L"image" && !boost::algorithm::istarts_with(part.type, L"image/"))
            wanted = L"that of an image";
        else if (kind && !isSameType(part.type, kind->contentType))
            wanted = kind->contentType;
        if (!wanted.empty() && !part.type.empty())
            report_.add(Code::wrongContentType, {part.name, part.slide},
                        L"its content type is " + quote(part.type) + L", and " + label(row) + L" of " +
                            index_.getName(source_) + L" needs " + wanted);
    }

    const PackageIndex& index_;
    Report& report_;
    PartKey source_;
    Place place_;
    std::set<std::pair<PartKey, std::wstring>> told_;
};

} // namespace

void checkRelationships(const PackageIndex& index, Report& report) {
    RelationshipCheck(index, report).run();
}

void findMainPart(PackageIndex& index, const std::wstring& path, Report& report) {
    const std::vector<PartKey> targets = index.getTargets({}, L"officeDocument");
    if (targets.size() != 1)
        report.add(Code::mainPart, {L"/_rels/.rels", 0},
                   std::to_wstring(targets.size()) +
                       L" relationships lead to a main part, and one is needed");
    const PartRecord* part = targets.empty() ? nullptr : index.find(targets[0]);
    if (!part)
        return;
    index.mainPart = targets[0];
    const MainType* type = findMainType(part->type);
    const std::size_t dot = path.rfind(L'.');
    const std::wstring extension = dot == path.npos ? L"" : toLowerString(path.substr(dot + 1));
    if (!type)
        report.add(Code::wrongContentType, {part->name, 0},
                   L"its content type " + quote(part->type) + L" isn't that of a presentation");
    else if (isMainExtension(extension) && extension != type->extension)
        report.add(Code::wrongFileExtension, {part->name, 0},
                   L"its content type is that of a ." + std::wstring(type->extension) +
                       L" file, and the file is a ." + extension);
}

void checkReachability(const PackageIndex& index, Report& report) {
    std::set<PartKey> reached;
    std::vector<PartKey> open{{}};
    while (!open.empty()) {
        const PartKey source = open.back();
        open.pop_back();
        for (const RelationshipRow& row : index.getRelationships(source).rows)
            if (!row.isExternal && reached.insert(row.part).second)
                open.push_back(row.part);
    }
    for (const auto& part : index.parts)
        if (reached.count(part.first) == 0)
            report.add(Code::unreachablePart, {part.second.name, 0}, L"no relationship leads to it");
}

} // namespace vellox::check
