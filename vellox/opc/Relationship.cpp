#include "vellox/opc/Relationship.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/MarkupBuffer.h"
#include "vellox/opc/XercesString.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace opc {

using namespace xercesc;

namespace {

const XMLCh kNamespace[] = u"http://schemas.openxmlformats.org/package/2006/relationships";

std::wstring getAttribute(const DOMElement& element, const XMLCh* name) {
    return toWideString(element.getAttribute(name));
}

// Up to as many rows are looked through faster than an index is made.
constexpr std::size_t kFewRows = 8;

} // namespace

RelationshipTexts::Text RelationshipTexts::share(const std::wstring& text) {
    Text& shared = texts_[text];
    if (!shared)
        shared = boost::make_shared<const std::wstring>(text);
    return shared;
}

void RelationshipTable::read(DOMLSParser& parser, InputStream& stream) {
    const DocumentScope document(XercesHelper::readDocumentFromStream(&parser, stream, false, {}, {}));
    const DOMElement* root = document->getDocumentElement();
    if (!XMLString::equals(root->getLocalName(), u"Relationships") ||
        !XMLString::equals(root->getNamespaceURI(), kNamespace))
        throw Exception("it isn't a list of relationships");
    for (const DOMElement* row = root->getFirstElementChild(); row; row = row->getNextElementSibling()) {
        const std::wstring target = getAttribute(*row, u"Target");
        const bool isExternal = getAttribute(*row, u"TargetMode") == L"External";
        rows_.emplace_back(getAttribute(*row, u"Id"), texts_->share(getAttribute(*row, u"Type")),
                           URI(isExternal ? target : resolveTarget(*folder_, target)), isExternal);
        if (!isExternal)
            rows_.back().setSpelling(target);
        index(rows_.size() - 1);
    }
}

std::wstring RelationshipTable::spellTarget(const Relationship& row) const {
    if (row.isExternal())
        return row.getTargetURI().toString();
    return row.getSpelling() ? *row.getSpelling()
                             : makeRelativeTarget(*folder_, row.getTargetURI().toString());
}

void RelationshipTable::write(OutputStream& stream) const {
    MarkupBuffer out;
    const std::size_t start = out.openDocument("Relationships", kNamespace);
    for (const Relationship& row : rows_) {
        out.append("<Relationship");
        out.appendAttribute(u"Id", XercesString(row.getID()));
        out.appendAttribute(u"Target", XercesString(spellTarget(row)));
        if (row.isExternal())
            out.appendAttribute(u"TargetMode", u"External");
        out.appendAttribute(u"Type", XercesString(row.getType()));
        out.append("/>");
    }
    out.closeElement("Relationships", start);
    stream.write(reinterpret_cast<const unsigned char*>(out.get().data()), out.getLength());
    stream.close();
}

const Relationship* RelationshipTable::find(const std::wstring& id) const {
    const auto& rowByID = rowByID_.get();
    if (rowByID.empty()) {
        const auto row = std::find_if(rows_.begin(), rows_.end(),
                                      [&](const Relationship& each) { return each.getID() == id; });
        return row == rows_.end() ? nullptr : &*row;
    }
    const auto found = rowByID.find(id);
    return found == rowByID.end() ? nullptr : &rows_[found->second];
}

// Takes note of the rows from here on.
void RelationshipTable::index(std::size_t firstRow) {
    if (rows_.size() <= kFewRows)
        return;
    auto& rowByID = rowByID_.require();
    for (std::size_t row = rowByID.empty() ? 0 : firstRow; row < rows_.size(); ++row)
        rowByID.emplace(rows_[row].getID(), row);
}

std::wstring RelationshipTable::chooseID(const std::wstring& wanted) {
    if (!wanted.empty())
        return wanted;
    for (;; ++nextID_) {
        std::wstring id = L"rId" + vellox::num2str(nextID_);
        if (!find(id))
            return id;
    }
}

const Relationship& RelationshipTable::add(Relationship row) {
    if (find(row.getID()))
        throw Exception("a relationship with this id exists already");
    rows_.push_back(std::move(row));
    index(rows_.size() - 1);
    isChanged_ = true;
    return rows_.back();
}

const Relationship& RelationshipTable::addInternal(const std::wstring& type, const URI& target,
                                                   const std::wstring& id) {
    return add(Relationship(chooseID(id), texts_->share(type),
                            URI(resolveTarget(*folder_, target.toString())), false));
}

const Relationship& RelationshipTable::addExternal(const std::wstring& type, const std::wstring& target,
                                                   const std::wstring& id) {
    const std::wstring reference = makeExternalTarget(target);
    return add(Relationship(chooseID(id), texts_->share(type), URI(reference), true));
}

void RelationshipTable::remove(const std::set<std::wstring>& ids) {
    removeIf([&](const Relationship& row) { return ids.count(row.getID()) > 0; });
}

void RelationshipTable::removeOfType(const std::wstring& type) {
    removeIf([&](const Relationship& row) { return row.getType() == type; });
}

template <class Condition> void RelationshipTable::removeIf(Condition isCondemned) {
    const auto end = std::remove_if(rows_.begin(), rows_.end(), isCondemned);
    isChanged_ = isChanged_ || end != rows_.end();
    rows_.erase(end, rows_.end());
    rowByID_ = {};
    index(0);
    nextID_ = 1;
}

} // namespace opc
