/// @file
/// Documents on their way into a package.

#ifndef VELLOX_CHECK_MARKUPCHECK_H
#define VELLOX_CHECK_MARKUPCHECK_H

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "vellox/check/DocumentFacts.h"
#include "vellox/check/MarkupPaths.h"
#include "vellox/check/Report.h"

namespace vellox::check {

class DocumentCheck;

/// Checks the text of documents, one after the other, as DocumentCheck does their nodes. A deck's slides are much
/// alike: a walk along paths that are known by now tells of nearly every one that it is sound, in a fraction of the
/// time that nodes would take. Only what it can't tell that of is parsed and checked by the tables. What is learnt of
/// one deck serves the next, so keep it.
class MarkupCheck {
public:
    /// The relationships of the part that the document goes into.
    using GetKinds = std::function<RelationshipKinds()>;

    MarkupCheck();
    MarkupCheck(const MarkupCheck&) = delete;
    MarkupCheck& operator=(const MarkupCheck&) = delete;
    ~MarkupCheck();

    /// @param getKinds asked if there are references
    /// @return what a strict reader objects to
    std::vector<ppt::Finding> check(std::string_view markup, const Place& place, const GetKinds& getKinds);
    /// Whether that is certain not to be anything, without a look at nodes.
    bool isPlainlySound(std::string_view markup, const GetKinds& getKinds);

private:
    bool walk(std::string_view markup);
    bool mayLeave(const MarkupPaths::Spot& spot) const;
    void see(const MarkupPaths::Step& step);
    bool areShapesSound();
    bool areReferencesSound(const GetKinds& getKinds) const;

    std::unique_ptr<MarkupPaths> paths_;
    std::unique_ptr<DocumentCheck> documents_; // made when it is needed

    // Of the document.
    std::vector<MarkupPaths::Spot*> open_; // where the walk goes on behind the elements that it is in
    std::vector<std::string> shapes_, targets_;
    std::vector<MarkupPaths::Reference> references_;
    std::size_t columns_ = 0, cells_ = 0; // of a table, and of its last row
};

} // namespace vellox::check

#endif
