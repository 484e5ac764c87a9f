#include "tools/PackageCheck.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/Package.h"
#include "vellox/opc/ZipPhysicalPackage.h"
#include "vellox/ppt/xml/Dom.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <boost/algorithm/string/predicate.hpp>
#include <boost/make_shared.hpp>
#include <set>

namespace vellox::tools {

namespace {

using namespace ppt;

bool isExtent(const std::wstring& text) {
    return !text.empty() && text.find_first_not_of(L"0123456789") == std::wstring::npos;
}

bool isWhole(const std::wstring& text) {
    return isExtent(text.substr(!text.empty() && text[0] == L'-' ? 1 : 0));
}

class Check {
public:
    explicit Check(const std::wstring& path)
        : physical_(boost::make_shared<opc::ZipPhysicalPackage>(path, true, std::wstring())),
          package_(physical_, true),
          parser_(opc::XercesHelper::createParser()) {}

    std::vector<std::string> run() {
        package_.open(opc::OpenMode::ReadWrite);
        for (const auto& entry : physical_->getParts()) {
            try {
                checkPart(package_.getPart(entry->getName()));
            } catch (const std::exception& failure) {
                report(entry->getName(), failure.what());
            }
        }
        return faults_;
    }

private:
    void report(const opc::PartName& name, const std::string& fault) {
        faults_.push_back(toUtf8(name.toString()) + ": " + fault);
    }

    void checkPart(opc::Part part) {
        const std::wstring type = part.getContentType().toString();
        if (type.empty())
            report(part.getName(), "it has no content type");
        readAll(part);
        std::set<std::wstring> ids;
        if (part.getName().getExtension() != L"rels")
            ids = checkRelationships(part);
        if (part.getContentType().isXml())
            checkXml(part, ids);
    }

    static void readAll(opc::Part& part) {
        unsigned char block[4096];
        opc::InputStream& stream = part.getInputStream();
        while (stream.read(block, sizeof block) > 0) {
        }
    }

    std::set<std::wstring> checkRelationships(const opc::Part& part) {
        std::set<std::wstring> ids;
        for (const opc::Relationship& row : part.getRelationships()) {
            if (!ids.insert(row.getID()).second)
                report(part.getName(), "two relationships have the id " + toUtf8(row.getID()));
            if (!row.isExternal() && !package_.hasPart(opc::PartName(row.getTargetURI().toString())))
                report(part.getName(), "there is no " + toUtf8(row.getTargetURI().toString()));
        }
        return ids;
    }

    void checkXml(opc::Part& part, const std::set<std::wstring>& ids) {
        const OwnedDocument document(
            opc::XercesHelper::readDocumentFromStream(parser_.get(), part.getInputStream(), false, {}, {}));
        std::set<std::wstring> slideIds;
        for (const xercesc::DOMElement* element : getAllElements(document.get())) {
            checkAttributes(part.getName(), *element, ids);
            if (hasName(*element, xml::kTxBody) && !findChild(element, xml::kAP))
                report(part.getName(), "a text body has no paragraph");
            if (hasName(*element, xml::kSldId) && !slideIds.insert(getAttribute(element, xml::kId)).second)
                report(part.getName(), "two slides have one id");
        }
    }

    void checkAttributes(const opc::PartName& name, const xercesc::DOMElement& element,
                         const std::set<std::wstring>& ids) {
        // What isn't written keeps the marks that its template has.
        if (element.hasAttribute(xml::kDataUid) &&
            boost::algorithm::istarts_with(name.toString(), L"/ppt/slides/"))
            report(name, "it has a data-uid");
        for (const XMLCh* attribute : {u"r:id", u"r:embed", u"r:link"}) {
            const std::wstring id = getAttribute(&element, attribute);
            if (!id.empty() && ids.count(id) == 0)
                report(name, "it has no relationship " + toUtf8(id));
        }
        if (hasName(element, xml::kAOff) &&
            !(isWhole(getAttribute(&element, xml::kX)) && isWhole(getAttribute(&element, xml::kY))))
            report(name, "a position isn't a pair of whole numbers");
        if (hasName(element, xml::kAExt) && element.hasAttribute(xml::kCx) &&
            !(isExtent(getAttribute(&element, xml::kCx)) && isExtent(getAttribute(&element, xml::kCy))))
            report(name, "a size isn't a pair of whole numbers");
    }

    opc::XercesProcess xerces_;
    boost::shared_ptr<opc::ZipPhysicalPackage> physical_;
    opc::Package package_;
    opc::ParserScope parser_;
    std::vector<std::string> faults_;
};

} // namespace

std::vector<std::string> findFaults(const std::wstring& packagePath) {
    try {
        return Check(packagePath).run();
    } catch (const std::exception& failure) {
        return {failure.what()};
    }
}

} // namespace vellox::tools
