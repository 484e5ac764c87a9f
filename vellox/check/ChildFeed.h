/// @file
/// One element's children on their way through its content model.

#ifndef VELLOX_CHECK_CHILDFEED_H
#define VELLOX_CHECK_CHILDFEED_H

#include <vector>

#include "vellox/check/Schema.h"

namespace vellox::check {

/// Where the children have got to. A value: the branches of an alternative each go on with a copy.
///
/// A child that comes too early leaves a gap, and one fault in the sequence shows up in several children; so
/// gaps are told at the end, and only where nothing else explains them.
class ChildFeed {
public:
    enum class Fault { None, Unknown, Disorder };

    /// Without a type, everything is allowed and nothing is known.
    explicit ChildFeed(const ElementType* type) : type_(type) {}

    bool isChecked() const { return type_ != nullptr; }
    const ElementType& getType() const { return *type_; }
    /// Takes the next child. Whatever the fault, the child's type is known where it can be.
    Fault take(Key child, TypeId& childType);
    /// The children that may come now.
    std::vector<Key> getExpected() const { return type_->content.getExpected(state_); }
    /// Ends the children.
    /// @return what is missing, one of several; empty if nothing is
    std::vector<Key> finish() const;

private:
    const ElementType* type_;
    ContentModel::State state_ = ContentModel::kStart;
    std::vector<Key> gap_;
    bool isOutOfOrder_ = false;
};

} // namespace vellox::check

#endif
