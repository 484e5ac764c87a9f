/// @file
/// One document against the tables: sequence, presence and values of its elements and attributes, and what
/// its identifiers and references say.

#ifndef VELLOX_CHECK_DOCUMENTCHECK_H
#define VELLOX_CHECK_DOCUMENTCHECK_H

#include <memory>
#include <vector>
#include <xercesc/dom/DOM.hpp>

#include "vellox/check/DocumentFacts.h"
#include "vellox/check/Report.h"

namespace vellox::check {

/// Checks documents one after the other. What it learns of the tables serves the next one, so keep it as long
/// as there are documents. Needs a running Xerces.
class DocumentCheck {
public:
    DocumentCheck();
    DocumentCheck(const DocumentCheck&) = delete;
    DocumentCheck& operator=(const DocumentCheck&) = delete;
    ~DocumentCheck();

    /// @param kinds the relationships of the part; null leaves references out
    DocumentFacts check(const xercesc::DOMDocument& document, const Place& place,
                        const RelationshipKinds* kinds, Report& report);

private:
    class Walk;
    std::unique_ptr<Walk> walk_;
};

} // namespace vellox::check

#endif
