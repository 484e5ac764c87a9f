/// @file
/// Failures of the layers below, told as errors of ours. Internal.

#ifndef VELLOX_PPT_ENGINE_FAILURES_H
#define VELLOX_PPT_ENGINE_FAILURES_H

#include <boost/algorithm/string/predicate.hpp>
#include <exception>
#include <string>

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/host/services/Utf8.h"

namespace vellox::ppt {

/// What the layer below has to say, and the file, if there is one that isn't told already.
inline std::wstring describe(const std::exception& failure, const std::wstring& file) {
    const std::wstring reason = fromUtf8(failure.what());
    const bool isTold = file.empty() || boost::algorithm::ends_with(reason, L" " + file);
    return isTold ? reason : reason + L" " + file;
}

/// Takes a step. A failure of one kind is told under an identifier of ours, with the reason and the file.
template <class Failure, class Id, class Step>
void translate(const std::wstring& file, Step step, decltype(&describe) words = describe) {
    try {
        step();
    } catch (const Failure& failure) {
        raise(Id(words(failure, file)));
    }
}

} // namespace vellox::ppt

#endif
