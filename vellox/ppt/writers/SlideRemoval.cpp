#include "vellox/ppt/writers/SlideRemoval.h"

#include "vellox/opc/Exception.h"
#include "vellox/ppt/package/OPCPackage.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/xml/Dom.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <optional>

namespace vellox::ppt {

using namespace xercesc;

namespace {

using Names = std::set<opc::PartName>;
using Rows = std::vector<opc::Relationship>;

class Removal {
public:
    Removal(const Names& slides, PPTPartWriter& partWriter) : slides_(slides), partWriter_(partWriter) {}

    void run() {
        const opc::Package& package = *partWriter_.getPackage().getPackage();
        const Names left = follow(package.getRelationships(), slides_);
        for (const opc::PartName& name : left)
            cutLinks(partWriter_.getPart(name.toString()));
        Names condemned;
        for (const opc::PartName& slide : slides_)
            condemned.insert(slide);
        for (const opc::PartName& name : followSlides())
            if (left.count(name) == 0)
                condemned.insert(name);
        partWriter_.deleteParts(condemned);
    }

private:
    // A target needn't be anything that a part could be called.
    std::optional<opc::PartName> findTarget(const opc::Relationship& row) const {
        if (row.isExternal())
            return std::nullopt;
        try {
            const opc::PartName name(row.getTargetURI().toString());
            return partWriter_.hasPart(name.toString()) ? std::optional(name) : std::nullopt;
        } catch (const opc::Exception&) {
            return std::nullopt;
        }
    }

    // All parts that relationships lead to, directly or not, but for some and what only those lead to.
    Names follow(const Rows& start, const Names& without) const {
        Names found;
        std::vector<opc::PartName> open;
        const auto visit = [&](const Rows& rows) {
            for (const opc::Relationship& row : rows) {
                const std::optional<opc::PartName> name = findTarget(row);
                if (name && without.count(*name) == 0 && found.insert(*name).second)
                    open.push_back(*name);
            }
        };
        visit(start);
        while (!open.empty()) {
            const opc::PartName name = open.back();
            open.pop_back();
            visit(partWriter_.getPart(name.toString()).getRelationships());
        }
        return found;
    }

    Names followSlides() const {
        Rows start;
        for (const opc::PartName& slide : slides_) {
            const Rows& rows = partWriter_.getPart(slide.toString()).getRelationships();
            start.insert(start.end(), rows.begin(), rows.end());
        }
        return follow(start, slides_);
    }

    void cutLinks(opc::Part part) {
        std::set<std::wstring> ids;
        for (const opc::Relationship& row : part.getRelationships()) {
            const std::optional<opc::PartName> name = findTarget(row);
            if (name && slides_.count(*name) > 0)
                ids.insert(row.getID());
        }
        if (ids.empty())
            return;
        part.deleteRelationships(ids);
        if (part.getContentType().isXml())
            cutElements(part, ids);
    }

    // Elements that are links and nothing else: of a run or a shape, of a custom show, of a view.
    void cutElements(const opc::Part& part, const std::set<std::wstring>& ids) {
        PartDOMBuilder builder(partWriter_.getPackage());
        const OwnedDocument document(builder.getDocument(part));
        for (DOMElement* element : getAllElements(document.get()))
            if (element != document->getDocumentElement() && ids.count(getAttribute(element, xml::kRId)) > 0)
                removeNode(element);
        partWriter_.writeDocument(part.getName().toString(), document.get());
    }

    const Names& slides_;
    PPTPartWriter& partWriter_;
};

} // namespace

void removeSlides(const std::set<opc::PartName>& slides, PPTPartWriter& partWriter) {
    if (!slides.empty())
        Removal(slides, partWriter).run();
}

} // namespace vellox::ppt
